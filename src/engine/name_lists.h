#pragma once

#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// The braced name lists. A name belongs to a list when "{name}" occurs in it
// as a substring, exact comparison.
inline constexpr std::u16string_view BuiltinFunctionList =
    u"{round},{iif},{perm},{comb},{fac},{short},{mean},{cov},{std},{prod},{max},{min},{sum},{not},{log},"
    u"{angtorad},{sqrt},{radtoang},{sh},{ch},{th},{arsh},{arch},{arth},{arcsin},{arccos},{arctan},{arccot},"
    u"{sin},{cos},{tan},{cot},{abs},{exp},{sgn},{sqr},{int},{fix},{ln},{arcsec},{arccsc},{sec},{csc},{rnd}";
inline constexpr std::u16string_view AliasList =
    u"{permutation},{combination},{hsin},{hcos},{htan},{harcsin},{harccos},{harctan},{tg},{average},{product},"
    u"{factorial},{ator},{rtoa}";
inline constexpr std::u16string_view WordOperatorList = u"{and},{xor},{eqv},{mod},{div},{or},{imp}";
inline constexpr std::u16string_view ConstantList = u"{true},{false},{e},{pi},{inf},{eps}";
inline constexpr std::u16string_view DelimiterList =
    u"{=},{,},{+},{-},{*},{/},{\\},{%},{^},{==},{>},{<},{>=},{<=},{<>},{(},{)},{&},{|},{!},{~}";
inline constexpr std::u16string_view OperatorList =
    u"{=},{,},{+},{-},{*},{/},{%\\},{%},{%%},{%>},{^},{==},{>},{<},{>=},{<=},{<>},{(},{)},{&},{|},{%!},{%~}";
inline constexpr std::u16string_view BasePrefixList = u"{$h},{$o},{$b}";

// Binary substring test.
inline bool ContainsText(std::u16string_view needle, std::u16string_view haystack) {
    return haystack.find(needle) != std::u16string_view::npos;
}

// "{name}" in `list`, without building the braced text.
bool InBracedList(std::u16string_view name, std::u16string_view list);
// Where "{name}" first occurs in `list`; npos when nowhere.
std::size_t FindBracedName(std::u16string_view name, std::u16string_view list);

// The reader's operators: one or two characters, none of them a brace, so the
// list's entries are exactly these; other texts take the list's own rule.
constexpr bool IsOperatorText(std::u16string_view text) {
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
    if (a == u'=' || a == u'>') return b == u'=';
    if (a == u'<') return b == u'=' || b == u'>';
    return false;
}
// Membership in the constant list.
bool IsConstantName(std::u16string_view name);

// A-Z, a-z and _
constexpr bool IsLetterChar(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_'; }
// 0-9 and the point
constexpr bool IsDigitChar(char16_t c) { return (c >= u'0' && c <= u'9') || c == u'.'; }
// The delimiter list, tab, NUL, LF, CR; not the blank. All of them are below 128.
constexpr bool IsDelimiterChar(char16_t c) {
    constexpr unsigned long long Low =
        (1ULL << u'\0') | (1ULL << u'\t') | (1ULL << u'\n') | (1ULL << u'\r') | (1ULL << u'!') | (1ULL << u'%') |
        (1ULL << u'&') | (1ULL << u'(') | (1ULL << u')') | (1ULL << u'*') | (1ULL << u'+') | (1ULL << u',') |
        (1ULL << u'-') | (1ULL << u'/') | (1ULL << u'<') | (1ULL << u'=') | (1ULL << u'>');
    constexpr unsigned long long High =
        (1ULL << (u'\\' - 64)) | (1ULL << (u'^' - 64)) | (1ULL << (u'|' - 64)) | (1ULL << (u'~' - 64));
    if (c < 64) return (Low >> c) & 1;
    return c < 128 && ((High >> (c - 64)) & 1);
}

// The braced lists that hold a name, as bits.
enum NameListBit : unsigned {
    BuiltinFunctionBit = 1,
    AliasBit = 2,
    WordOperatorBit = 4,
    ConstantBit = 8,
};
unsigned ListsHolding(std::u16string_view name);
inline bool IsBuiltinOrAlias(unsigned lists) { return (lists & (BuiltinFunctionBit | AliasBit)) != 0; }
// In the custom function names, as given.
inline bool InCustomFunctionNames(const EngineState& state, std::u16string_view name) {
    return !state.CustomFunctionNames.empty() && InBracedList(name, state.CustomFunctionNames);
}

// Custom, built-in or alias name, as given (no trimming).
bool IsFunctionName(const EngineState& state, std::u16string_view name);
// A function name, a word operator or a constant.
bool IsKnownName(const EngineState& state, std::u16string_view name);

// Occurrences of `c` in `text`. A text over 32,767 characters overflows the
// 16-bit count: error 6 and the count 0.
int CountChar(EngineState& state, std::u16string_view text, char16_t c);

}  // namespace tessarondel
