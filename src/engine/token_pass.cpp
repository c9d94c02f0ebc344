#include <array>
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
    bool checkReplacement = false;  // whether the scan goes on at the replacement or behind it
};

TokenCheck Stop(EngineState& state, int error) {
    state.ReportError(error);
    return {Verdict::Stop, {}};
}

// What the checks need to know of the characters of a token, gathered while
// the token is scanned, so that no check walks the token again.
enum CharBit : unsigned {
    DelimiterBit = 1,
    BlankBit = 2,
    DollarBit = 4,
    PlainLetterBit = 8,  // A-Z, a-z
    UnderscoreBit = 16,
    DecimalDigitBit = 32,
    PointBit = 64,
    OtherCharBit = 128,
};

constexpr unsigned ClassOf(char16_t c) {
    if (IsDelimiterChar(c)) return DelimiterBit;
    if (c == u' ') return BlankBit;
    if (c == u'$') return DollarBit;
    if (c == u'_') return UnderscoreBit;
    if (c == u'.') return PointBit;
    if (IsLetterChar(c)) return PlainLetterBit;
    if (IsDigitChar(c)) return DecimalDigitBit;
    return OtherCharBit;
}

constexpr auto AsciiClasses = [] {
    std::array<unsigned char, 128> classes{};
    for (char16_t c = 0; c < classes.size(); ++c) classes[c] = static_cast<unsigned char>(ClassOf(c));
    return classes;
}();

unsigned CharBits(char16_t c) { return c < AsciiClasses.size() ? AsciiClasses[c] : unsigned{OtherCharBit}; }

// The token at the front of the unread text: its length and the bits of its characters.
struct TokenScan {
    std::size_t length = 0;
    unsigned bits = 0;
};

std::size_t DelimiterRun(std::u16string_view ahead) {
    std::size_t length = 0;
    while (length < ahead.size() && (CharBits(ahead[length]) & DelimiterBit) != 0) ++length;
    return length;
}

TokenScan ScanToken(std::u16string_view ahead) {
    TokenScan scan;
    for (; scan.length < ahead.size(); ++scan.length) {
        const unsigned bits = CharBits(ahead[scan.length]);
        if ((bits & DelimiterBit) != 0) break;
        scan.bits |= bits;
    }
    return scan;
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

// Digits alone make a number, and any number text starts with a digit or a
// point, so most tokens skip the full test. A base literal is converted,
// which reports its own errors.
bool IsNumberToken(EngineState& state, std::u16string_view t, unsigned bits) {
    if ((bits & DollarBit) != 0) return IsNumericText(BaseLiteralToDecimal(t, state));
    if ((bits & ~BlankBit) == DecimalDigitBit) return true;
    return IsDigitChar(t[0]) && IsNumericText(t);
}

// Letters, digits and underscores only, with a letter that is not the
// underscore. The blanks among the bits are those trimmed off.
bool IsValidName(unsigned bits) {
    return (bits & (PointBit | DollarBit | OtherCharBit)) == 0 && (bits & PlainLetterBit) != 0;
}

// `t` is the token without its blanks, `bits` those of the whole token.
TokenCheck CheckToken(EngineState& state, const TokenContext& context, std::u16string_view t, unsigned bits) {
    if (t.empty()) return {};
    const unsigned lists = ListsHolding(t);
    const bool custom = InCustomFunctionNames(state, t);
    const bool function = custom || IsBuiltinOrAlias(lists);
    if (context.AssignsAtEnd() && (function || lists != 0)) {
        return Stop(state, (lists & ConstantBit) != 0 ? ConstantAssignment : FunctionAssignment);
    }
    if (!function && context.BracketAround()) return Stop(state, SyntaxError);
    if ((bits & BlankBit) != 0 && t.find(u' ') != std::u16string_view::npos) return Stop(state, InvalidName);
    if (IsNumberToken(state, t, bits)) return {};
    if (!IsValidName(bits)) return Stop(state, InvalidName);
    // The replaced names are exactly the aliases and the constants.
    if ((lists & (AliasBit | ConstantBit)) != 0) {
        if (const std::u16string_view* replacement = Replacements.Find(t)) return {Verdict::Replace, *replacement, custom};
    }
    if (IsDigitChar(t[0])) return Stop(state, UndefinedName);
    return {};
}

// Most tokens have no blanks around them.
std::u16string_view WithoutBlanks(std::u16string_view token, unsigned bits) {
    return (bits & BlankBit) != 0 ? TrimBlanks(token) : token;
}

}  // namespace

std::u16string_view StreamReplacement(std::u16string_view name) {
    const std::u16string_view* replacement = Replacements.Find(name);
    return replacement ? *replacement : std::u16string_view();
}

// A replacement sends the scan back to the first character. Tokens in front
// of the replaced one end at a delimiter that the replacement does not touch,
// so they read and check as before. The replacement text itself mostly passes
// the checks in the place of the token it replaces, and none of its tokens is
// replaced again, so the scan goes on behind it: its names are functions, and
// a call of one was no error for the alias either, while an assignment to the
// alias already stopped the pass; its numbers stand between delimiters that
// make them neither calls nor factors behind a bracket, or a lone number takes
// the place of a constant, which faced the same brackets as a non-function.
// A constant that is also a custom function name faced no brackets, so the
// scan goes on at its replacement.
bool RunTokenPass(EngineState& state, std::u16string& src) {
    SpliceText text(src);
    while (true) {
        text.Advance(DelimiterRun(text.Ahead()));
        if (text.Remaining() == 0) return true;
        const std::u16string_view ahead = text.Ahead();
        const TokenScan token = ScanToken(ahead);
        const std::u16string_view t = WithoutBlanks(ahead.substr(0, token.length), token.bits);
        const TokenCheck check = CheckToken(state, TokenContext{text, ahead, token.length}, t, token.bits);
        if (check.verdict == Verdict::Stop) return false;
        if (check.verdict == Verdict::Replace) {
            text.ReplaceAhead(token.length, check.replacement);
            if (!check.checkReplacement) text.Advance(check.replacement.size());
        } else {
            text.Advance(token.length);
        }
    }
}

}  // namespace tessarondel
