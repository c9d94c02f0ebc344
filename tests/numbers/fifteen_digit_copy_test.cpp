#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "numbers/builtins.h"
#include "numbers/number_text.h"
#include "numbers/numeric_helpers.h"
#include "numbers/run_failure.h"

namespace tessarondel {
namespace {

// The snapping tests read the 15-digit copy without going through the
// display text; it must be the value that the display text reads back as.
void ExpectSameAsTheDisplayTextRoute(double x) {
    SCOPED_TRACE(x);
    const double viaText = TextToNumber(DisplayNumberText(x));
    const double copy = FifteenDigitCopy(x);
    EXPECT_EQ(std::signbit(copy), std::signbit(viaText));
    EXPECT_EQ(copy, viaText);
}

TEST(FifteenDigitCopy, EqualsTheDisplayTextReadBack) {
    for (const double x : {0.0, -0.0, PiValue, 3 * PiValue / 2, 0.1 + 0.2, 1E-15, 1E-16, 1E+15, 999999999999999.9, -99.999999999999999,
                           9.88131291682493E-14,
                           123456789012345678.0, -BigValue, std::numeric_limits<double>::denorm_min(), -1E-320,
                           std::numeric_limits<double>::min(), 1.4999999999999999, 0.999999999999999944}) {
        ExpectSameAsTheDisplayTextRoute(x);
    }
    std::mt19937_64 generator(20261122);
    for (int compared = 0; compared < 5000;) {
        const double x = std::bit_cast<double>(static_cast<std::uint64_t>(generator()));
        if (!std::isfinite(x) || std::abs(x) >= 1.797693134862315E+308) continue;
        ExpectSameAsTheDisplayTextRoute(x);
        ++compared;
    }
}

// Values with a decimal look, where ties and near-ties at the 15th digit live.
TEST(FifteenDigitCopy, EqualsTheDisplayTextReadBackForDecimalValues) {
    std::mt19937_64 generator(7);
    std::uniform_int_distribution<std::int64_t> digits(1, 999999999999999999);
    std::uniform_int_distribution<int> places(-30, 20);
    for (int i = 0; i < 20000; ++i) {
        const double x = static_cast<double>(digits(generator)) * std::pow(10.0, places(generator) - 17);
        ExpectSameAsTheDisplayTextRoute(i % 2 == 0 ? x : -x);
        ExpectSameAsTheDisplayTextRoute(x / 3);
    }
}

TEST(FifteenDigitCopy, LargestDoublesRoundBeyondTheRange) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_THROW(TextToNumber(DisplayNumberText(largest)), OverflowFailure);
    EXPECT_THROW(FifteenDigitCopy(largest), OverflowFailure);
    EXPECT_THROW(FifteenDigitCopy(-largest), OverflowFailure);
}

}  // namespace
}  // namespace tessarondel
