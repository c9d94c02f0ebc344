#pragma once

#include <string>
#include <string_view>

namespace tessarondel::testing_text {

// The number texts are ASCII; these keep table rows readable as plain literals.
inline std::u16string U16(std::string_view text) { return std::u16string(text.begin(), text.end()); }

inline std::string Narrow(std::u16string_view text) {
    std::string out;
    for (const char16_t c : text) out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

}  // namespace tessarondel::testing_text
