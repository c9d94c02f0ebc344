#include <gtest/gtest.h>

#include "builtin_rows.h"
#include "numbers/builtins.h"
#include "numbers/numeric_helpers.h"

namespace tessarondel {
namespace {

using testing_builtins::Call;
using testing_builtins::Match;
using testing_builtins::OneArgumentRow;

constexpr double Pi = PiValue;
constexpr Match Exact = Match::Exact;
constexpr Match Digits = Match::FifteenDigits;

class CircularFunction : public ::testing::TestWithParam<OneArgumentRow> {};

TEST_P(CircularFunction, GivesTheSystemsValue) {
    const OneArgumentRow& row = GetParam();
    testing_builtins::ExpectOutcome(Call(row.function, row.x), row.expected, row.match, row.reports);
}

// Angles within 1.570796E-07 of a multiple of a quarter turn, judged on the
// 15-digit copy, snap to exact zeros and infinities.
INSTANTIATE_TEST_SUITE_P(Snapping, CircularFunction,
                         ::testing::Values(OneArgumentRow{"SinPi", "sin", Pi, 0, Exact, {}},
                                           OneArgumentRow{"SinTwoPi", "sin", 2 * Pi, 0, Exact, {}},
                                           OneArgumentRow{"SinMinusPi", "sin", -Pi, 0, Exact, {}},
                                           OneArgumentRow{"SinHundredPi", "sin", 100 * Pi, 0, Exact, {}},
                                           OneArgumentRow{"SinHalfPiIsOne", "sin", Pi / 2, 1, Digits, {}},
                                           OneArgumentRow{"SinInsideSnapWidth", "sin", 1.5E-07, 0, Exact, {}},
                                           OneArgumentRow{"SinOutsideSnapWidth", "sin", 1.6E-07, 1.6E-07, Digits, {}},
                                           OneArgumentRow{"SinTinyAngleLosesItsValue", "sin", 1E-08, 0, Exact, {}},
                                           OneArgumentRow{"SinNearPiWithinWidth", "sin", Pi + 1E-07, 0, Exact, {}},
                                           OneArgumentRow{"SinOne", "sin", 1, 0.841470984807897, Digits, {}},
                                           OneArgumentRow{"CosHalfPi", "cos", Pi / 2, 0, Exact, {}},
                                           OneArgumentRow{"CosThreeHalfPi", "cos", 3 * Pi / 2, 0, Exact, {}},
                                           OneArgumentRow{"CosMinusHalfPi", "cos", -Pi / 2, 0, Exact, {}},
                                           OneArgumentRow{"CosZeroIsNotSnapped", "cos", 0, 1, Exact, {}},
                                           OneArgumentRow{"CosPi", "cos", Pi, -1, Digits, {}},
                                           OneArgumentRow{"CosOne", "cos", 1, 0.54030230586814, Digits, {}},
                                           OneArgumentRow{"TanPi", "tan", Pi, 0, Exact, {}},
                                           OneArgumentRow{"TanTinyAngle", "tan", 1E-08, 0, Exact, {}},
                                           OneArgumentRow{"TanOne", "tan", 1, 1.5574077246549, Digits, {}},
                                           OneArgumentRow{"CotHalfPi", "cot", Pi / 2, 0, Exact, {}},
                                           OneArgumentRow{"CotOne", "cot", 1, 0.642092615934331, Digits, {}}),
                         testing_builtins::RowName<OneArgumentRow>);

// At a pole the folded angle's sign picks the infinity; PiValue folds to the
// negative half turn.
INSTANTIATE_TEST_SUITE_P(Poles, CircularFunction,
                         ::testing::Values(OneArgumentRow{"TanHalfPi", "tan", Pi / 2, BigValue, Exact, {}},
                                           OneArgumentRow{"TanMinusHalfPi", "tan", -Pi / 2, -BigValue, Exact, {}},
                                           OneArgumentRow{"TanThreeHalfPi", "tan", 3 * Pi / 2, -BigValue, Exact, {}},
                                           OneArgumentRow{"TanFiveHalfPi", "tan", 5 * Pi / 2, BigValue, Exact, {}},
                                           OneArgumentRow{
                                               "TanMinusThreeHalfPi", "tan", -3 * Pi / 2, BigValue, Exact, {}},
                                           OneArgumentRow{"CotZero", "cot", 0, BigValue, Exact, {}},
                                           OneArgumentRow{"CotPi", "cot", Pi, -BigValue, Exact, {}},
                                           OneArgumentRow{"CotTwoPi", "cot", 2 * Pi, BigValue, Exact, {}},
                                           OneArgumentRow{"CotMinusPi", "cot", -Pi, -BigValue, Exact, {}},
                                           OneArgumentRow{"CotTinyPositive", "cot", 1E-08, BigValue, Exact, {}},
                                           OneArgumentRow{"CotTinyNegative", "cot", -1E-08, -BigValue, Exact, {}}),
                         testing_builtins::RowName<OneArgumentRow>);

// sec and csc test only for an exact zero of the library value.
INSTANTIATE_TEST_SUITE_P(SecantAndCosecant, CircularFunction,
                         ::testing::Values(OneArgumentRow{"CscZero", "csc", 0, BigValue, Exact, {}},
                                           OneArgumentRow{"SecZero", "sec", 0, 1, Exact, {}},
                                           OneArgumentRow{"SecPi", "sec", Pi, -1, Digits, {}},
                                           OneArgumentRow{"CscHalfPi", "csc", Pi / 2, 1, Digits, {}},
                                           OneArgumentRow{"SecOne", "sec", 1, 1.85081571768093, Digits, {}},
                                           OneArgumentRow{"CscOne", "csc", 1, 1.18839510577812, Digits, {}},
                                           OneArgumentRow{
                                               "CscOfSubnormalOverflows", "csc", 1E-320, 1E-320, Exact, {6}}),
                         testing_builtins::RowName<OneArgumentRow>);

// Once an angle has no fraction of a quarter turn left, the count of quarter
// turns no longer fits 32 bits and the snapping test overflows.
INSTANTIATE_TEST_SUITE_P(HugeAngles, CircularFunction,
                         ::testing::Values(OneArgumentRow{"Sin", "sin", 1E+20, 1E+20, Exact, {6}},
                                           OneArgumentRow{"Cos", "cos", -1E+20, -1E+20, Exact, {6}},
                                           OneArgumentRow{"Tan", "tan", 2E+16, 2E+16, Exact, {6}},
                                           OneArgumentRow{"Cot", "cot", 1E+300, 1E+300, Exact, {6}}),
                         testing_builtins::RowName<OneArgumentRow>);

TEST(CircularFunction, CscAndSecOfPiValueAreLargeNotInfinite) {
    const double csc = Call("csc", Pi).value;
    EXPECT_GT(csc, 3.0E+14);
    EXPECT_LT(csc, 3.2E+14);
    EXPECT_GT(Call("sec", Pi / 2).value, 1E+14);
}

TEST(CircularFunction, ThreeQuarterTurnLandsOnTheGridThroughItsFifteenDigitCopy) {
    const double threeHalfPi = 3 * Pi / 2;
    EXPECT_TRUE(IsOddHalfPi(threeHalfPi));
    EXPECT_FALSE(IsPiMultiple(threeHalfPi));
    EXPECT_TRUE(IsPiMultiple(4 * Pi / 2));
    EXPECT_FALSE(IsPiMultiple(Pi / 4));
    EXPECT_FALSE(IsOddHalfPi(Pi / 4));
}

TEST(CircularFunction, PoleSignsFollowTheFoldedAngle) {
    EXPECT_TRUE(IsTanPolePositive(Pi / 2));
    EXPECT_FALSE(IsTanPolePositive(-Pi / 2));
    EXPECT_TRUE(IsCotPolePositive(0));
    EXPECT_FALSE(IsCotPolePositive(Pi));
}

}  // namespace
}  // namespace tessarondel
