#include <gtest/gtest.h>

#include <cmath>

#include "builtin_call.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::CallRow;
using testing_builtins::CallWith;
using testing_builtins::RecordingSink;

constexpr auto Digits = testing_builtins::Match::FifteenDigits;

class ListFunction : public ::testing::TestWithParam<CallRow> {};
TEST_P(ListFunction, GivesTheSystemsValue) { testing_builtins::ExpectRow(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Statistics, ListFunction,
    ::testing::Values(CallRow{"Sum", "sum", {1, 2}, 3}, CallRow{"SumOverflows", "sum", {1E+308, 1E+308}, 1E+308, {6}},
                      CallRow{"Prod", "prod", {2, 3, 4}, 24}, CallRow{"Mean", "mean", {1, 2, 3}, 2},
                      CallRow{"CovIsTheSampleVariance", "cov", {1, 2, 3}, 1}, CallRow{"CovOfOneIsZero", "cov", {5}, 0},
                      CallRow{"CovSquareOverflows", "cov", {1E+200, -1E+200}, -1E+200, {6}},
                      CallRow{"Std", "std", {2, 4, 4, 4, 5, 5, 7, 9}, 2.13808993529940, {}, Digits},
                      CallRow{"Max", "max", {-5, -2, -9}, -2}, CallRow{"Min", "min", {3, 1, 2}, 1},
                      // 0.1 + 0.2 is 0.30000000000000004; its element text is "0.3".
                      CallRow{"ElementsAreTheFifteenDigitTexts", "sum", {0.1 + 0.2}, 0.3},
                      CallRow{"NameIsComparedLowerCased", "MAX", {1, 9, 3}, 9}),
    testing_builtins::RowName<CallRow>);

// Places are floored for the range test and rounded half to even for use.
INSTANTIATE_TEST_SUITE_P(Round, ListFunction,
                         ::testing::Values(CallRow{"ToTwoPlaces", "round", {3.14159, 2}, 3.14},
                                           CallRow{"HalfToEven", "round", {2.5}, 2},
                                           CallRow{"PlacesOnePointSevenAreTwo", "round", {2.345, 1.7}, 2.35},
                                           CallRow{"PlacesTwoPointFiveAreTwo", "round", {2.345, 2.5}, 2.35},
                                           CallRow{"PlacesAbove22", "round", {1, 23}, 0, {5}},
                                           CallRow{"PlacesBelowZero", "round", {1, -0.5}, 0, {5}},
                                           CallRow{"Places22Point6BecomeTwentyThree", "round", {1, 22.6}, 22.6, {99}},
                                           CallRow{"ThreeArgumentsRoundToZeroPlaces", "round", {2.7, 1, 5}, 3, {5}}),
                         testing_builtins::RowName<CallRow>);

INSTANTIATE_TEST_SUITE_P(Iif, ListFunction,
                         ::testing::Values(CallRow{"FalseTakesThird", "iif", {0, 1, 2}, 2},
                                           CallRow{"TrueTakesSecond", "iif", {-1, 5, 6}, 5},
                                           CallRow{"TwoArguments", "iif", {1, 2}, 0, {5}}),
                         testing_builtins::RowName<CallRow>);

// Both go through the full factorials.
INSTANTIATE_TEST_SUITE_P(
    PermutationsAndCombinations, ListFunction,
    ::testing::Values(CallRow{"PermOfOneIsFactorial", "perm", {5}, 120}, CallRow{"Perm", "perm", {5, 2}, 20},
                      CallRow{"PermMoreChosenThanThere", "perm", {3, 5}, 0, {5}},
                      CallRow{"PermNegativeChosen", "perm", {3, -1}, 0, {5}},
                      CallRow{"PermFraction", "perm", {2.5, 1}, 0, {5}},
                      CallRow{"PermFractionChosen", "perm", {5, 1.5}, 0, {5}},
                      CallRow{"PermOverflowsThroughFullFactorial", "perm", {171, 1}, 1, {6}},
                      CallRow{"PermThreeArgumentsGoOnWithNoneChosen", "perm", {4, 2, 7}, 1, {5}},
                      // The count is wrong (5), then the factorial overflows (6): the last report stands.
                      CallRow{"PermLastReportDecides", "perm", {171, 1, 1}, 1, {5, 6}},
                      CallRow{"Comb", "comb", {5, 2}, 10}, CallRow{"CombOf170", "comb", {170, 1}, 170, {}, Digits},
                      CallRow{"CombOverflowsAt171", "comb", {171, 1}, 1, {6}},
                      CallRow{"CombOverflowsInTheRestFirst", "comb", {200, 2}, 2, {6}},
                      CallRow{"CombZeroIsInvalid", "comb", {0}, 0, {5}}),
    testing_builtins::RowName<CallRow>);

INSTANTIATE_TEST_SUITE_P(Log, ListFunction,
                         ::testing::Values(CallRow{"DefaultBaseTen", "log", {100}, 2},
                                           CallRow{"BaseTwo", "log", {8, 2}, 3, {}, Digits},
                                           CallRow{"BaseOne", "log", {8, 1}, 0, {5}},
                                           CallRow{"BaseZero", "log", {8, 0}, 0, {5}},
                                           CallRow{"OfZero", "log", {0}, 0, {5}},
                                           CallRow{"ThreeArgumentsReportTwice", "log", {8, 2, 3}, 0, {5, 5}}),
                         testing_builtins::RowName<CallRow>);

// Cuts the number's text; the value never passes through rounding.
INSTANTIATE_TEST_SUITE_P(
    Short, ListFunction,
    ::testing::Values(CallRow{"FiveDecimalsByDefault", "short", {3.14159265}, 3.14159},
                      CallRow{"CutsNotRounds", "short", {2.999, 1}, 2.9},
                      CallRow{"BelowOne", "short", {0.123456}, 0.12345},
                      CallRow{"WholeNumberHasNoPoint", "short", {5}, 5},
                      CallRow{"ExponentFormUnchanged", "short", {1E+20, 3}, 1E+20},
                      CallRow{"NegativeBelowOneCut", "short", {-0.98765, 2}, -0.98},
                      CallRow{"ZeroDecimalsKeepsThePoint", "short", {3.14159, 0}, 3},
                      CallRow{"FractionalDecimalsFloored", "short", {3.14159, 2.9}, 3.14},
                      CallRow{"FewerDigitsThanDecimals", "short", {1.5, 4}, 1.5},
                      CallRow{"NegativeDecimalsCutIntoTheWholePart", "short", {123.456, -2}, 12, {5}},
                      CallRow{"NegativeDecimalsWithoutPointGoOn", "short", {5, -3}, 5, {5}},
                      CallRow{"NegativeLengthFailsAfterTheReport", "short", {1.5, -5}, -5, {5, 99}}),
    testing_builtins::RowName<CallRow>);

// A name outside the tables keeps a single value; several values need a list function.
INSTANTIATE_TEST_SUITE_P(Dispatch, ListFunction,
                         ::testing::Values(CallRow{"OneArgumentFunctionWithSeveralValues", "sin", {3, 4}, 4, {5}},
                                           CallRow{"UnknownNameWithSeveralValues", "foo", {1, 2.5}, 2.5, {5}},
                                           CallRow{"NameOfOtherLengthIsNoMatch", "sinh", {1}, 1}),
                         testing_builtins::RowName<CallRow>);

TEST(CallBuiltin, RoundsTheResultForZeroTo22Places) {
    const double sineOfOne = std::sin(1.0);
    const struct {
        int bits;
        double expected;
    } rows[] = {{2, 0.84}, {22, sineOfOne}, {23, sineOfOne}, {-1, sineOfOne}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bits);
        EXPECT_EQ(CallWith("sin", {1}, row.bits).value, row.expected);
    }
    EXPECT_EQ(CallWith("foo", {2.5}, 0).value, 2);  // an unknown name is rounded too
}

