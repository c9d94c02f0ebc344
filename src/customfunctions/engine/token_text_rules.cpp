#include "customfunctions/engine/token_text_rules.h"

namespace tessarondel {

bool IsDelimiterChar(std::u16string_view c) {
    static constexpr std::u16string_view delimiters = u"=,+-*/\\%^><()&|!~";
    if (c.empty()) return true;
    if (c.size() != 1) return false;
    return delimiters.find(c[0]) != std::u16string_view::npos || c[0] == 0 || c[0] == 9 || c[0] == 10 || c[0] == 13;
}

bool ContainsText(std::u16string_view needle, std::u16string_view haystack) {
    return haystack.find(needle) != std::u16string_view::npos;
}

std::int16_t CountChar(EngineState& state, std::u16string_view text, char16_t c) {
    if (text.size() > 32767) {
        state.ReportError(6);
        return 0;
    }
    std::int16_t count = 0;
    for (char16_t each : text) count = static_cast<std::int16_t>(count + (each == c ? 1 : 0));
    return count;
}

}  // namespace tessarondel
