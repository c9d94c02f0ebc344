#include "engine/name_lists.h"

#include <algorithm>
#include <vector>

namespace tessarondel {

namespace {

constexpr std::size_t CountCharLimit = 32767;
constexpr int OverflowError = 6;

bool HasListPunctuation(std::u16string_view name) {
    for (const char16_t c : name) {
        if (c == u'{' || c == u'}' || c == u',') return true;
    }
    return false;
}

// The entries of a constant braced list. For a name without braces and
// commas, "{name}" occurs in the list exactly when the name is an entry: every
// "{" opens an entry and the first "}" behind it closes that entry. Other
// names take the substring search.
class BracedNameSet {
public:
    explicit BracedNameSet(std::u16string_view list) : list_(list) {
        for (std::size_t open = list.find(u'{'); open != std::u16string_view::npos; open = list.find(u'{', open + 1)) {
            const std::size_t close = list.find(u'}', open);
            const std::u16string_view entry = list.substr(open + 1, close - open - 1);
            if (byLength_.size() <= entry.size()) byLength_.resize(entry.size() + 1);
            byLength_[entry.size()].push_back(entry);
        }
    }

    bool Contains(std::u16string_view name) const {
        if (HasListPunctuation(name)) return InBracedList(name, list_);
        if (name.size() >= byLength_.size()) return false;  // longer than every entry
        for (const std::u16string_view entry : byLength_[name.size()]) {
            if (entry[0] == name[0] && entry == name) return true;
        }
        return false;
    }

private:
    std::u16string_view list_;
    std::vector<std::vector<std::u16string_view>> byLength_;  // entries by their length
};

const BracedNameSet& BuiltinFunctions() {
    static const BracedNameSet set(BuiltinFunctionList);
    return set;
}
const BracedNameSet& Aliases() {
    static const BracedNameSet set(AliasList);
    return set;
}
const BracedNameSet& WordOperators() {
    static const BracedNameSet set(WordOperatorList);
    return set;
}
const BracedNameSet& Constants() {
    static const BracedNameSet set(ConstantList);
    return set;
}
}  // namespace

// The reader's operators: one or two characters, none of them a brace, so the
// list's entries are exactly these.
bool IsOperatorText(std::u16string_view text) {
    if (text.size() == 1) {
        switch (text[0]) {
            case u'=':
            case u',':
            case u'+':
            case u'-':
            case u'*':
            case u'/':
            case u'%':
            case u'^':
            case u'>':
            case u'<':
            case u'(':
            case u')':
            case u'&':
            case u'|':
                return true;
            default:
                return false;
        }
    }
    if (text.size() != 2) return InBracedList(text, OperatorList);
    const char16_t a = text[0];
    const char16_t b = text[1];
    if (a == u'%') return b == u'\\' || b == u'%' || b == u'>' || b == u'!' || b == u'~';
    if (a == u'=') return b == u'=';
    if (a == u'>') return b == u'=';
    if (a == u'<') return b == u'=' || b == u'>';
    return false;
}

bool IsConstantName(std::u16string_view name) { return Constants().Contains(name); }

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
        case u'=':
        case u',':
        case u'+':
        case u'-':
        case u'*':
        case u'/':
        case u'\\':
        case u'%':
        case u'^':
        case u'>':
        case u'<':
        case u'(':
        case u')':
        case u'&':
        case u'|':
        case u'!':
        case u'~':
        case u'\t':
        case u'\0':
        case u'\n':
        case u'\r':
            return true;
        default:
            return false;
    }
}

bool IsFunctionName(const EngineState& state, std::u16string_view name) {
    return BuiltinFunctions().Contains(name) || Aliases().Contains(name) ||
           (!state.CustomFunctionNames.empty() && InBracedList(name, state.CustomFunctionNames));
}

bool IsKnownName(const EngineState& state, std::u16string_view name) {
    return IsFunctionName(state, name) || WordOperators().Contains(name) || Constants().Contains(name);
}

int CountChar(EngineState& state, std::u16string_view text, char16_t c) {
    if (text.size() > CountCharLimit) {
        state.ReportError(OverflowError);
        return 0;
    }
    return static_cast<int>(std::count(text.begin(), text.end(), c));
}

}  // namespace tessarondel
