#include <string>
#include <string_view>

#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/name_table.h"
#include "engine/splice_text.h"
#include "engine/token_stream.h"
#include "numbers/base_conversion.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Constants and aliases with their stream texts. The number texts are the
// 15-digit texts of the stored doubles, not of the exact constants. The names
// differ from each other, so the order in which they are compared is moot.
constexpr auto Replacements = [] {
    NameTable<std::u16string_view, 20> table;
    table.Add(u"permutation", u"perm");
    table.Add(u"combination", u"comb");
    table.Add(u"true", u"(-1)");
    table.Add(u"false", u"(0)");
    table.Add(u"pi", u"3.14159265358979");
    table.Add(u"e", u"2.71828182845905");
    table.Add(u"eps", u"(9.88131291682493*(10^(-14)))");
    table.Add(u"inf", u"(1.79769313486231*(10^308))");
    table.Add(u"hsin", u"sh");
    table.Add(u"hcos", u"ch");
    table.Add(u"htan", u"th");
    table.Add(u"harcsin", u"arsh");
    table.Add(u"harccos", u"arch");
    table.Add(u"harctan", u"arth");
    table.Add(u"tg", u"tan");
    table.Add(u"average", u"mean");
    table.Add(u"product", u"prod");
    table.Add(u"factorial", u"fac");
    table.Add(u"ator", u"angtorad");
    table.Add(u"rtoa", u"radtoang");
    return table;
}();

enum class Verdict { Keep, Replace, Stop };

struct TokenCheck {
    Verdict verdict = Verdict::Keep;
    std::u16string_view replacement;
};

TokenCheck Stop(EngineState& state, int error) {
    state.ReportError(error);
    return {Verdict::Stop, {}};
}

// The token of `length` characters at the front of `ahead`, the unread text.
struct TokenContext {
    const SpliceText& text;
    std::u16string_view ahead;
    std::size_t length;

    bool AtStart() const { return text.Cursor() == 0; }
    bool HasEnd() const { return length < ahead.size(); }
    // The character at the end, or the last one of the text when the token reaches it.
    char16_t Next() const { return HasEnd() ? ahead[length] : ahead.back(); }
    bool AssignsAtEnd() const {
        return HasEnd() && ahead[length] == u'=' && length + 1 < ahead.size() && ahead[length + 1] != u'=';
    }
    // A bracket that would make the token a call or a factor behind a bracket.
    bool BracketAround() const {
        const bool bracketAhead = Next() == u'(';
        return AtStart() ? bracketAhead : (text.Behind() == u')' || bracketAhead);
    }
};

bool IsValidName(std::u16string_view t) {
    bool hasLetter = false;
    for (const char16_t c : t) {
        if (c == u'.' || !(IsLetterChar(c) || IsDigitChar(c))) return false;
        hasLetter = hasLetter || (c != u'_' && IsLetterChar(c));
    }
    return hasLetter;
}

bool IsNumberToken(EngineState& state, std::u16string_view t) {
    return ContainsText(u"$", t) ? IsNumericText(BaseLiteralToDecimal(t, state)) : IsNumericText(t);
}

// `t` is the token without its blanks. The lists are looked up once per token.
TokenCheck CheckToken(EngineState& state, const TokenContext& context, std::u16string_view t) {
    if (t.empty()) return {};
    const unsigned lists = ListsHolding(t);
    const bool function = IsBuiltinOrAlias(lists) || InCustomFunctionNames(state, t);
    if (context.AssignsAtEnd() && (function || lists != 0)) {
        return Stop(state, (lists & ConstantBit) != 0 ? ConstantAssignment : FunctionAssignment);
    }
    if (!function && context.BracketAround()) return Stop(state, SyntaxError);
    if (t.find(u' ') != std::u16string_view::npos) return Stop(state, InvalidName);
    if (IsNumberToken(state, t)) return {};
    if (!IsValidName(t)) return Stop(state, InvalidName);
    if (const std::u16string_view* replacement = Replacements.Find(t)) return {Verdict::Replace, *replacement};
    if (IsDigitChar(t[0])) return Stop(state, UndefinedName);
    return {};
}

std::size_t RunLength(std::u16string_view text, bool delimiters) {
    std::size_t length = 0;
    while (length < text.size() && IsDelimiterChar(text[length]) == delimiters) ++length;
    return length;
}

}  // namespace

// A replacement sends the scan back to the first character. Tokens in front
// of the replaced one end at a delimiter that the replacement does not touch,
// so they read and check as before; the scan therefore goes on at the
// replacement itself, which is checked like any other text.
bool RunTokenPass(EngineState& state, std::u16string& src) {
    SpliceText text(src);
    while (text.Remaining() > 0) {
        const std::u16string_view ahead = text.Ahead();
        if (const std::size_t delimiters = RunLength(ahead, true); delimiters > 0) {
            text.Advance(delimiters);
            continue;
        }
        const std::size_t length = RunLength(ahead, false);
        const TokenCheck check = CheckToken(state, TokenContext{text, ahead, length}, TrimBlanks(ahead.substr(0, length)));
        if (check.verdict == Verdict::Stop) return false;
        if (check.verdict == Verdict::Replace) {
            text.ReplaceAhead(length, check.replacement);
        } else {
            text.Advance(length);
        }
    }
    return true;
}

}  // namespace tessarondel
