#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

#include "numbers/builtins.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"
#include "numbers/run_failure.h"

namespace tessarondel {

namespace {

constexpr double SnapWidth = 1E-07;            // in quarter turns
constexpr double PoleMargin = 1E-06;           // in whole turns
constexpr double FullTurn = 6.28318530717958;  // exactly 2 * PiValue

// The nearest count of quarter turns when x lies within the snapping width
// of it; -1 otherwise. The conversion overflows for counts beyond 32 bits.
std::int32_t SnappedQuarterTurns(double x) {
    const double q = std::abs(FifteenDigitCopy(x) / (PiValue / 2));
    if (!(std::abs(q - Floor(q + 0.5)) < SnapWidth)) return -1;
    return FloorToInt32(q + 0.5);
}

// The angle folded into about one turn around 0, the doubling done first.
double FoldedTurns(double x) {
    const double t = FifteenDigitCopy(x);
    const double w = t - (2 * Floor(t / FullTurn + 0.5)) * PiValue;
    return w / FullTurn;
}

bool IsPolePositive(double x, double turnLimit) {
    const double turns = FoldedTurns(x);
    return !(turns - turnLimit > PoleMargin) && !(turns < 0);
}

}  // namespace

// The value of DisplayNumberText(x) read back, without the detour through the
// display's layout: the same 15 digits, rounded from the exact double.
double FifteenDigitCopy(double x) {
    if (x == 0) return 0.0;  // the text of -0 is "0"
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::scientific, 14);
    double copy = 0;
    const auto parsed = std::from_chars(buffer.data(), written.ptr, copy);
    if (parsed.ec == std::errc()) return copy;
    if (std::abs(x) > 1) throw OverflowFailure();  // 1.79769313486232E+308 lies beyond the range
    return x < 0 ? -0.0 : 0.0;                     // too small for a double: zero, as the reading gives
}

bool IsPiMultiple(double x) {
    const std::int32_t m = SnappedQuarterTurns(x);
    return m >= 0 && m % 2 == 0;
}

bool IsOddHalfPi(double x) {
    const std::int32_t m = SnappedQuarterTurns(x);
    return m >= 0 && m % 2 == 1;
}

bool IsTanPolePositive(double x) { return IsPolePositive(x, 0.25); }

bool IsCotPolePositive(double x) { return IsPolePositive(x, 0.5); }

}  // namespace tessarondel
