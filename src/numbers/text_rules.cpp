#include "numbers/text_rules.h"

namespace tessarondel {

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
