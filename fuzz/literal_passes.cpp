#include "literal_passes.h"

#include <utility>
#include <vector>

#include "engine/name_lists.h"
#include "numbers/base_conversion.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel::literal {

namespace {

// A plain search of this file's own: the library's find is shared with the
// instrumented code under test, and its traced comparisons would dominate
// every fuzz run.
std::size_t Find(std::u16string_view text, std::u16string_view what, std::size_t from = 0) {
    for (std::size_t at = from; at + what.size() <= text.size(); ++at) {
        std::size_t k = 0;
        while (k < what.size() && text[at + k] == what[k]) ++k;
        if (k == what.size()) return at;
    }
    return std::u16string::npos;
}

std::u16string ReplaceAll(std::u16string text, std::u16string_view from, std::u16string_view to) {
    for (std::size_t at = Find(text, from); at != std::u16string::npos; at = Find(text, from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// 1-based character, the empty text (0) beyond the end.
char16_t Mid(const std::u16string& s, std::size_t position) {
    return position >= 1 && position <= s.size() ? s[position - 1] : u'\0';
}

bool Delimiter(const std::u16string& s, std::size_t position) {
    return position > s.size() || IsListedDelimiter(s[position - 1]);
}

const std::vector<std::pair<std::u16string, std::u16string>> kReplacements = {
    {u"permutation", u"perm"},
    {u"combination", u"comb"},
    {u"true", u"(-1)"},
    {u"false", u"(0)"},
    {u"pi", u"3.14159265358979"},
    {u"e", u"2.71828182845905"},
    {u"eps", u"(9.88131291682493*(10^(-14)))"},
    {u"inf", u"(1.79769313486231*(10^308))"},
    {u"hsin", u"sh"},
    {u"hcos", u"ch"},
    {u"htan", u"th"},
    {u"harcsin", u"arsh"},
    {u"harccos", u"arch"},
    {u"harctan", u"arth"},
    {u"tg", u"tan"},
    {u"average", u"mean"},
    {u"product", u"prod"},
    {u"factorial", u"fac"},
    {u"ator", u"angtorad"},
    {u"rtoa", u"radtoang"},
};

}  // namespace

bool InList(std::u16string_view name, std::u16string_view list) {
    std::u16string braced = u"{";
    braced += name;
    braced += u"}";
    return Find(list, braced) != std::u16string::npos;
}

bool IsListedDelimiter(char16_t c) {
    return InList(std::u16string_view(&c, 1), DelimiterList) || c == 9 || c == 0 || c == 10 || c == 13;
}

bool IsFunctionName(const EngineState& state, std::u16string_view name) {
    return InList(name, state.CustomFunctionNames) || InList(name, BuiltinFunctionList) || InList(name, AliasList);
}

bool IsKnownName(const EngineState& state, std::u16string_view name) {
    return literal::IsFunctionName(state, name) || InList(name, WordOperatorList) || InList(name, ConstantList);
}

std::u16string FoldSource(std::u16string text) {
    for (char16_t c = 0xFF21; c <= 0xFF3A; ++c)
        text = ReplaceAll(text, std::u16string(1, c), std::u16string(1, u'A' + (c - 0xFF21)));
    for (char16_t c = 0xFF41; c <= 0xFF5A; ++c)
        text = ReplaceAll(text, std::u16string(1, c), std::u16string(1, u'a' + (c - 0xFF41)));
    for (char16_t c = 0xFF10; c <= 0xFF19; ++c)
        text = ReplaceAll(text, std::u16string(1, c), std::u16string(1, u'0' + (c - 0xFF10)));
    const std::u16string from =
        u"\uFF5E\uFF01\uFF20\uFF03\uFF04\uFF05\uFF3E\uFF06\uFF0A\uFF08\uFF09\uFF3F"
        u"\uFF0B\uFF5C\uFF0D\uFF1D\uFF3C\uFF1C\uFF1E\uFF1F\uFF0C\u3002\uFF0E\uFF0F"
        u"\uFF1A\uFF1B\uFF07\u2019\u2018\u201C\u201D\uFF5B\uFF5D\uFF3B\uFF3D\u3000";
    const std::u16string to = u"~!@#$%^&*()_+|-=\\<>?,../:;'''\"\"{}[] ";
    for (std::size_t i = 0; i < from.size(); ++i) text = ReplaceAll(text, from.substr(i, 1), to.substr(i, 1));
    return text;
}

std::u16string ScanExponents(EngineState& state, std::u16string src) {
    src = AsciiLower(TrimBlanks(src));
    std::size_t p = 1;
    while (true) {
        const std::size_t found = src.find(u'e', p - 1);
        if (found == std::u16string::npos) break;
        p = found + 1;
        bool literal = p != 1 && p < src.size() && IsDigitChar(Mid(src, p - 1));
        for (std::size_t k = p - 2; literal && k >= 1; --k) literal = Mid(src, k) != u'$';
        if (literal) {
            const char16_t first = Mid(src, p + 1);
            if (!IsDigitChar(first) && first != u'+' && first != u'-') {
                state.ReportError(5);
                break;
            }
            std::u16string m(1, Mid(src, p - 1));
            std::u16string x(1, first);
            bool leftStopped = false;
            bool rightStopped = false;
            for (std::size_t d = 2; !(leftStopped && rightStopped); ++d) {
                if (!leftStopped && p > d && IsDigitChar(Mid(src, p - d)))
                    m.insert(0, 1, Mid(src, p - d));
                else
                    leftStopped = true;
                const char16_t right = Mid(src, p + d);
                if (!rightStopped && p + d <= src.size() && (IsDigitChar(right) || right == u' '))
                    x += right;
                else
                    rightStopped = true;
            }
            const auto points = std::count(m.begin(), m.end(), u'.');
            if (x.find(u'.') != std::u16string::npos || m == u"." || points > 1) {
                state.ReportError(5);
                break;
            }
            src = src.substr(0, p - 1 - m.size()) + m + u"*(10^" + x + u")" + src.substr(p + x.size());
        } else {
            ++p;
        }
        if (p >= src.size()) break;
    }
    return src;
}

std::u16string ReplaceWordOperators(std::u16string src) {
    const std::vector<std::pair<std::u16string, std::u16string>> words = {
        {u"and", u"&"},   {u"xor", u"%!"}, {u"eqv", u"%~"}, {u"mod", u"%%"},
        {u"div", u"%\\"}, {u"or", u"|"},   {u"imp", u"%>"}};
    std::size_t cursor = 0;
    while (cursor < src.size()) {
        ++cursor;
        if (!IsLetterChar(Mid(src, cursor))) continue;
        std::size_t end = cursor;
        while (end <= src.size() && IsLetterChar(Mid(src, end))) ++end;
        const std::u16string word = src.substr(cursor - 1, end - cursor);
        bool replaced = false;
        for (const auto& [name, text] : words) {
            if (word == name) {
                src = src.substr(0, cursor - 1) + text + src.substr(end - 1);
                cursor = 0;
                replaced = true;
                break;
            }
        }
        if (!replaced) cursor = end - 1;
    }
    return src;
}

bool RunTokenPass(EngineState& state, std::u16string& src) {
    std::size_t cursor = 0;
    while (true) {
        ++cursor;
        if (!Delimiter(src, cursor)) {
            const std::size_t start = cursor;
            std::size_t end = start;
            while (!Delimiter(src, end)) ++end;
            const std::u16string t(TrimBlanks(src.substr(start - 1, end - start)));
            const bool assigned = Mid(src, end) == u'=' && end < src.size() && Mid(src, end + 1) != u'=';
            if (!t.empty() && literal::IsKnownName(state, t) && assigned) {
                state.ReportError(InList(t, ConstantList) ? 7 : 12);
                return false;
            }
            const char16_t next = end <= src.size() ? Mid(src, end) : src.back();
            if (!t.empty() && !literal::IsFunctionName(state, t) &&
                ((start == 1 && next == u'(') || (start > 1 && (Mid(src, start - 1) == u')' || next == u'(')))) {
                state.ReportError(0);
                return false;
            }
            if (t.find(u' ') != std::u16string::npos) {
                state.ReportError(8);
                return false;
            }
            cursor = end - 1;
            if (!t.empty() && !IsNumericText(BaseLiteralToDecimal(t, state))) {
                bool letter = false;
                for (const char16_t c : t) letter = letter || (IsLetterChar(c) && c != u'_');
                for (const char16_t c : t) {
                    if (c == u'.' || !(IsLetterChar(c) || IsDigitChar(c))) letter = false;
                }
                if (!letter) {
                    state.ReportError(8);
                    return false;
                }
                bool replaced = false;
                for (const auto& [name, text] : kReplacements) {
                    if (t == name) {
                        src = src.substr(0, start - 1) + text + src.substr(end - 1);
                        cursor = 0;
                        replaced = true;
                        break;
                    }
                }
                if (!replaced && IsDigitChar(t[0])) {
                    state.ReportError(4);
                    return false;
                }
            }
        }
        if (cursor >= src.size()) return true;
    }
}

}  // namespace tessarondel::literal
