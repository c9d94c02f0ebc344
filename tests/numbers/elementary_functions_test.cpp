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

class ElementaryFunction : public ::testing::TestWithParam<OneArgumentRow> {};

TEST_P(ElementaryFunction, GivesTheSystemsValue) {
    const OneArgumentRow& row = GetParam();
    testing_builtins::ExpectOutcome(Call(row.function, row.x), row.expected, row.match, row.reports);
}

INSTANTIATE_TEST_SUITE_P(Factorial, ElementaryFunction,
                         ::testing::Values(OneArgumentRow{"OfZeroIsOne", "fac", 0, 1, Exact, {}},
                                           OneArgumentRow{"OfFive", "fac", 5, 120, Exact, {}},
                                           OneArgumentRow{
                                               "Of170IsTheLastOne", "fac", 170, 7.25741561530800E+306, Digits, {}},
                                           OneArgumentRow{"Of171Overflows", "fac", 171, 171, Exact, {6}},
                                           OneArgumentRow{"BeyondInt32Overflows", "fac", 3E+9, 3E+9, Exact, {6}},
                                           OneArgumentRow{"OfFractionIsInvalid", "fac", 2.5, 0, Exact, {5}},
                                           OneArgumentRow{"OfNegativeIsInvalid", "fac", -1, 0, Exact, {5}}),
                         testing_builtins::RowName<OneArgumentRow>);

INSTANTIATE_TEST_SUITE_P(WholeParts, ElementaryFunction,
                         ::testing::Values(OneArgumentRow{"IntFloors", "int", -2.5, -3, Exact, {}},
                                           OneArgumentRow{"IntOfPositive", "int", 2.7, 2, Exact, {}},
                                           OneArgumentRow{"FixCutsTowardsZero", "fix", -2.5, -2, Exact, {}},
                                           OneArgumentRow{"FixOfPositive", "fix", 2.7, 2, Exact, {}},
                                           OneArgumentRow{"NotOfZero", "not", 0, -1, Exact, {}},
                                           OneArgumentRow{"NotOfFive", "not", 5, -6, Exact, {}},
                                           OneArgumentRow{"NotRoundsHalfToEven", "not", 2.5, -3, Exact, {}},
                                           OneArgumentRow{
                                               "NotOfLowestInt32", "not", -2147483648.0, 2147483647, Exact, {}},
                                           OneArgumentRow{"NotBeyondInt32Overflows", "not", 1E+10, 1E+10, Exact, {6}},
                                           OneArgumentRow{"SgnNegative", "sgn", -3, -1, Exact, {}},
                                           OneArgumentRow{"SgnZero", "sgn", 0, 0, Exact, {}},
                                           OneArgumentRow{"SgnPositive", "sgn", 0.1, 1, Exact, {}},
                                           OneArgumentRow{"Abs", "abs", -2.5, 2.5, Exact, {}}),
                         testing_builtins::RowName<OneArgumentRow>);

INSTANTIATE_TEST_SUITE_P(PowersAndLogarithms, ElementaryFunction,
                         ::testing::Values(OneArgumentRow{"LnOfOne", "ln", 1, 0, Exact, {}},
                                           OneArgumentRow{"LnOfTen", "ln", 10, 2.30258509299405, Digits, {}},
                                           OneArgumentRow{"LnOfZeroKeepsX", "ln", 0, 0, Exact, {5}},
                                           OneArgumentRow{"LnOfNegativeKeepsX", "ln", -2, -2, Exact, {5}},
                                           OneArgumentRow{"ExpOfZero", "exp", 0, 1, Exact, {}},
                                           OneArgumentRow{"ExpOfOne", "exp", 1, 2.71828182845905, Digits, {}},
                                           OneArgumentRow{"ExpOfLargeNegativeIsZero", "exp", -1000, 0, Exact, {}},
                                           OneArgumentRow{"ExpOverflow", "exp", 1000, 1000, Exact, {6}},
                                           OneArgumentRow{
                                               "ExpJustBelowOverflow", "exp", 709.7, 1.65498402768026E+308, Digits, {}},
                                           OneArgumentRow{"SqrSquares", "sqr", 3, 9, Exact, {}},
                                           OneArgumentRow{"SqrOfNegative", "sqr", -3, 9, Exact, {}},
                                           OneArgumentRow{"SqrOverflow", "sqr", 1E+200, 1E+200, Exact, {6}},
                                           OneArgumentRow{"SqrtIsTheRoot", "sqrt", 9, 3, Exact, {}},
                                           OneArgumentRow{"SqrtOfZero", "sqrt", 0, 0, Exact, {}},
                                           OneArgumentRow{"SqrtOfNegativeKeepsX", "sqrt", -1, -1, Exact, {5}}),
                         testing_builtins::RowName<OneArgumentRow>);

INSTANTIATE_TEST_SUITE_P(
    AngleUnits, ElementaryFunction,
    ::testing::Values(OneArgumentRow{"HalfTurnToRadians", "angtorad", 180, PiValue, Exact, {}},
                      OneArgumentRow{"RightAngleToRadians", "angtorad", 90, PiValue / 2, Digits, {}},
                      OneArgumentRow{"PiValueToAngle", "radtoang", PiValue, 180, Exact, {}},
                      OneArgumentRow{"OneRadianToAngle", "radtoang", 1, 57.2957795130824, Digits, {}},
                      OneArgumentRow{"ToRadiansMultipliesFirst", "angtorad", 1E+308, 1E+308, Exact, {6}},
                      OneArgumentRow{"ToAngleMultipliesFirst", "radtoang", 1E+307, 1E+307, Exact, {6}}),
    testing_builtins::RowName<OneArgumentRow>);

TEST(RandomFunction, DrawsBelowTheMagnitude) {
    for (const double x : {10.0, -10.0, 1E+300, 0.5}) {
        SCOPED_TRACE(x);
        for (int round = 0; round < 200; ++round) {
            const testing_builtins::CallOutcome outcome = Call("rnd", x);
            EXPECT_GE(outcome.value, 0);
            EXPECT_LT(outcome.value, std::abs(x));
            EXPECT_TRUE(outcome.reports.empty());
        }
    }
}

TEST(RandomFunction, OfZeroIsZero) { EXPECT_EQ(Call("rnd", 0).value, 0); }

TEST(RandomFunction, IsASinglePrecisionFraction) {
    // abs(x) * r with x a power of two keeps r's bits: at most 24 of them.
    const double r = Call("rnd", 1).value;
    EXPECT_EQ(r, static_cast<double>(static_cast<float>(r)));
}

}  // namespace
}  // namespace tessarondel
