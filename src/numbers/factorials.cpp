#include <cstdint>

#include "numbers/error_numbers.h"
#include "numbers/list_arguments.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"

namespace tessarondel {

namespace {

// n and m of perm and comb: m defaults to n; a third argument is an error
// that goes on with m = 0. Nothing when the pair is invalid.
struct Selection {
    double n = 0;
    double m = 0;
    bool valid = false;
};

Selection ReadSelection(const CommaTexts& list, ErrorSink& errors) {
    Selection s;
    s.n = ElementValue(list, 0);
    s.m = OptionalSecond(list, s.n, errors);
    const bool invalid = s.n <= 0 || s.m < 0 || s.n < s.m || Floor(s.n + 0.5) != s.n || Floor(s.m + 0.5) != s.m;
    if (invalid) errors.ReportError(InvalidParametersNumber);
    s.valid = !invalid;
    return s;
}

}  // namespace

double Factorial(double x, ErrorSink& errors) {
    if (x < 0 || Floor(x) != x) {
        errors.ReportError(InvalidParametersNumber);
        return 0;
    }
    if (x == 0) return 1;
    const std::int32_t n = ToInt32(x);
    double product = 1;
    for (std::int32_t i = 1; i <= n; ++i) product = Checked(product * i);
    return product;
}

// Both go through the full factorials, so perm(171,1) overflows.
double Permutations(const CommaTexts& list, ErrorSink& errors) {
    const Selection s = ReadSelection(list, errors);
    if (!s.valid) return 0;
    const double rest = Factorial(s.n - s.m, errors);
    const double all = Factorial(s.n, errors);
    return Divide(all, rest);
}

double Combinations(const CommaTexts& list, ErrorSink& errors) {
    const Selection s = ReadSelection(list, errors);
    if (!s.valid) return 0;
    const double rest = Factorial(s.n - s.m, errors);
    const double chosen = Factorial(s.m, errors);
    const double all = Factorial(s.n, errors);
    return Divide(all, Checked(chosen * rest));
}

}  // namespace tessarondel
