#include "numbers/primitives.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "numbers/run_failure.h"

namespace tessarondel {
namespace {

TEST(ToInt32, RoundsHalfToEvenWithinTheInt32Range) {
    const struct {
        double x;
        std::int32_t expected;
    } rows[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-1.5, -2}, {2.4999, 2}, {-2147483648.0, INT32_MIN}, {2147483647.4, INT32_MAX}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.x);
        EXPECT_EQ(ToInt32(row.x), row.expected);
    }
    EXPECT_THROW(ToInt32(2147483647.5), OverflowFailure);
    EXPECT_THROW(ToInt32(-2147483648.6), OverflowFailure);
}

TEST(FloorTruncateSign, FollowTheirDefinitions) {
    EXPECT_EQ(FloorToInt32(-0.5), -1);
    EXPECT_EQ(FloorToInt32(2147483647.9), INT32_MAX);
    EXPECT_THROW(FloorToInt32(-2147483648.5), OverflowFailure);
    EXPECT_EQ(Floor(-2.5), -3);
    EXPECT_EQ(Truncate(-2.5), -2);
    EXPECT_EQ(Sign(-0.0), 0);
    EXPECT_EQ(Sign(-3), -1);
    EXPECT_EQ(Sign(1e-300), 1);
}

TEST(Power, FollowsTheRealPowerRules) {
    EXPECT_EQ(Power(0, 0), 1);
    EXPECT_EQ(Power(2, 10), 1024);
    EXPECT_EQ(Power(-2, 3), -8);
    EXPECT_EQ(Power(10, -400), 0);
    EXPECT_EQ(Power(2, 0.5), std::pow(2.0, 0.5));
    EXPECT_THROW(Power(2, 1024), OverflowFailure);
    EXPECT_THROW(Power(-8, 1.0 / 3), RunFailure);
    EXPECT_THROW(Power(0, -1), RunFailure);
}

TEST(RoundHalfEven, JudgesTiesOnTheExactDoubleForZeroTo22Places) {
    const struct {
        double x;
        int places;
        double expected;
    } rows[] = {{2.5, 0, 2},      {3.5, 0, 4},     {-2.5, 0, -2},          {0.125, 2, 0.12},
                {2.675, 2, 2.67}, {1.005, 2, 1.0}, {123.456, 22, 123.456}, {1e300, 0, 1e300}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.x << " at " << row.places);
        EXPECT_EQ(RoundHalfEven(row.x, row.places), row.expected);
    }
    EXPECT_THROW(RoundHalfEven(1, -1), RunFailure);
    EXPECT_THROW(RoundHalfEven(1, 23), RunFailure);
}

TEST(Checked, RejectsInfinityAndNaN) {
    EXPECT_THROW(Checked(INFINITY), OverflowFailure);
    EXPECT_THROW(Checked(NAN), RunFailure);
    EXPECT_EQ(Checked(1.5), 1.5);
}

}  // namespace
}  // namespace tessarondel
