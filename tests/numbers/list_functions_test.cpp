#include <gtest/gtest.h>

#include "builtin_rows.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::CallWith;
using testing_builtins::ListRow;
using testing_builtins::Match;

constexpr Match Exact = Match::Exact;
constexpr Match Digits = Match::FifteenDigits;

class ListFunction : public ::testing::TestWithParam<ListRow> {};

TEST_P(ListFunction, GivesTheSystemsValue) {
    const ListRow& row = GetParam();
    testing_builtins::ExpectOutcome(CallWith(row.function, row.arguments), row.expected, row.match, row.reports);
}

INSTANTIATE_TEST_SUITE_P(
    Statistics, ListFunction,
    ::testing::Values(
        ListRow{"SumOfTwo", "sum", {1, 2}, 3, Exact, {}}, ListRow{"SumOfOne", "sum", {4}, 4, Exact, {}},
        ListRow{"SumOverflows", "sum", {1E+308, 1E+308}, 1E+308, Exact, {6}},
        ListRow{"ProdOfThree", "prod", {2, 3, 4}, 24, Exact, {}},
        ListRow{"ProdOverflows", "prod", {1E+200, 1E+200}, 1E+200, Exact, {6}},
        ListRow{"MeanOfThree", "mean", {1, 2, 3}, 2, Exact, {}},
        ListRow{"CovIsTheSampleVariance", "cov", {1, 2, 3}, 1, Exact, {}},
        ListRow{"CovOfOneIsZero", "cov", {5}, 0, Exact, {}}, ListRow{"StdOfOneIsZero", "std", {5}, 0, Exact, {}},
        ListRow{"StdIsTheSampleValue", "std", {2, 4, 4, 4, 5, 5, 7, 9}, 2.13808993529940, Digits, {}},
        ListRow{"CovSquareOverflows", "cov", {1E+200, -1E+200}, -1E+200, Exact, {6}},
        ListRow{"MaxOfThree", "max", {1, 3, 2}, 3, Exact, {}}, ListRow{"MaxOfOne", "max", {7}, 7, Exact, {}},
        ListRow{"MaxOfNegatives", "max", {-5, -2, -9}, -2, Exact, {}},
        ListRow{"MinOfThree", "min", {3, 1, 2}, 1, Exact, {}}, ListRow{"MinOfOne", "min", {-7}, -7, Exact, {}}),
    testing_builtins::RowName<ListRow>);

// Places are floored for the range test and rounded half to even for use;
// the rounding judges ties on the exact double.
INSTANTIATE_TEST_SUITE_P(
    Round, ListFunction,
    ::testing::Values(ListRow{"ToTwoPlaces", "round", {3.14159, 2}, 3.14, Exact, {}},
                      ListRow{"HalfToEvenDown", "round", {2.5}, 2, Exact, {}},
                      ListRow{"HalfToEvenUp", "round", {3.5}, 4, Exact, {}},
                      ListRow{"NegativeHalfToEven", "round", {-2.5}, -2, Exact, {}},
                      ListRow{"JudgedOnTheExactDouble", "round", {0.35, 1}, 0.3, Exact, {}},
                      ListRow{"ExactTieToEven", "round", {0.125, 2}, 0.12, Exact, {}},
                      ListRow{"OneHundredthBelowTheTie", "round", {1.005, 2}, 1, Exact, {}},
                      ListRow{"PlacesOnePointSevenAreTwo", "round", {2.345, 1.7}, 2.35, Exact, {}},
                      ListRow{"PlacesTwoPointFiveAreTwo", "round", {2.345, 2.5}, 2.35, Exact, {}},
                      ListRow{"PlacesOnePointFiveAreTwo", "round", {2.345, 1.5}, 2.35, Exact, {}},
                      ListRow{"PlacesZeroPointFourAreZero", "round", {2.5, 0.4}, 2, Exact, {}},
                      ListRow{"PlacesAbove22", "round", {1, 23}, 0, Exact, {5}},
                      ListRow{"PlacesBelowZero", "round", {1, -0.5}, 0, Exact, {5}},
                      ListRow{"Places22Point6BecomeTwentyThree", "round", {1, 22.6}, 22.6, Exact, {99}},
                      ListRow{"ThreeArgumentsRoundToZeroPlaces", "round", {2.7, 1, 5}, 3, Exact, {5}}),
    testing_builtins::RowName<ListRow>);

INSTANTIATE_TEST_SUITE_P(Iif, ListFunction,
                         ::testing::Values(ListRow{"FalseTakesThird", "iif", {0, 1, 2}, 2, Exact, {}},
                                           ListRow{"TrueTakesSecond", "iif", {-1, 5, 6}, 5, Exact, {}},
                                           ListRow{"AnyNonZeroIsTrue", "iif", {0.5, 5, 6}, 5, Exact, {}},
                                           ListRow{"TwoArguments", "iif", {1, 2}, 0, Exact, {5}},
                                           ListRow{"FourArguments", "iif", {1, 2, 3, 4}, 0, Exact, {5}}),
                         testing_builtins::RowName<ListRow>);

