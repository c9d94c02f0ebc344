#include "numbers/base_display.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "ascii_text.h"
#include "builtin_call.h"
#include "numbers/builtins.h"
#include "row_name.h"

namespace tessarondel {
namespace {

using testing_builtins::RecordingSink;
using testing_text::Narrow;
using testing_text::U16;

struct DisplayRow {
    std::string label;
    double lastValue = 0;
    std::string resultText;
    int index = 0;
    bool complement = false;
    std::optional<std::string> expected;
    bool boxVisible = true;
    std::vector<int> reports;
};

void PrintTo(const DisplayRow& row, std::ostream* out) { *out << row.label; }

class ResultInBase : public ::testing::TestWithParam<DisplayRow> {};

TEST_P(ResultInBase, ShowsTheText) {
    const DisplayRow& row = GetParam();
    RecordingSink sink;
    const BaseDisplay display = ShowResultInBase(row.lastValue, U16(row.resultText), row.index, row.complement, sink);
    ASSERT_EQ(display.text.has_value(), row.expected.has_value());
    if (row.expected) {
        EXPECT_EQ(Narrow(*display.text), *row.expected);
    }
    EXPECT_EQ(display.complementBoxVisible, row.boxVisible);
    EXPECT_EQ(sink.reports, row.reports);
}

constexpr int Bin = BaseIndexBinary;
constexpr int Dec = BaseIndexDecimal;
constexpr int Oct = BaseIndexOctal;
constexpr int Hex = BaseIndexHexadecimal;

INSTANTIATE_TEST_SUITE_P(
    PlainForm, ResultInBase,
    ::testing::Values(DisplayRow{"HexUpperCase", 255, "255", Hex, false, "$HFF", true, {}},
                      DisplayRow{"MinusBeforeThePrefix", -255, "-255", Hex, false, "-$HFF", true, {}},
                      DisplayRow{"ZeroBinary", 0, "0", Bin, false, "$B0", true, {}},
                      DisplayRow{"ZeroOctal", 0, "0", Oct, false, "$O0", true, {}},
                      DisplayRow{"ZeroHex", 0, "0", Hex, false, "$H0", true, {}},
                      DisplayRow{"FractionBelowHalf", 0.4, "0.4", Bin, false, "$B0", true, {}},
                      DisplayRow{"HalfRoundsUp", 0.5, "0.5", Bin, false, "$B1", true, {}},
                      DisplayRow{"TwoAndAHalf", 2.5, "2.5", Bin, false, "$B11", true, {}},
                      DisplayRow{"NegativeFractionKeepsMinus", -0.3, "-0.3", Bin, false, "-$B0", true, {}},
                      DisplayRow{"PositiveWithBoxChecked", 5, "5", Bin, true, "$B101", true, {}},
                      DisplayRow{"BelowComplementRange",
                                 -4294967297.0,
                                 "-4294967297",
                                 Bin,
                                 true,
                                 "-$B100000000000000000000000000000001",
                                 true,
                                 {}},
                      DisplayRow{"LargeHex", 1E+20, "1E+20", Hex, false, "$H56BC75E2D63100000", true, {}}),
    testing_builtins::RowName<DisplayRow>);

// Every value whose floor is below 0 down to -2^32 shows as 2^32 - abs(value).
INSTANTIATE_TEST_SUITE_P(
    ComplementForm, ResultInBase,
    ::testing::Values(DisplayRow{"Hex", -255, "-255", Hex, true, "$HFFFFFF01", true, {}},
                      DisplayRow{"Octal", -255, "-255", Oct, true, "$O37777777401", true, {}},
                      DisplayRow{"MinusOneBinary", -1, "-1", Bin, true, "$B" + std::string(32, '1'), true, {}},
                      DisplayRow{"MinusOneAndAHalfRoundsUp", -1.5, "-1.5", Hex, true, "$HFFFFFFFF", true, {}},
                      DisplayRow{"LowestValueGivesZero", -4294967296.0, "-4294967296", Bin, true, "$B0", true, {}},
                      DisplayRow{"HalfAboveLowest", -4294967295.5, "-4294967295.5", Hex, true, "$H1", true, {}},
                      DisplayRow{
                          "SmallNegativeFraction", -0.3, "-0.3", Bin, true, "$B1" + std::string(32, '0'), true, {}}),
    testing_builtins::RowName<DisplayRow>);

INSTANTIATE_TEST_SUITE_P(
    Decimal, ResultInBase,
    ::testing::Values(
        DisplayRow{"ShowsTheEnginesText", 1.0 / 3, "0.333333333333333", Dec, false, "0.333333333333333", false, {}},
        DisplayRow{"HidesTheBoxWhileChecked", -255, "-255", Dec, true, "-255", false, {}},
        DisplayRow{"TrimsBlanks", 1.5, "  1.5 ", Dec, false, "1.5", false, {}},
        DisplayRow{"EmptyShowsZero", 7, "", Dec, false, "0", false, {}},
        DisplayRow{"InfinityText", BigValue, "Inf", Dec, false, "Inf", false, {}}),
    testing_builtins::RowName<DisplayRow>);

INSTANTIATE_TEST_SUITE_P(
    NoNewText, ResultInBase,
    ::testing::Values(DisplayRow{"IndexAboveTheBases", 255, "255", 4, false, std::nullopt, true, {}},
                      DisplayRow{"NegativeIndex", 255, "255", -1, false, std::nullopt, true, {}},
                      DisplayRow{
                          "ConversionFailure", 1.7976931348623157E+308, "Inf", Hex, false, std::nullopt, true, {11}}),
    testing_builtins::RowName<DisplayRow>);

TEST(ResultInBase, InfinityShowsAllDigits) {
    const struct {
        int index;
        std::size_t digits;
    } rows[] = {{Bin, 1024}, {Oct, 342}, {Hex, 256}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.index);
        RecordingSink sink;
        const BaseDisplay display = ShowResultInBase(BigValue, u"Inf", row.index, true, sink);
        ASSERT_TRUE(display.text.has_value());
        EXPECT_EQ(display.text->size(), 2 + row.digits);
        EXPECT_TRUE(sink.reports.empty());
    }
}

}  // namespace
}  // namespace tessarondel
