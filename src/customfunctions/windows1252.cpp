#include "customfunctions/windows1252.h"

#include <array>

namespace tessarondel {

namespace {

// 0x80..0x9F; the unassigned 0x81, 0x8D, 0x8F, 0x90 and 0x9D map to themselves.
constexpr std::array<char16_t, 32> HighControlRange = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t DecodeByte(unsigned char byte) {
    if (byte >= 0x80 && byte <= 0x9F) return HighControlRange[byte - 0x80];
    return byte;
}

char EncodeChar(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (std::size_t k = 0; k < HighControlRange.size(); ++k) {
        if (HighControlRange[k] == c) return static_cast<char>(0x80 + k);
    }
    return '?';
}

}  // namespace

std::u16string DecodeWindows1252(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (char byte : bytes) text += DecodeByte(static_cast<unsigned char>(byte));
    return text;
}

std::string EncodeWindows1252(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (char16_t c : text) bytes += EncodeChar(c);
    return bytes;
}

}  // namespace tessarondel
