#include <gtest/gtest.h>

#include <cmath>

#include "builtin_call.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::CallRow;
using testing_builtins::CallWith;
using testing_builtins::RecordingSink;

constexpr double Pi = PiValue;
constexpr double FullHalfPi = 1.5707963267948966;  // 2*atan(1), not PiValue / 2
constexpr auto Digits = testing_builtins::Match::FifteenDigits;

class BuiltinFunction : public ::testing::TestWithParam<CallRow> {};
TEST_P(BuiltinFunction, GivesTheSystemsValue) { testing_builtins::ExpectRow(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    OneArgument, BuiltinFunction,
    ::testing::Values(
        // Angles within 1E-07 quarter turns of the grid, judged on the 15-digit copy,
        // snap to exact zeros and to infinities whose sign the folded angle picks;
        // PiValue folds to the negative half turn.
        CallRow{"SinPi", "sin", {Pi}, 0}, CallRow{"SinMinusPi", "sin", {-Pi}, 0},
        CallRow{"SinInsideSnapWidth", "sin", {1.5E-07}, 0},
        CallRow{"SinOutsideSnapWidth", "sin", {1.6E-07}, 1.6E-07, {}, Digits},
        CallRow{"SinOne", "sin", {1}, 0.841470984807897, {}, Digits}, CallRow{"CosHalfPi", "cos", {Pi / 2}, 0},
        CallRow{"CosOne", "cos", {1}, 0.54030230586814, {}, Digits}, CallRow{"TanPi", "tan", {Pi}, 0},
        CallRow{"TanOne", "tan", {1}, 1.5574077246549, {}, Digits}, CallRow{"TanHalfPi", "tan", {Pi / 2}, BigValue},
        CallRow{"TanMinusHalfPi", "tan", {-Pi / 2}, -BigValue},
        CallRow{"TanThreeHalfPi", "tan", {3 * Pi / 2}, -BigValue},
        CallRow{"TanMinusThreeHalfPi", "tan", {-3 * Pi / 2}, BigValue}, CallRow{"CotHalfPi", "cot", {Pi / 2}, 0},
        CallRow{"CotOne", "cot", {1}, 0.642092615934331, {}, Digits}, CallRow{"CotZero", "cot", {0}, BigValue},
        CallRow{"CotPi", "cot", {Pi}, -BigValue}, CallRow{"HugeAngleOverflows", "sin", {1E+20}, 1E+20, {6}},
        // sec and csc test only for an exact zero of the library value.
        CallRow{"CscZero", "csc", {0}, BigValue}, CallRow{"SecOne", "sec", {1}, 1.85081571768093, {}, Digits},
        CallRow{"CscOne", "csc", {1}, 1.18839510577812, {}, Digits},
        CallRow{"CscOfSubnormalOverflows", "csc", {1E-320}, 1E-320, {6}}, CallRow{"FacOfZero", "fac", {0}, 1},
        CallRow{"FacOf170", "fac", {170}, 7.25741561530800E+306, {}, Digits},
        CallRow{"FacOf171Overflows", "fac", {171}, 171, {6}},
        CallRow{"FacBeyondInt32Overflows", "fac", {3E+9}, 3E+9, {6}}, CallRow{"FacOfFraction", "fac", {2.5}, 0, {5}},
        CallRow{"FacOfNegative", "fac", {-1}, 0, {5}}, CallRow{"IntFloors", "int", {-2.5}, -3},
        CallRow{"FixCutsTowardsZero", "fix", {-2.5}, -2}, CallRow{"Not", "not", {5}, -6},
        CallRow{"NotRoundsHalfToEven", "not", {2.5}, -3}, CallRow{"Sgn", "sgn", {-3}, -1},
        CallRow{"Abs", "abs", {-2.5}, 2.5}, CallRow{"LnOfTen", "ln", {10}, 2.30258509299405, {}, Digits},
        CallRow{"LnOfZeroKeepsX", "ln", {0}, 0, {5}}, CallRow{"ExpOfOne", "exp", {1}, 2.71828182845905, {}, Digits},
        CallRow{"ExpOverflow", "exp", {1000}, 1000, {6}}, CallRow{"SqrOverflow", "sqr", {1E+200}, 1E+200, {6}},
        CallRow{"Sqrt", "sqrt", {9}, 3}, CallRow{"SqrtOfZero", "sqrt", {0}, 0},
        CallRow{"SqrtOfNegativeKeepsX", "sqrt", {-1}, -1, {5}},
        // Multiplied first, then divided.
        CallRow{"HalfTurnToRadians", "angtorad", {180}, Pi}, CallRow{"PiValueToAngle", "radtoang", {Pi}, 180},
        CallRow{"ToRadiansMultipliesFirst", "angtorad", {1E+308}, 1E+308, {6}},
        CallRow{"ToAngleMultipliesFirst", "radtoang", {1E+307}, 1E+307, {6}},
        // The branches at abs(x) = 1 use PiValue; elsewhere the library's atan.
        CallRow{"ArcsinMinusOne", "arcsin", {-1}, -Pi / 2}, CallRow{"ArcsinOutsideKeepsX", "arcsin", {1.5}, 1.5, {5}},
        CallRow{"ArccosOne", "arccos", {1}, 0}, CallRow{"ArccosMinusOne", "arccos", {-1}, Pi},
        CallRow{"ArccosZeroIsFullHalfPi", "arccos", {0}, FullHalfPi},
        CallRow{"ArccosHalf", "arccos", {0.5}, 1.0471975511966, {}, Digits},
        CallRow{"ArccosOutsideKeepsX", "arccos", {-1.5}, -1.5, {5}},
        CallRow{"ArctanOne", "arctan", {1}, 0.785398163397448, {}, Digits},
        CallRow{"ArccotZero", "arccot", {0}, FullHalfPi},
        CallRow{"ArccotOne", "arccot", {1}, 2.35619449019234, {}, Digits},
        CallRow{"ArcsecTwo", "arcsec", {2}, 2.42786827464503, {}, Digits},
        CallRow{"ArcsecMinusTwo", "arcsec", {-2}, -2.42786827464503, {}, Digits},
        CallRow{"ArcsecOne", "arcsec", {1}, 0}, CallRow{"ArcsecMinusOne", "arcsec", {-1}, Pi},
        CallRow{"ArcsecInsideKeepsX", "arcsec", {0.5}, 0.5, {5}},
        CallRow{"ArcsecSquareOverflows", "arcsec", {1E+200}, 1E+200, {6}},
        CallRow{"ArccscTwo", "arccsc", {2}, 0.857071947850131, {}, Digits},
        CallRow{"ArccscMinusTwo", "arccsc", {-2}, -3.99866460143992, {}, Digits},
        CallRow{"ArccscMinusOne", "arccsc", {-1}, -Pi / 2}, CallRow{"ArccscZeroKeepsX", "arccsc", {0}, 0, {5}},
        // From exp, with no guard: each exponential can overflow.
        CallRow{"ShOne", "sh", {1}, 1.1752011936438, {}, Digits},
        CallRow{"ChOne", "ch", {1}, 1.54308063481524, {}, Digits},
        CallRow{"ThOne", "th", {1}, 0.761594155955765, {}, Digits}, CallRow{"ShOverflow", "sh", {710}, 710, {6}},
        CallRow{"ThDoesNotSaturate", "th", {1000}, 1000, {6}},
        CallRow{"ArshOne", "arsh", {1}, 0.881373587019543, {}, Digits},
        CallRow{"ArshLargeNegativeSumFallsToZero", "arsh", {-1E+9}, -1E+9, {99}},
        CallRow{"ArshSquareOverflows", "arsh", {1E+200}, 1E+200, {6}}, CallRow{"ArchOne", "arch", {1}, 0},
        CallRow{"ArchTwo", "arch", {2}, 1.31695789692482, {}, Digits},
        CallRow{"ArchInsideKeepsX", "arch", {0.5}, 0.5, {5}},
        CallRow{"ArchMinusTwoFailsAtTheLogarithm", "arch", {-2}, -2, {99}},
        CallRow{"ArthHalf", "arth", {0.5}, 0.549306144334055, {}, Digits},
        CallRow{"ArthOneDividesByZero", "arth", {1}, 1, {99}}, CallRow{"ArthMinusOneKeepsX", "arth", {-1}, -1, {5}},
        CallRow{"ArthTwoKeepsX", "arth", {2}, 2, {5}}),
    testing_builtins::RowName<CallRow>);

INSTANTIATE_TEST_SUITE_P(
    List, BuiltinFunction,
    ::testing::Values(
        CallRow{"Sum", "sum", {1, 2}, 3}, CallRow{"SumOverflows", "sum", {1E+308, 1E+308}, 1E+308, {6}},
        CallRow{"Prod", "prod", {2, 3, 4}, 24}, CallRow{"Mean", "mean", {1, 2, 3}, 2},
        CallRow{"CovIsTheSampleVariance", "cov", {1, 2, 3}, 1}, CallRow{"CovOfOneIsZero", "cov", {5}, 0},
        CallRow{"CovSquareOverflows", "cov", {1E+200, -1E+200}, -1E+200, {6}},
        CallRow{"Std", "std", {2, 4, 4, 4, 5, 5, 7, 9}, 2.13808993529940, {}, Digits},
        CallRow{"Max", "max", {-5, -2, -9}, -2}, CallRow{"Min", "min", {3, 1, 2}, 1},
        // 0.1 + 0.2 is 0.30000000000000004; its element text is "0.3".
        CallRow{"ElementsAreTheFifteenDigitTexts", "sum", {0.1 + 0.2}, 0.3},
        CallRow{"NameIsComparedLowerCased", "MAX", {1, 9, 3}, 9},
        // Places are floored for the range test and rounded half to even for use.
        CallRow{"ToTwoPlaces", "round", {3.14159, 2}, 3.14}, CallRow{"HalfToEven", "round", {2.5}, 2},
        CallRow{"PlacesOnePointSevenAreTwo", "round", {2.345, 1.7}, 2.35},
        CallRow{"PlacesTwoPointFiveAreTwo", "round", {2.345, 2.5}, 2.35},
        CallRow{"PlacesAbove22", "round", {1, 23}, 0, {5}}, CallRow{"PlacesBelowZero", "round", {1, -0.5}, 0, {5}},
        CallRow{"Places22Point6BecomeTwentyThree", "round", {1, 22.6}, 22.6, {99}},
        CallRow{"ThreeArgumentsRoundToZeroPlaces", "round", {2.7, 1, 5}, 3, {5}},
        CallRow{"FalseTakesThird", "iif", {0, 1, 2}, 2}, CallRow{"TrueTakesSecond", "iif", {-1, 5, 6}, 5},
        CallRow{"TwoArguments", "iif", {1, 2}, 0, {5}},
        // Both go through the full factorials.
        CallRow{"PermOfOneIsFactorial", "perm", {5}, 120}, CallRow{"Perm", "perm", {5, 2}, 20},
        CallRow{"PermMoreChosenThanThere", "perm", {3, 5}, 0, {5}},
        CallRow{"PermNegativeChosen", "perm", {3, -1}, 0, {5}}, CallRow{"PermFraction", "perm", {2.5, 1}, 0, {5}},
        CallRow{"PermFractionChosen", "perm", {5, 1.5}, 0, {5}},
        CallRow{"PermOverflowsThroughFullFactorial", "perm", {171, 1}, 1, {6}},
        CallRow{"PermThreeArgumentsGoOnWithNoneChosen", "perm", {4, 2, 7}, 1, {5}},
        // The count is wrong (5), then the factorial overflows (6): the last report stands.
        CallRow{"PermLastReportDecides", "perm", {171, 1, 1}, 1, {5, 6}}, CallRow{"Comb", "comb", {5, 2}, 10},
        CallRow{"CombOf170", "comb", {170, 1}, 170, {}, Digits},
        CallRow{"CombOverflowsAt171", "comb", {171, 1}, 1, {6}},
        CallRow{"CombOverflowsInTheRestFirst", "comb", {200, 2}, 2, {6}},
        CallRow{"CombZeroIsInvalid", "comb", {0}, 0, {5}}, CallRow{"DefaultBaseTen", "log", {100}, 2},
        CallRow{"BaseTwo", "log", {8, 2}, 3, {}, Digits}, CallRow{"BaseOne", "log", {8, 1}, 0, {5}},
        CallRow{"BaseZero", "log", {8, 0}, 0, {5}}, CallRow{"OfZero", "log", {0}, 0, {5}},
        CallRow{"ThreeArgumentsReportTwice", "log", {8, 2, 3}, 0, {5, 5}},
        // Cuts the number's text; the value never passes through rounding.
        CallRow{"FiveDecimalsByDefault", "short", {3.14159265}, 3.14159},
        CallRow{"CutsNotRounds", "short", {2.999, 1}, 2.9}, CallRow{"BelowOne", "short", {0.123456}, 0.12345},
        CallRow{"WholeNumberHasNoPoint", "short", {5}, 5}, CallRow{"ExponentFormUnchanged", "short", {1E+20, 3}, 1E+20},
        CallRow{"NegativeBelowOneCut", "short", {-0.98765, 2}, -0.98},
        CallRow{"ZeroDecimalsKeepsThePoint", "short", {3.14159, 0}, 3},
        CallRow{"FractionalDecimalsFloored", "short", {3.14159, 2.9}, 3.14},
        CallRow{"FewerDigitsThanDecimals", "short", {1.5, 4}, 1.5},
        CallRow{"NegativeDecimalsCutIntoTheWholePart", "short", {123.456, -2}, 12, {5}},
        CallRow{"NegativeDecimalsWithoutPointGoOn", "short", {5, -3}, 5, {5}},
        CallRow{"NegativeLengthFailsAfterTheReport", "short", {1.5, -5}, -5, {5, 99}},
        // A name outside the tables keeps a single value; several values need a list function.
        CallRow{"OneArgumentFunctionWithSeveralValues", "sin", {3, 4}, 4, {5}},
        CallRow{"UnknownNameWithSeveralValues", "foo", {1, 2.5}, 2.5, {5}},
        CallRow{"NameOfOtherLengthIsNoMatch", "sinh", {1}, 1}),
    testing_builtins::RowName<CallRow>);

TEST(BuiltinFunction, CscAndSecOfPiValueAreLargeNotInfinite) {
    EXPECT_NEAR(CallWith("csc", {Pi}).value, 3.1E+14, 0.1E+14);
    EXPECT_GT(CallWith("sec", {Pi / 2}).value, 1E+14);
}

TEST(BuiltinFunction, RndDrawsASinglePrecisionFractionOfTheMagnitude) {
    for (const double x : {-10.0, 1E+300}) {
        for (int round = 0; round < 100; ++round) {
            const auto outcome = CallWith("rnd", {x});
            EXPECT_GE(outcome.value, 0);
            EXPECT_LT(outcome.value, std::abs(x));
            EXPECT_TRUE(outcome.reports.empty());
        }
    }
    EXPECT_EQ(CallWith("rnd", {0}).value, 0);
    // abs(x) * r with x a power of two keeps r's bits: at most 24 of them.
    const double r = CallWith("rnd", {1}).value;
    EXPECT_EQ(r, static_cast<double>(static_cast<float>(r)));
}

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
