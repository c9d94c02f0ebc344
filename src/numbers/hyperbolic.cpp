#include <cmath>

#include "numbers/error_numbers.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"

namespace tessarondel {

double HyperbolicSine(double x) {
    const double down = Exponential(-x);
    const double up = Exponential(x);
    return (up - down) / 2;
}

double HyperbolicCosine(double x) {
    const double down = Exponential(-x);
    const double up = Exponential(x);
    return Checked(up + down) / 2;
}

// Computes both exponentials twice and does not saturate: th(1000) overflows.
double HyperbolicTangent(double x) {
    const double numerator = Exponential(x) - Exponential(-x);
    const double denominator = Checked(Exponential(x) + Exponential(-x));
    return Divide(numerator, denominator);
}

// For large negative x the sum falls to 0 and the logarithm fails.
double InverseHyperbolicSine(double x) {
    const double a = Checked(x * x) + 1;
    const double b = SquareRoot(a);
    return NaturalLog(b + x);
}

// The range test is on abs(x), so x at or below -1 reaches the logarithm and fails there.
double InverseHyperbolicCosine(double x, ErrorSink& errors) {
    if (std::abs(x) < 1) {
        errors.ReportError(InvalidParametersNumber);
        return x;
    }
    const double a = Checked(x * x) - 1;
    const double b = SquareRoot(a);
    return NaturalLog(b + x);
}

// x = 1 divides by zero before the domain test.
double InverseHyperbolicTangent(double x, ErrorSink& errors) {
    if (Divide(1 + x, 1 - x) <= 0) {
        errors.ReportError(InvalidParametersNumber);
        return x;
    }
    return NaturalLog(Divide(1 + x, 1 - x)) / 2;
}

}  // namespace tessarondel
