#include "engine/name_lists.h"

#include <algorithm>

namespace tessarondel {

namespace {

constexpr std::size_t CountCharLimit = 32767;
constexpr int OverflowError = 6;

}  // namespace

bool InBracedList(std::u16string_view name, std::u16string_view list) {
    if (name.empty()) return ContainsText(u"{}", list);
    // Each match of the name must have "{" before it and "}" behind it.
    for (std::size_t at = list.find(name, 1); at != std::u16string_view::npos; at = list.find(name, at + 1)) {
        if (list[at - 1] == u'{' && at + name.size() < list.size() && list[at + name.size()] == u'}') return true;
    }
    return false;
}

bool IsLetterChar(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_'; }

bool IsDigitChar(char16_t c) { return (c >= u'0' && c <= u'9') || c == u'.'; }

bool IsDelimiterChar(char16_t c) {
    switch (c) {
        case u'=': case u',': case u'+': case u'-': case u'*': case u'/': case u'\\': case u'%': case u'^':
        case u'>': case u'<': case u'(': case u')': case u'&': case u'|': case u'!': case u'~':
        case u'\t': case u'\0': case u'\n': case u'\r':
            return true;
        default:
            return false;
    }
}

bool IsFunctionName(const EngineState& state, std::u16string_view name) {
    return InBracedList(name, state.CustomFunctionNames) || InBracedList(name, BuiltinFunctionList) ||
           InBracedList(name, AliasList);
}

bool IsKnownName(const EngineState& state, std::u16string_view name) {
    return IsFunctionName(state, name) || InBracedList(name, WordOperatorList) || InBracedList(name, ConstantList);
}

int CountChar(EngineState& state, std::u16string_view text, char16_t c) {
    if (text.size() > CountCharLimit) {
        state.ReportError(OverflowError);
        return 0;
    }
    return static_cast<int>(std::count(text.begin(), text.end(), c));
}

}  // namespace tessarondel
