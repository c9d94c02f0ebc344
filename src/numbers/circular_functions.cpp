#include <cmath>

#include "numbers/builtins.h"
#include "numbers/numeric_helpers.h"

namespace tessarondel {

double Sine(double x) { return IsPiMultiple(x) ? 0 : std::sin(x); }

double Cosine(double x) { return IsOddHalfPi(x) ? 0 : std::cos(x); }

double Tangent(double x) {
    if (IsOddHalfPi(x)) return IsTanPolePositive(x) ? BigValue : -BigValue;
    return IsPiMultiple(x) ? 0 : std::tan(x);
}

double Cotangent(double x) {
    if (IsPiMultiple(x)) return IsCotPolePositive(x) ? BigValue : -BigValue;
    return IsOddHalfPi(x) ? 0 : Divide(1, std::tan(x));
}

double Secant(double x) {
    const double cosine = std::cos(x);
    return cosine == 0 ? BigValue : Divide(1, cosine);
}

double Cosecant(double x) {
    const double sine = std::sin(x);
    return sine == 0 ? BigValue : Divide(1, sine);
}

}  // namespace tessarondel