TEST(CallBuiltin, RoundingRunsAfterADomainErrorButNotAfterAFailureOrAShortLeaving) {
    const auto reported = CallWith("ln", {-2.567}, 1);
    EXPECT_EQ(reported.reports, std::vector<int>{5});
    EXPECT_EQ(reported.value, -2.6);
    const auto failed = CallWith("exp", {1000.4}, 0);
    EXPECT_EQ(failed.reports, std::vector<int>{6});
    EXPECT_EQ(failed.value, 1000.4);
    const auto left = CallWith("short", {1.26, 2, 3.14159}, 2);  // three arguments: nothing stored
    EXPECT_EQ(left.reports, std::vector<int>{5});
    EXPECT_EQ(left.value, 3.14159);
}

// Lists the engine can hold but CallWith cannot make.
TEST(CallBuiltin, TakesTheElementTextsAndTheFullValue) {
    const struct {
        const char* label;
        const char16_t* name;
        std::vector<std::u16string> texts;
        bool slotted;
        double value;
        double expected;
        std::vector<int> reports;
    } rows[] = {
        {"TextThatIsNoNumberIsUnknownError", u"sum", {u"abc"}, true, 7, 7, {99}},
        {"ElementBeyondTheDoubleRangeIsOverflow", u"max", {u"1", u"1E+999"}, true, 7, 7, {6}},
        {"ListWithoutSlotsIsUnknownError", u"sin", {}, false, 7, 7, {99}},
        // The element text says 0.3; the value is 0.30000000000000004.
        {"OneArgumentFunctionUsesTheFullValue", u"sqr", {u"0.3"}, true, 0.1 + 0.2, (0.1 + 0.2) * (0.1 + 0.2), {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label);
        RecordingSink sink;
        double value = row.value;
        CallBuiltin(row.name, value, row.slotted ? CommaTexts(row.texts) : CommaTexts(), -1, sink);
        EXPECT_EQ(value, row.expected);
        EXPECT_EQ(sink.reports, row.reports);
    }
}

}  // namespace
}  // namespace tessarondel
