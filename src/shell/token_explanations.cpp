#include "shell/token_explanations.h"

#include <array>
#include <utility>

namespace tessarondel {
namespace {

constexpr std::u16string_view kComparison =
    u"These operators compare their first argument to their second argument to test the validity of the specified "
    u"relationship.";
constexpr std::u16string_view kDigit = u"Numbers.";
constexpr std::u16string_view kSystemConstant = u"System Constants.";

// The "mod" text runs on into the one of "+", and the one of "'" ends in a
// blank: both are what the user has always read.
constexpr std::array<TokenExplanationEntry, 40> kExplanations{{
    {u"+",
     u"1. The addition operator performs the standard arithmetical addition. 2. The unar plus always results to its "
     u"argument and it is supplied only for symmetry."},
    {u"-",
     u"1. The subtraction operator performs the standard arithmetical subtraction. 2. The unar minus operator changes "
     u"the sign of its numeric argument."},
    {u"*", u"The multiplication perator perform the standard arithmetical multiplication."},
    {u"/", u"The division operator perform the standard arithmetical division."},
    {u"^", u"The power operator returns the value of its argument raised to the power of its argument."},
    {u"div", u"Return the integer part of (N1/N2)."},
    {u"mod",
     u"Return the modulus of (N1/N2).1. The addition operator performs the standard arithmetical addition. 2. The "
     u"unar plus always results to its argument and it is supplied only for symmetry."},
    {u"=", u"Let the value N to the variable named varName."},
    {u"==", kComparison},
    {u"<", kComparison},
    {u"<=", kComparison},
    {u">", kComparison},
    {u">=", kComparison},
    {u"<>", kComparison},
    {u"and", u"This operator performs logical AND on its arguments."},
    {u"or", u"This operator performs logical OR on its arguments."},
    {u"xor", u"This operator performs logical Exclusive OR on its arguments."},
    {u"eqv", u"This operator performs logical Equivalence on its arguments."},
    {u"imp", u"This operator performs logical Exclusive Implication on its arguments."},
    {u"%", u"The percentage operator gives a convenient way to state percentage values in formulas."},
    {u",", u"The comma operator is like the C language comma operator.It returns the last value of list, i.e. Nm."},
    {u"(", u"Left bracket."},
    {u")", u"Right bracket."},
    {u"'",
     u"Single quotation marks, give the note-line of the expression. The part after it will be see as the note. "},
    {u"0", kDigit},
    {u"1", kDigit},
    {u"2", kDigit},
    {u"3", kDigit},
    {u"4", kDigit},
    {u"5", kDigit},
    {u"6", kDigit},
    {u"7", kDigit},
    {u"8", kDigit},
    {u"9", kDigit},
    {u".", u"Radix point."},
    {u"e", u"Scientific notation character."},
    {u"Pi", kSystemConstant},
    {u"E", kSystemConstant},
    {u"Eps", kSystemConstant},
    {u"Inf", kSystemConstant},
}};

}  // namespace

std::u16string_view TokenExplanation(std::u16string_view token) {
    for (const auto& [key, explanation] : kExplanations) {
        if (key == token) return explanation;
    }
    return {};
}

std::span<const TokenExplanationEntry> TokenExplanations() { return kExplanations; }

}  // namespace tessarondel
