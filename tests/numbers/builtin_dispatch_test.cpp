#include <gtest/gtest.h>

#include <cmath>

#include "builtin_call.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::Call;
using testing_builtins::CallWith;
using testing_builtins::RecordingSink;
using testing_text::U16;

TEST(BuiltinDispatch, OneArgumentFunctionWithSeveralValuesIsInvalid) {
    for (const char* name : {"sin", "fac", "sqrt", "not", "rnd", "arccsc"}) {
        SCOPED_TRACE(name);
        const auto outcome = CallWith(name, {3, 4});
        EXPECT_EQ(outcome.reports, std::vector<int>{5});
        EXPECT_EQ(outcome.value, 4);  // nothing stored
    }
}

TEST(BuiltinDispatch, UnknownNameKeepsASingleValueAndRejectsSeveral) {
    const auto single = CallWith("foo", {2.5}, 0);
    EXPECT_TRUE(single.reports.empty());
    EXPECT_EQ(single.value, 2);  // falls through to the rounding
    const auto several = CallWith("foo", {1, 2.5}, 0);
    EXPECT_EQ(several.reports, std::vector<int>{5});
    EXPECT_EQ(several.value, 2.5);
}

TEST(BuiltinDispatch, ListFunctionsTakeTheTextsEvenForOneValue) {
    EXPECT_EQ(CallWith("max", {7}).value, 7);
    EXPECT_EQ(CallWith("sum", {1, 2}).value, 3);
}

TEST(BuiltinDispatch, NameIsComparedLowerCased) {
    EXPECT_EQ(Call("SIN", PiValue).value, 0);
    EXPECT_EQ(CallWith("Max", {1, 9, 3}).value, 9);
    EXPECT_EQ(Call("sinh", 1).value, 1);  // no such function: the value stays
}

TEST(BuiltinDispatch, RoundsTheResultWhenRoundingIsOn) {
    const double sineOfOne = std::sin(1.0);
    const struct {
        int bits;
        double expected;
    } rows[] = {{2, 0.84}, {0, 1}, {5, 0.84147}, {22, sineOfOne}, {-1, sineOfOne}, {23, sineOfOne}, {99, sineOfOne}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bits);
        EXPECT_EQ(Call("sin", 1, row.bits).value, row.expected);
    }
}

TEST(BuiltinDispatch, RoundingRunsAfterADomainErrorButNotAfterAFailure) {
    const auto reported = Call("ln", -2.567, 1);
    EXPECT_EQ(reported.reports, std::vector<int>{5});
    EXPECT_EQ(reported.value, -2.6);
    const auto failed = Call("exp", 1000.4, 0);
    EXPECT_EQ(failed.reports, std::vector<int>{6});
    EXPECT_EQ(failed.value, 1000.4);
}

TEST(BuiltinDispatch, FailureOutsideOverflowIsUnknownError) {
    RecordingSink sink;
    double value = 7;
    CallBuiltin(u"sum", value, CommaTexts({U16("abc")}), -1, sink);
    EXPECT_EQ(sink.reports, std::vector<int>{99});
    EXPECT_EQ(value, 7);
}

TEST(BuiltinDispatch, ElementBeyondTheDoubleRangeIsOverflow) {
    RecordingSink sink;
    double value = 7;
    CallBuiltin(u"max", value, CommaTexts({U16("1"), U16("1E+999")}), -1, sink);
    EXPECT_EQ(sink.reports, std::vector<int>{6});
    EXPECT_EQ(value, 7);
}

TEST(BuiltinDispatch, ListWithoutSlotsIsUnknownError) {
    RecordingSink sink;
    double value = 7;
    CallBuiltin(u"sin", value, CommaTexts(), -1, sink);
    EXPECT_EQ(sink.reports, std::vector<int>{99});
    EXPECT_EQ(value, 7);
}

TEST(BuiltinDispatch, OneArgumentFunctionsUseTheFullPrecisionValue) {
    // The element text says 0.3; the value is 0.30000000000000004.
    RecordingSink sink;
    double value = 0.1 + 0.2;
    CallBuiltin(u"sqr", value, CommaTexts({U16("0.3")}), -1, sink);
    EXPECT_EQ(value, (0.1 + 0.2) * (0.1 + 0.2));
}

}  // namespace
}  // namespace tessarondel
