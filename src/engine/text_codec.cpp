#include "engine/text_codec.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tessarondel {

namespace {

constexpr char16_t Replacement = 0xFFFD;

// Length of a well-formed UTF-8 sequence at `i` and its code point; 0 when malformed.
std::size_t DecodeOne(std::string_view s, std::size_t i, char32_t& cp) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char lead = byte(i);
    std::size_t length = 0;
    if (lead < 0x80) {
        cp = lead;
        return 1;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        cp = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        cp = lead & 0x0F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        cp = lead & 0x07;
    } else {
        return 0;
    }
    if (i + length > s.size()) return 0;
    for (std::size_t k = 1; k < length; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80) return 0;
        cp = (cp << 6) | (byte(i + k) & 0x3F);
    }
    const bool overlong = (length == 3 && cp < 0x800) || (length == 4 && cp < 0x10000);
    const bool surrogate = cp >= 0xD800 && cp <= 0xDFFF;
    if (overlong || surrogate || cp > 0x10FFFF) return 0;
    return length;
}

}  // namespace

std::u16string ToUtf16(std::string_view utf8) {
    std::u16string out;
    AssignUtf16(out, utf8);
    return out;
}

void AssignUtf16(std::u16string& out, std::string_view utf8) {
    // No sequence gives more 16-bit units than it has bytes.
    out.resize(utf8.size());
    // Typed expressions are nearly always ASCII: that front is widened eight bytes at a time.
    std::size_t n = 0;
    for (; n + 8 <= utf8.size(); n += 8) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, utf8.data() + n, sizeof bytes);
        if ((bytes & 0x8080808080808080) != 0) break;
        for (std::size_t k = 0; k < 8; ++k) out[n + k] = static_cast<char16_t>(utf8[n + k]);
    }
    for (std::size_t i = n; i < utf8.size();) {
        if (static_cast<unsigned char>(utf8[i]) < 0x80) {
            out[n++] = static_cast<char16_t>(utf8[i++]);
            continue;
        }
        char32_t cp = 0;
        const std::size_t length = DecodeOne(utf8, i, cp);
        if (length == 0) {
            out[n++] = Replacement;
            ++i;
            continue;
        }
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out[n++] = static_cast<char16_t>(0xD800 + (cp >> 10));
            out[n++] = static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
        } else {
            out[n++] = static_cast<char16_t>(cp);
        }
        i += length;
    }
    out.resize(n);
}

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

std::string ToUtf8(std::u16string_view utf16) {
    std::string out;
    AppendUtf8(out, utf16);
    return out;
}

void AppendUtf8(std::string& out, std::u16string_view utf16) {
    // Results and messages are nearly always ASCII: one copy.
    if (std::all_of(utf16.begin(), utf16.end(), [](char16_t c) { return c < 0x80; })) {
        const std::size_t start = out.size();
        out.resize(start + utf16.size());
        std::transform(utf16.begin(), utf16.end(), out.begin() + static_cast<std::ptrdiff_t>(start),
                       [](char16_t c) { return static_cast<char>(c); });
        return;
    }
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        char32_t cp = utf16[i];
        if (cp >= 0xD800 && cp <= 0xDBFF && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 && utf16[i + 1] <= 0xDFFF) {
            cp = 0x10000 + ((cp - 0xD800) << 10) + (utf16[i + 1] - 0xDC00);
            ++i;
        } else if (cp >= 0xD800 && cp <= 0xDFFF) {
            cp = Replacement;
        }
        AppendUtf8(out, cp);
    }
}

}  // namespace tessarondel
