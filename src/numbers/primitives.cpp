#include "numbers/primitives.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "numbers/run_failure.h"

namespace tessarondel {

double Floor(double x) { return std::floor(x); }

double Truncate(double x) { return std::trunc(x); }

double Sign(double x) { return x > 0 ? 1.0 : (x < 0 ? -1.0 : 0.0); }

std::int32_t ToInt32(double x) {
    const double rounded = std::nearbyint(x);  // default rounding mode: ties to even
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throw OverflowFailure();
    return static_cast<std::int32_t>(rounded);
}

std::int32_t FloorToInt32(double x) {
    const double floored = std::floor(x);
    if (!(floored >= -2147483648.0 && floored <= 2147483647.0)) throw OverflowFailure();
    return static_cast<std::int32_t>(floored);
}

double Checked(double result) {
    if (std::isnan(result)) throw RunFailure("no value");
    if (std::isinf(result)) throw OverflowFailure();
    return result;
}

double Power(double x, double y) {
    if (x == 0.0 && y == 0.0) return 1.0;
    if (x == 0.0 && y < 0.0) throw RunFailure("zero to a negative power");
    if (x < 0.0 && std::trunc(y) != y) throw RunFailure("no real power");
    return Checked(std::pow(x, y));
}

double RoundHalfEven(double x, int n) {
    if (n < 0 || n > 22) throw RunFailure("invalid place count");
    // to_chars rounds from the exact binary value, ties to even, like printf.
    std::array<char, 400> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::fixed, n);
    if (written.ec != std::errc()) throw RunFailure("rounding");
    double rounded = 0.0;
    std::from_chars(buffer.data(), written.ptr, rounded);
    return rounded;
}

}  // namespace tessarondel
