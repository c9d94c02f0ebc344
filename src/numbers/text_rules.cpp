#include "numbers/text_rules.h"

namespace tessarondel {

std::u16string_view TrimBlanks(std::u16string_view text) {
    const auto first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos) return {};
    const auto last = text.find_last_not_of(u' ');
    return text.substr(first, last - first + 1);
}

std::u16string AsciiLower(std::u16string_view text) {
    std::u16string out(text);
    for (auto& c : out) c = AsciiLowerChar(c);
    return out;
}

std::u16string AsciiUpper(std::u16string_view text) {
    std::u16string out(text);
    for (auto& c : out) c = AsciiUpperChar(c);
    return out;
}

std::u16string AsciiToU16(std::string_view text) { return std::u16string(text.begin(), text.end()); }

}  // namespace tessarondel
