#pragma once

#include <cstdint>

namespace tessarondel {

// The greatest whole number not above x / x cut towards zero / -1, 0 or 1.
double Floor(double x);
double Truncate(double x);
double Sign(double x);

// Nearest whole number, ties to even; OverflowFailure outside the 32-bit range.
std::int32_t ToInt32(double x);
// Floor, then the same range check.
std::int32_t FloorToInt32(double x);

// x to the power y: 0^0 is 1; too large is OverflowFailure; too small is 0;
// no real result (negative base with a fraction, 0 with a negative exponent)
// is RunFailure.
double Power(double x, double y);

// x rounded to n places (0..22), a tie judged on the exact double going to the
// even neighbour. Any other n is RunFailure.
double RoundHalfEven(double x, int n);

// Guards an arithmetic result: infinity is OverflowFailure, NaN is RunFailure.
double Checked(double result);

}  // namespace tessarondel
