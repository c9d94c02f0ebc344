#pragma once

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
std::size_t FindChar(std::u16string_view text, char16_t c, std::size_t from = 0);

// ASCII-only text (all our number texts) between the two string types.
std::u16string AsciiToU16(std::string_view text);

}  // namespace tessarondel
