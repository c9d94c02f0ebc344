#include <array>
#include <string>

#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/splice_text.h"
#include "engine/token_stream.h"
#include "numbers/base_conversion.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

struct Replacement {
    std::u16string_view name;
    std::u16string_view text;
};

// Constants and aliases, in the order they are compared. The number texts are
// the 15-digit texts of the stored doubles, not of the exact constants.
constexpr std::array<Replacement, 20> Replacements = {{
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
}};

enum class Verdict { Keep, Replace, Stop };

struct TokenCheck {
    Verdict verdict = Verdict::Keep;
    std::u16string_view replacement;
};

TokenCheck Stop(EngineState& state, int error) {
    state.ReportError(error);
    return {Verdict::Stop, {}};
}

// The token of `length` characters just ahead of the cursor, in its context.
struct TokenContext {
    const SpliceText& text;
    std::size_t length;

    bool AtStart() const { return text.Cursor() == 0; }
    bool HasEnd() const { return length < text.Remaining(); }
    char16_t EndChar() const { return text.Ahead(length); }
    // The character at the end, or the last one of the text when the token reaches it.
    char16_t Next() const { return HasEnd() ? EndChar() : text.Last(); }
    bool AssignsAtEnd() const {
        return HasEnd() && EndChar() == u'=' && length + 1 < text.Remaining() && text.Ahead(length + 1) != u'=';
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

TokenCheck CheckToken(EngineState& state, const TokenContext& context, std::u16string_view t) {
    if (!t.empty() && context.AssignsAtEnd() && IsKnownName(state, t)) {
        return Stop(state, IsConstantName(t) ? ConstantAssignment : FunctionAssignment);
    }
    if (!t.empty() && !IsFunctionName(state, t)) {
        const bool bracketAhead = context.Next() == u'(';
        if ((context.AtStart() && bracketAhead) ||
            (!context.AtStart() && (context.text.Behind() == u')' || bracketAhead))) {
            return Stop(state, SyntaxError);
        }
    }
    if (t.find(u' ') != std::u16string_view::npos) return Stop(state, InvalidName);
    if (t.empty()) return {};
    const bool numeric = ContainsText(u"$", t) ? IsNumericText(BaseLiteralToDecimal(t, state)) : IsNumericText(t);
    if (numeric) return {};
    if (!IsValidName(t)) return Stop(state, InvalidName);
    for (const Replacement& replacement : Replacements) {
        if (t == replacement.name) return {Verdict::Replace, replacement.text};
    }
    if (IsDigitChar(t[0])) return Stop(state, UndefinedName);
    return {};
}

}  // namespace

// A replacement sends the scan back to the first character. Tokens in front
// of the replaced one end at a delimiter that the replacement does not touch,
// so they read and check as before; the scan therefore goes on at the
// replacement itself, which is checked like any other text.
bool RunTokenPass(EngineState& state, std::u16string& src) {
    SpliceText text(src);
    std::u16string token;
    while (text.Remaining() > 0) {
        if (IsDelimiterChar(text.Ahead(0))) {
            text.Advance(1);
            continue;
        }
        std::size_t length = 1;
        while (length < text.Remaining() && !IsDelimiterChar(text.Ahead(length))) ++length;
        text.CopyAhead(length, token);
        const TokenCheck check = CheckToken(state, TokenContext{text, length}, TrimBlanks(token));
        if (check.verdict == Verdict::Stop) return false;
        if (check.verdict == Verdict::Replace) {
            text.ReplaceAhead(length, check.replacement);
        } else {
            text.Advance(length);
        }
    }
    src = text.Text();
    return true;
}

}  // namespace tessarondel
