#include <cmath>

#include "numbers/builtins.h"
#include "numbers/error_numbers.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"

namespace tessarondel {

namespace {

// The full-precision quarter turn; the branches at abs(x) = 1 use PiValue instead.
double HalfPi() { return 2 * std::atan(1.0); }

// atan(x / sqrt(x*x - 1)): the common part of arcsec and arccsc.
double AtanOverRootOfSquareLessOne(double x) { return std::atan(Divide(x, SquareRoot(Checked(x * x) - 1))); }

double AtanOverRootOfOneLessSquare(double x) { return std::atan(Divide(x, SquareRoot(-x * x + 1))); }

bool OutsideUnitRange(double x, ErrorSink& errors) {
    if (std::abs(x) <= 1) return false;
    errors.ReportError(InvalidParametersNumber);
    return true;
}

bool InsideUnitRange(double x, ErrorSink& errors) {
    if (std::abs(x) >= 1) return false;
    errors.ReportError(InvalidParametersNumber);
    return true;
}

}  // namespace

double ArcSine(double x, ErrorSink& errors) {
    if (OutsideUnitRange(x, errors)) return x;
    if (std::abs(x) < 1) return AtanOverRootOfOneLessSquare(x);
    return Sign(x) * PiValue / 2;
}

double ArcCosine(double x, ErrorSink& errors) {
    if (OutsideUnitRange(x, errors)) return x;
    if (std::abs(x) < 1) return AtanOverRootOfOneLessSquare(-x) + HalfPi();
    return x == 1 ? 0 : PiValue;
}

// The plus sign makes the value rise with x through (0, pi).
double ArcCotangent(double x) { return std::atan(x) + HalfPi(); }

double ArcSecant(double x, ErrorSink& errors) {
    if (InsideUnitRange(x, errors)) return x;
    if (std::abs(x) > 1) return AtanOverRootOfSquareLessOne(x) + Sign(x - 1) * HalfPi();
    return x == 1 ? 0 : PiValue;
}

double ArcCosecant(double x, ErrorSink& errors) {
    if (InsideUnitRange(x, errors)) return x;
    if (std::abs(x) > 1) return AtanOverRootOfSquareLessOne(x) + (Sign(x) - 1) * HalfPi();
    return Sign(x) * PiValue / 2;
}

}  // namespace tessarondel
