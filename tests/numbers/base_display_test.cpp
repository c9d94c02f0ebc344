#include "numbers/base_display.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "ascii_text.h"
#include "builtin_call.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::RecordingSink;
using testing_text::Narrow;
using testing_text::U16;

constexpr int Bin = BaseIndexBinary;
constexpr int Dec = BaseIndexDecimal;
constexpr int Oct = BaseIndexOctal;
constexpr int Hex = BaseIndexHexadecimal;

// Outside the decimal base the complement box stays visible and the engine's text is not used.
struct BaseRow {
    std::string label;
    double lastValue = 0;
    int index = 0;
    bool complement = false;
    std::optional<std::string> expected;
    std::vector<int> reports = {};
};

void PrintTo(const BaseRow& row, std::ostream* out) { *out << row.label; }

class ResultInBase : public ::testing::TestWithParam<BaseRow> {};

TEST_P(ResultInBase, ShowsTheText) {
    const BaseRow& row = GetParam();
    RecordingSink sink;
    const BaseDisplay display = ShowResultInBase(row.lastValue, u"unused", row.index, row.complement, sink);
    ASSERT_EQ(display.text.has_value(), row.expected.has_value());
    if (row.expected) {
        EXPECT_EQ(Narrow(*display.text), *row.expected);
    }
    EXPECT_TRUE(display.complementBoxVisible);
    EXPECT_EQ(sink.reports, row.reports);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ResultInBase,
    ::testing::Values(BaseRow{"HexUpperCase", 255, Hex, false, "$HFF"},
                      BaseRow{"MinusBeforeThePrefix", -255, Hex, false, "-$HFF"},
                      BaseRow{"ZeroBinary", 0, Bin, false, "$B0"}, BaseRow{"ZeroOctal", 0, Oct, false, "$O0"},
                      BaseRow{"HalfRoundsUp", 0.5, Bin, false, "$B1"}, BaseRow{"TwoAndAHalf", 2.5, Bin, false, "$B11"},
                      BaseRow{"NegativeFractionKeepsMinus", -0.3, Bin, false, "-$B0"},
                      BaseRow{"PositiveWithBoxChecked", 5, Bin, true, "$B101"},
                      BaseRow{"BelowComplementRange", -4294967297.0, Bin, true, "-$B100000000000000000000000000000001"},
                      // Every value whose floor is below 0 down to -2^32 shows as 2^32 - abs(value).
                      BaseRow{"Hex", -255, Hex, true, "$HFFFFFF01"},
                      BaseRow{"MinusOneAndAHalfRoundsUp", -1.5, Hex, true, "$HFFFFFFFF"},
                      BaseRow{"SmallNegativeFraction", -0.3, Bin, true, "$B1" + std::string(32, '0')},
                      // BigValue, shown as "Inf", needs no special case: 256 hexadecimal digits.
                      BaseRow{"Infinity", BigValue, Hex, true, "$HFFFFFFFFFFFF10" + std::string(242, '0')},
                      BaseRow{"IndexAboveTheBases", 255, 4, false, std::nullopt},
                      BaseRow{"NegativeIndex", 255, -1, false, std::nullopt},
                      BaseRow{"ConversionFailure", 1.7976931348623157E+308, Hex, false, std::nullopt, {11}}),
    testing_builtins::RowName<BaseRow>);

TEST(ResultInBase, DecimalShowsTheEnginesTrimmedTextAndHidesTheBox) {
    const struct {
        const char* resultText;
        bool complement;
        const char* expected;
    } rows[] = {{"-255", true, "-255"}, {"  1.5 ", false, "1.5"}, {"", false, "0"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.resultText);
        RecordingSink sink;
        const BaseDisplay display = ShowResultInBase(7, U16(row.resultText), Dec, row.complement, sink);
        ASSERT_TRUE(display.text.has_value());
        EXPECT_EQ(Narrow(*display.text), row.expected);
        EXPECT_FALSE(display.complementBoxVisible);
    }
}

}  // namespace
}  // namespace tessarondel
