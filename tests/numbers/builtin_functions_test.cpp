#include <gtest/gtest.h>

#include <cmath>

#include "builtin_call.h"
#include "numbers/builtins.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing_builtins::CallOutcome;
using testing_builtins::CallWith;
using testing_builtins::RecordingSink;

constexpr double Pi = PiValue;

class BuiltinFunction : public ::testing::TestWithParam<testing_table::Row> {};

TEST_P(BuiltinFunction, GivesTheSystemsValue) {
    const testing_table::Row& row = GetParam();
    const int places = row.Int(6, testing_builtins::RoundingOff);
    const CallOutcome outcome = CallWith(row[1], testing_builtins::Values(row[2]), places);
    const double expected = testing_builtins::ValueOf(row[3]);
    if (row[5] == "~") {
        EXPECT_NEAR(outcome.value, expected, std::abs(expected) * 1E-14);
    } else {
        EXPECT_EQ(outcome.value, expected);
    }
    EXPECT_EQ(outcome.reports, testing_builtins::Ints(row[4]));
}

INSTANTIATE_TEST_SUITE_P(Rows, BuiltinFunction,
                         testing::ValuesIn(testing_table::ReadTable("numbers/builtin-calls.tsv")),
                         testing_table::RowName);

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
