#include "numbers/text_rules.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace tessarondel {

std::size_t FindChar(std::u16string_view text, char16_t c, std::size_t from) {
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

std::u16string AsciiLower(std::u16string_view text) {
    std::u16string out(text);
    LowerAsciiInPlace(out);
    return out;
}

void LowerAsciiInPlace(std::u16string& text) {
    for (auto& c : text) c = AsciiLowerChar(c);
}

void TrimBlanksInPlace(std::u16string& text) {
    const std::u16string_view trimmed = TrimBlanks(text);
    const auto first = static_cast<std::size_t>(trimmed.data() - text.data());
    text.resize(first + trimmed.size());
    text.erase(0, first);
}

std::u16string AsciiUpper(std::u16string_view text) {
    std::u16string out(text);
    for (auto& c : out) c = AsciiUpperChar(c);
    return out;
}

std::u16string AsciiToU16(std::string_view text) { return std::u16string(text.begin(), text.end()); }

}  // namespace tessarondel
