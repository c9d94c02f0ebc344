#include <cmath>
#include <cstdint>

#include "numbers/builtins.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"

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
