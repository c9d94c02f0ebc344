#include <cmath>

#include "numbers/error_numbers.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"
#include "numbers/run_failure.h"

namespace tessarondel {

double Divide(double dividend, double divisor) {
    if (divisor == 0) throw RunFailure("division by zero");
    return Checked(dividend / divisor);
}

double Exponential(double x) { return Checked(std::exp(x)); }

double NaturalLog(double x) {
    if (!(x > 0)) throw RunFailure("logarithm of a value not above 0");
    return std::log(x);
}

double SquareRoot(double x) {
    if (x < 0) throw RunFailure("root of a negative value");
    return std::sqrt(x);
}

double NaturalLogOfPositive(double x, ErrorSink& errors) {
    if (x > 0) return std::log(x);
    errors.ReportError(InvalidParametersNumber);
    return x;
}

double SquareRootOfNonNegative(double x, ErrorSink& errors) {
    if (x >= 0) return std::sqrt(x);
    errors.ReportError(InvalidParametersNumber);
    return x;
}

}  // namespace tessarondel
