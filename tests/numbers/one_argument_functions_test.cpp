#include <gtest/gtest.h>

#include <cmath>

#include "builtin_call.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::CallRow;
using testing_builtins::CallWith;

constexpr double Pi = PiValue;
constexpr double FullHalfPi = 1.5707963267948966;  // 2*atan(1), not PiValue / 2
constexpr auto Digits = testing_builtins::Match::FifteenDigits;

class OneArgumentFunction : public ::testing::TestWithParam<CallRow> {};
TEST_P(OneArgumentFunction, GivesTheSystemsValue) { testing_builtins::ExpectRow(GetParam()); }

// Angles within 1E-07 quarter turns of the grid, judged on the 15-digit copy,
// snap to exact zeros and to infinities whose sign the folded angle picks;
// PiValue folds to the negative half turn.
INSTANTIATE_TEST_SUITE_P(
    Circular, OneArgumentFunction,
    ::testing::Values(
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
        CallRow{"CscOfSubnormalOverflows", "csc", {1E-320}, 1E-320, {6}}),
    testing_builtins::RowName<CallRow>);

INSTANTIATE_TEST_SUITE_P(
    Elementary, OneArgumentFunction,
    ::testing::Values(
        CallRow{"FacOfZero", "fac", {0}, 1}, CallRow{"FacOf170", "fac", {170}, 7.25741561530800E+306, {}, Digits},
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
        CallRow{"ToAngleMultipliesFirst", "radtoang", {1E+307}, 1E+307, {6}}),
    testing_builtins::RowName<CallRow>);

// The branches at abs(x) = 1 use PiValue; elsewhere the library's atan.
INSTANTIATE_TEST_SUITE_P(InverseCircular, OneArgumentFunction,
                         ::testing::Values(CallRow{"ArcsinMinusOne", "arcsin", {-1}, -Pi / 2},
                                           CallRow{"ArcsinOutsideKeepsX", "arcsin", {1.5}, 1.5, {5}},
                                           CallRow{"ArccosOne", "arccos", {1}, 0},
                                           CallRow{"ArccosMinusOne", "arccos", {-1}, Pi},
                                           CallRow{"ArccosZeroIsFullHalfPi", "arccos", {0}, FullHalfPi},
                                           CallRow{"ArccosHalf", "arccos", {0.5}, 1.0471975511966, {}, Digits},
                                           CallRow{"ArccosOutsideKeepsX", "arccos", {-1.5}, -1.5, {5}},
                                           CallRow{"ArctanOne", "arctan", {1}, 0.785398163397448, {}, Digits},
                                           CallRow{"ArccotZero", "arccot", {0}, FullHalfPi},
                                           CallRow{"ArccotOne", "arccot", {1}, 2.35619449019234, {}, Digits},
                                           CallRow{"ArcsecTwo", "arcsec", {2}, 2.42786827464503, {}, Digits},
                                           CallRow{"ArcsecMinusTwo", "arcsec", {-2}, -2.42786827464503, {}, Digits},
                                           CallRow{"ArcsecOne", "arcsec", {1}, 0},
                                           CallRow{"ArcsecMinusOne", "arcsec", {-1}, Pi},
                                           CallRow{"ArcsecInsideKeepsX", "arcsec", {0.5}, 0.5, {5}},
                                           CallRow{"ArcsecSquareOverflows", "arcsec", {1E+200}, 1E+200, {6}},
                                           CallRow{"ArccscTwo", "arccsc", {2}, 0.857071947850131, {}, Digits},
                                           CallRow{"ArccscMinusTwo", "arccsc", {-2}, -3.99866460143992, {}, Digits},
                                           CallRow{"ArccscMinusOne", "arccsc", {-1}, -Pi / 2},
                                           CallRow{"ArccscZeroKeepsX", "arccsc", {0}, 0, {5}}),
                         testing_builtins::RowName<CallRow>);

// From exp, with no guard: each exponential can overflow.
INSTANTIATE_TEST_SUITE_P(Hyperbolic, OneArgumentFunction,
                         ::testing::Values(CallRow{"ShOne", "sh", {1}, 1.1752011936438, {}, Digits},
                                           CallRow{"ChOne", "ch", {1}, 1.54308063481524, {}, Digits},
                                           CallRow{"ThOne", "th", {1}, 0.761594155955765, {}, Digits},
                                           CallRow{"ShOverflow", "sh", {710}, 710, {6}},
                                           CallRow{"ThDoesNotSaturate", "th", {1000}, 1000, {6}},
                                           CallRow{"ArshOne", "arsh", {1}, 0.881373587019543, {}, Digits},
                                           CallRow{"ArshLargeNegativeSumFallsToZero", "arsh", {-1E+9}, -1E+9, {99}},
                                           CallRow{"ArshSquareOverflows", "arsh", {1E+200}, 1E+200, {6}},
                                           CallRow{"ArchOne", "arch", {1}, 0},
                                           CallRow{"ArchTwo", "arch", {2}, 1.31695789692482, {}, Digits},
                                           CallRow{"ArchInsideKeepsX", "arch", {0.5}, 0.5, {5}},
                                           CallRow{"ArchMinusTwoFailsAtTheLogarithm", "arch", {-2}, -2, {99}},
                                           CallRow{"ArthHalf", "arth", {0.5}, 0.549306144334055, {}, Digits},
                                           CallRow{"ArthOneDividesByZero", "arth", {1}, 1, {99}},
                                           CallRow{"ArthMinusOneKeepsX", "arth", {-1}, -1, {5}},
                                           CallRow{"ArthTwoKeepsX", "arth", {2}, 2, {5}}),
                         testing_builtins::RowName<CallRow>);

TEST(OneArgumentFunction, CscAndSecOfPiValueAreLargeNotInfinite) {
    EXPECT_NEAR(CallWith("csc", {Pi}).value, 3.1E+14, 0.1E+14);
    EXPECT_GT(CallWith("sec", {Pi / 2}).value, 1E+14);
}

TEST(OneArgumentFunction, RndDrawsASinglePrecisionFractionOfTheMagnitude) {
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

}  // namespace
}  // namespace tessarondel
