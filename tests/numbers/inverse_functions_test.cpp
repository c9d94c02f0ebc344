#include <gtest/gtest.h>

#include "builtin_rows.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::Call;
using testing_builtins::Match;
using testing_builtins::OneArgumentRow;

constexpr Match Exact = Match::Exact;
constexpr Match Digits = Match::FifteenDigits;
constexpr double Pi = PiValue;
constexpr double FullHalfPi = 1.5707963267948966;  // 2*atan(1), not PiValue / 2

class InverseFunction : public ::testing::TestWithParam<OneArgumentRow> {};

TEST_P(InverseFunction, GivesTheSystemsValue) {
    const OneArgumentRow& row = GetParam();
    testing_builtins::ExpectOutcome(Call(row.function, row.x), row.expected, row.match, row.reports);
}

// The branches at abs(x) = 1 use PiValue; elsewhere the library's atan.
INSTANTIATE_TEST_SUITE_P(
    Circular, InverseFunction,
    ::testing::Values(OneArgumentRow{"ArcsinOne", "arcsin", 1, Pi / 2, Exact, {}},
                      OneArgumentRow{"ArcsinMinusOne", "arcsin", -1, -Pi / 2, Exact, {}},
                      OneArgumentRow{"ArcsinHalf", "arcsin", 0.5, 0.523598775598299, Digits, {}},
                      OneArgumentRow{"ArcsinZero", "arcsin", 0, 0, Exact, {}},
                      OneArgumentRow{"ArcsinOutsideKeepsX", "arcsin", 1.5, 1.5, Exact, {5}},
                      OneArgumentRow{"ArccosOne", "arccos", 1, 0, Exact, {}},
                      OneArgumentRow{"ArccosMinusOne", "arccos", -1, Pi, Exact, {}},
                      OneArgumentRow{"ArccosZeroIsFullHalfPi", "arccos", 0, FullHalfPi, Exact, {}},
                      OneArgumentRow{"ArccosHalf", "arccos", 0.5, 1.0471975511966, Digits, {}},
                      OneArgumentRow{"ArccosOutsideKeepsX", "arccos", -1.5, -1.5, Exact, {5}},
                      OneArgumentRow{"ArctanOne", "arctan", 1, 0.785398163397448, Digits, {}},
                      OneArgumentRow{"ArccotZero", "arccot", 0, FullHalfPi, Exact, {}},
                      OneArgumentRow{"ArccotOne", "arccot", 1, 2.35619449019234, Digits, {}},
                      OneArgumentRow{"ArccotMinusOne", "arccot", -1, 0.785398163397448, Digits, {}},
                      OneArgumentRow{"ArcsecTwo", "arcsec", 2, 2.42786827464503, Digits, {}},
                      OneArgumentRow{"ArcsecMinusTwo", "arcsec", -2, -2.42786827464503, Digits, {}},
                      OneArgumentRow{"ArcsecOne", "arcsec", 1, 0, Exact, {}},
                      OneArgumentRow{"ArcsecMinusOne", "arcsec", -1, Pi, Exact, {}},
                      OneArgumentRow{"ArcsecInsideKeepsX", "arcsec", 0.5, 0.5, Exact, {5}},
                      OneArgumentRow{"ArcsecSquareOverflows", "arcsec", 1E+200, 1E+200, Exact, {6}},
                      OneArgumentRow{"ArccscTwo", "arccsc", 2, 0.857071947850131, Digits, {}},
                      OneArgumentRow{"ArccscMinusTwo", "arccsc", -2, -3.99866460143992, Digits, {}},
                      OneArgumentRow{"ArccscOne", "arccsc", 1, Pi / 2, Exact, {}},
                      OneArgumentRow{"ArccscMinusOne", "arccsc", -1, -Pi / 2, Exact, {}},
                      OneArgumentRow{"ArccscZeroKeepsX", "arccsc", 0, 0, Exact, {5}}),
    testing_builtins::RowName<OneArgumentRow>);

// From exp, with no guard: each exponential can overflow.
INSTANTIATE_TEST_SUITE_P(Hyperbolic, InverseFunction,
                         ::testing::Values(OneArgumentRow{"ShZero", "sh", 0, 0, Exact, {}},
                                           OneArgumentRow{"ShOne", "sh", 1, 1.1752011936438, Digits, {}},
                                           OneArgumentRow{"ShMinusOne", "sh", -1, -1.1752011936438, Digits, {}},
                                           OneArgumentRow{"ChOne", "ch", 1, 1.54308063481524, Digits, {}},
                                           OneArgumentRow{"ThOne", "th", 1, 0.761594155955765, Digits, {}},
                                           OneArgumentRow{"ThTwentyIsOne", "th", 20, 1, Digits, {}},
                                           OneArgumentRow{"ShOverflow", "sh", 710, 710, Exact, {6}},
                                           OneArgumentRow{"ChOverflowForNegative", "ch", -710, -710, Exact, {6}},
                                           OneArgumentRow{"ThDoesNotSaturate", "th", 1000, 1000, Exact, {6}},
                                           OneArgumentRow{"ThNegativeDoesNotSaturate", "th", -1000, -1000, Exact, {6}}),
                         testing_builtins::RowName<OneArgumentRow>);

INSTANTIATE_TEST_SUITE_P(
    InverseHyperbolic, InverseFunction,
    ::testing::Values(OneArgumentRow{"ArshZero", "arsh", 0, 0, Exact, {}},
                      OneArgumentRow{"ArshOne", "arsh", 1, 0.881373587019543, Digits, {}},
                      OneArgumentRow{"ArshLargeNegativeSumFallsToZero", "arsh", -1E+9, -1E+9, Exact, {99}},
                      OneArgumentRow{"ArshSquareOverflows", "arsh", 1E+200, 1E+200, Exact, {6}},
                      OneArgumentRow{"ArchOne", "arch", 1, 0, Exact, {}},
                      OneArgumentRow{"ArchTwo", "arch", 2, 1.31695789692482, Digits, {}},
                      OneArgumentRow{"ArchInsideKeepsX", "arch", 0.5, 0.5, Exact, {5}},
                      OneArgumentRow{"ArchMinusTwoFailsAtTheLogarithm", "arch", -2, -2, Exact, {99}},
                      OneArgumentRow{"ArchMinusOneFailsAtTheLogarithm", "arch", -1, -1, Exact, {99}},
                      OneArgumentRow{"ArthHalf", "arth", 0.5, 0.549306144334055, Digits, {}},
                      OneArgumentRow{"ArthMinusHalf", "arth", -0.5, -0.549306144334055, Digits, {}},
                      OneArgumentRow{"ArthOneDividesByZero", "arth", 1, 1, Exact, {99}},
                      OneArgumentRow{"ArthMinusOneKeepsX", "arth", -1, -1, Exact, {5}},
                      OneArgumentRow{"ArthTwoKeepsX", "arth", 2, 2, Exact, {5}}),
    testing_builtins::RowName<OneArgumentRow>);

}  // namespace
}  // namespace tessarondel