// Both go through the full factorials.
INSTANTIATE_TEST_SUITE_P(
    PermutationsAndCombinations, ListFunction,
    ::testing::Values(ListRow{"PermOfOneIsFactorial", "perm", {5}, 120, Exact, {}},
                      ListRow{"PermOfTwo", "perm", {5, 2}, 20, Exact, {}},
                      ListRow{"PermNoneChosen", "perm", {5, 0}, 1, Exact, {}},
                      ListRow{"PermZeroIsInvalid", "perm", {0, 0}, 0, Exact, {5}},
                      ListRow{"PermMoreChosenThanThere", "perm", {3, 5}, 0, Exact, {5}},
                      ListRow{"PermNegativeChosen", "perm", {3, -1}, 0, Exact, {5}},
                      ListRow{"PermFraction", "perm", {2.5, 1}, 0, Exact, {5}},
                      ListRow{"PermFractionChosen", "perm", {5, 1.5}, 0, Exact, {5}},
                      ListRow{"PermOverflowsThroughFullFactorial", "perm", {171, 1}, 1, Exact, {6}},
                      ListRow{"PermThreeArgumentsGoOnWithNoneChosen", "perm", {4, 2, 7}, 1, Exact, {5}},
                      ListRow{"CombOfOneIsOne", "comb", {5}, 1, Exact, {}},
                      ListRow{"CombOfTwo", "comb", {5, 2}, 10, Exact, {}},
                      ListRow{"CombNoneChosen", "comb", {5, 0}, 1, Exact, {}},
                      ListRow{"CombOf170", "comb", {170, 1}, 170, Digits, {}},
                      ListRow{"CombOverflowsAt171", "comb", {171, 1}, 1, Exact, {6}},
                      ListRow{"CombOverflowsWithSmallResult", "comb", {200, 2}, 2, Exact, {6}},
                      ListRow{"CombZeroIsInvalid", "comb", {0}, 0, Exact, {5}}),
    testing_builtins::RowName<ListRow>);

INSTANTIATE_TEST_SUITE_P(Log, ListFunction,
                         ::testing::Values(ListRow{"DefaultBaseTen", "log", {100}, 2, Exact, {}},
                                           ListRow{"BaseTwo", "log", {8, 2}, 3, Digits, {}},
                                           ListRow{"FractionalBase", "log", {0.5, 0.25}, 0.5, Digits, {}},
                                           ListRow{"BaseOne", "log", {8, 1}, 0, Exact, {5}},
                                           ListRow{"BaseZero", "log", {8, 0}, 0, Exact, {5}},
                                           ListRow{"NegativeBase", "log", {8, -2}, 0, Exact, {5}},
                                           ListRow{"OfZero", "log", {0}, 0, Exact, {5}},
                                           ListRow{"OfNegative", "log", {-1, 2}, 0, Exact, {5}},
                                           ListRow{"ThreeArgumentsReportTwice", "log", {8, 2, 3}, 0, Exact, {5, 5}}),
                         testing_builtins::RowName<ListRow>);

// Cuts the number's text; the value never passes through rounding.
INSTANTIATE_TEST_SUITE_P(
    Short, ListFunction,
    ::testing::Values(ListRow{"FiveDecimalsByDefault", "short", {3.14159265}, 3.14159, Exact, {}},
                      ListRow{"CutsNotRounds", "short", {2.999, 1}, 2.9, Exact, {}},
                      ListRow{"BelowOne", "short", {0.123456}, 0.12345, Exact, {}},
                      ListRow{"WholeNumberHasNoPoint", "short", {5}, 5, Exact, {}},
                      ListRow{"ExponentFormUnchanged", "short", {1E+20, 3}, 1E+20, Exact, {}},
                      ListRow{"SmallExponentFormUnchanged", "short", {1.23456789E-20, 2}, 1.23456789E-20, Exact, {}},
                      ListRow{"NegativeWithoutLeadingZero", "short", {-0.5}, -0.5, Exact, {}},
                      ListRow{"NegativeCut", "short", {-3.98765, 2}, -3.98, Exact, {}},
                      ListRow{"NegativeBelowOneCut", "short", {-0.98765, 2}, -0.98, Exact, {}},
                      ListRow{"ZeroDecimalsKeepsThePoint", "short", {3.14159, 0}, 3, Exact, {}},
                      ListRow{"FractionalDecimalsFloored", "short", {3.14159, 2.9}, 3.14, Exact, {}},
                      ListRow{"FewerDigitsThanDecimals", "short", {1.5, 4}, 1.5, Exact, {}},
                      ListRow{"DecimalsCappedAtTwenty", "short", {0.333333333333333, 25}, 0.333333333333333, Exact, {}},
                      ListRow{"NegativeDecimalsCutIntoTheWholePart", "short", {123.456, -2}, 12, Exact, {5}},
                      ListRow{"NegativeDecimalsWithoutPointGoOn", "short", {5, -3}, 5, Exact, {5}},
                      ListRow{"NegativeLengthFailsAfterTheReport", "short", {1.5, -5}, -5, Exact, {5, 99}}),
    testing_builtins::RowName<ListRow>);

TEST(ListFunction, ElementsAreTheFifteenDigitTexts) {
    // 0.1 + 0.2 is 0.30000000000000004; its element text is "0.3".
    EXPECT_EQ(CallWith("sum", {0.1 + 0.2}).value, 0.3);
    EXPECT_EQ(CallWith("max", {1.0000000000000002, 1}).value, 1);
}

TEST(ListFunction, ShortWithThreeArgumentsLeavesAtOnce) {
    // Nothing is stored, and the rounding of the result does not run either.
    const auto outcome = CallWith("short", {1.26, 2, 3.14159}, 2);
    EXPECT_EQ(outcome.value, 3.14159);
    EXPECT_EQ(outcome.reports, std::vector<int>{5});
}

TEST(ListFunction, LastReportDecidesTheNumber) {
    // The count is wrong (5), then the factorial of 171 overflows (6).
    const auto outcome = CallWith("perm", {171, 1, 1});
    EXPECT_EQ(outcome.reports, (std::vector<int>{5, 6}));
    EXPECT_EQ(outcome.value, 1);
}

}  // namespace
}  // namespace tessarondel
