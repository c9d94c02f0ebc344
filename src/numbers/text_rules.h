#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tessarondel {

// The engine's text rules: trimming removes blanks (code 32) only; tabs and
// line ends stay. Case changes touch ASCII letters only, so no character is
// ever split or turned into an ASCII letter (U+212A stays what it is).

inline std::u16string_view TrimBlanks(std::u16string_view text) {
    std::size_t first = 0;
    std::size_t end = text.size();
    while (first < end && text[first] == u' ') ++first;
    while (end > first && text[end - 1] == u' ') --end;
    return text.substr(first, end - first);
}
void TrimBlanksInPlace(std::u16string& text);

std::u16string AsciiLower(std::u16string_view text);
void LowerAsciiInPlace(std::u16string& text);
std::u16string AsciiUpper(std::u16string_view text);

constexpr char16_t AsciiLowerChar(char16_t c) { return (c >= u'A' && c <= u'Z') ? static_cast<char16_t>(c + 32) : c; }
constexpr char16_t AsciiUpperChar(char16_t c) { return (c >= u'a' && c <= u'z') ? static_cast<char16_t>(c - 32) : c; }
constexpr bool IsAsciiDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// Where `c` first occurs in `text` from `from` on; npos when nowhere. As
// std::u16string_view::find, but four characters at a time: the passes over
// a whole expression look for one character again and again.
inline std::size_t FindChar(std::u16string_view text, char16_t c, std::size_t from = 0) {
    std::size_t i = from;
    if constexpr (std::endian::native == std::endian::little) {
        constexpr std::uint64_t Ones = 0x0001000100010001;
        constexpr std::uint64_t Highs = 0x8000800080008000;
        const std::uint64_t pattern = Ones * c;
        for (; i + 4 <= text.size(); i += 4) {
            std::uint64_t word = 0;
            std::memcpy(&word, text.data() + i, sizeof word);
            word ^= pattern;  // a lane of the sought character is now zero
            // The lowest flagged lane is the first zero lane; lanes above it may be flagged falsely.
            const std::uint64_t zeroLanes = (word - Ones) & ~word & Highs;
            if (zeroLanes != 0) return i + static_cast<std::size_t>(std::countr_zero(zeroLanes)) / 16;
        }
    }
    for (; i < text.size(); ++i) {
        if (text[i] == c) return i;
    }
    return std::u16string_view::npos;
}

// ASCII-only text (all our number texts) between the two string types.
std::u16string AsciiToU16(std::string_view text);

}  // namespace tessarondel
