#include "numbers/text_rules.h"

namespace tessarondel {

std::u16string_view TrimBlanks(std::u16string_view text) {
    std::size_t first = 0;
    std::size_t end = text.size();
    while (first < end && text[first] == u' ') ++first;
    while (end > first && text[end - 1] == u' ') --end;
    return text.substr(first, end - first);
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
