#pragma once

#include <string>
#include <string_view>

namespace tessarondel {

// Decimal text of at most 15 significant digits, rounded from the exact binary
// value; ".5" without a leading zero; exponent form from 1E+15 on and when more
// than 15 places after the point would be needed. Non-negative numbers get one
// leading blank (only the variable listing keeps it; everyone else trims).
std::u16string NumberText(double x);

// The text the user sees: as NumberText, but "0.5"/"-0.5" and no leading blank.
std::u16string DisplayNumberText(double x);

// The value of DisplayNumberText(x) read back, without the detour through the
// text: x rounded to 15 significant digits from its exact value.
// OverflowFailure when that rounding leaves the double range.
double FifteenDigitCopy(double x);

// Digits with at most one point and at least one digit, optionally followed by
// e/d (any case), an optional sign and digits. No leading sign.
bool IsNumericText(std::u16string_view t);

// Value of a numeric text (blanks around it and a leading sign allowed, d read
// as e). RunFailure for any other text, OverflowFailure beyond the double range.
double TextToNumber(std::u16string_view t);

// Reads as much of t as forms a number, ignoring blanks; 0 without digits.
// Never fails on bad text; a value beyond the double range is OverflowFailure.
double LeadingNumber(std::u16string_view t);

}  // namespace tessarondel
