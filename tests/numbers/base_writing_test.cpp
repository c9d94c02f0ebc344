#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "ascii_text.h"
#include "builtin_call.h"
#include "numbers/base_conversion.h"
#include "numbers/builtins.h"

namespace tessarondel {
namespace {

using testing_builtins::RecordingSink;
using testing_text::Narrow;

struct BaseRow {
    std::string label;
    double x = 0;
    std::int32_t base = 2;
    std::int32_t decimals = 0;
    std::string expected;
    std::vector<int> reports = {};
};

void PrintTo(const BaseRow& row, std::ostream* out) { *out << row.label; }

// The hexadecimal digits of BigValue (bits 0x7FEFFFFFFFFFFFE2): the mantissa
// 0x1FFFFFFFFFFFE2 shifted left by 971 bits, that is by 3 bits and 242 digits.
std::string BigValueInHex() { return "ffffffffffff10" + std::string(242, '0'); }

class NumberToBase : public ::testing::TestWithParam<BaseRow> {};

TEST_P(NumberToBase, WritesTheDigits) {
    const BaseRow& row = GetParam();
    RecordingSink sink;
    EXPECT_EQ(Narrow(NumberToBaseText(row.x, row.base, row.decimals, sink)), row.expected);
    EXPECT_EQ(sink.reports, row.reports);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberToBase,
    ::testing::Values(
        BaseRow{"HexLowerCase", 255, 16, 0, "ff"}, BaseRow{"HexNegative", -255, 16, 0, "-ff"},
        BaseRow{"Zero", 0, 2, 0, "0"}, BaseRow{"BaseThree", 5, 3, 0, "12"},
        BaseRow{"BeyondExponentForm", 1E+20, 16, 0, "56bc75e2d63100000"},
        BaseRow{"BigValueHas256HexDigits", BigValue, 16, 0, BigValueInHex()},
        // 2^64 - 1 becomes 18446744073709600000 first, the double nearest to that.
        BaseRow{"FifteenDigitsFirst", 18446744073709551615.0, 16, 0, "1000000000000c000"},
        // The fixed text rounds the 15-digit value, ties away from zero.
        BaseRow{"BelowHalfIsZero", 0.4, 2, 0, "0"}, BaseRow{"NegativeZeroHasNoSign", -0.4, 2, 0, "0"},
        BaseRow{"HalfRoundsUp", 0.5, 2, 0, "1"}, BaseRow{"TwoAndAHalfRoundsUp", 2.5, 2, 0, "11"},
        BaseRow{"FifteenDigitValueDecides", 1.4999999999999999, 2, 0, "10"},
        BaseRow{"CarryIntoTheWholePart", 0.999, 2, 2, "1.0"}, BaseRow{"CarryAddsADigit", 9.99, 10, 1, "10.0"},
        // Both digit loops run at least once; the fraction is cut at the decimals.
        BaseRow{"ExactBinaryFraction", 2.625, 2, 3, "10.101"}, BaseRow{"FixedTextCutsFirst", 0.1, 2, 4, "0.0001"},
        BaseRow{"ZeroFractionGivesOneDigit", 255, 16, 2, "ff.0"}, BaseRow{"TinyNumberWithDecimals", 1E-20, 2, 3, "0.0"},
        BaseRow{"NegativeZeroFractionKeepsTheSign", -0.001, 2, 2, "-0.0"},
        BaseRow{"NegativeDecimals", 0.5, 2, -1, "", {11}},
        BaseRow{"FifteenDigitsOfLargestDoubleOverflow", 1.7976931348623157E+308, 16, 0, "", {11}},
        BaseRow{"BaseZeroDividesByZero", 5, 0, 0, "", {11}}),
    testing_builtins::RowName<BaseRow>);

TEST(BaseDigitText, WritesOneLowerCaseDigitOrNothing) {
    const struct {
        std::int32_t value;
        const char* expected;
    } rows[] = {{0, "0"}, {9, "9"}, {10, "a"}, {15, "f"}, {16, ""}, {-1, ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(Narrow(BaseDigitText(row.value)), row.expected);
    }
}

TEST(NumberToBase, EveryBaseRoundTripsThroughTheReader) {
    // Written digits read back to the same whole number in bases 2, 8 and 16.
    for (const std::int32_t base : {2, 8, 16}) {
        for (const double x : {7.0, 123456789.0, 9007199254740992.0}) {
            SCOPED_TRACE(std::to_string(base) + " " + std::to_string(x));
            RecordingSink sink;
            const std::u16string digits = NumberToBaseText(x, base, 0, sink);
            EXPECT_EQ(Narrow(BaseTextToDecimal(digits, base, sink)), Narrow(NumberText(x)).substr(1));
            EXPECT_TRUE(sink.reports.empty());
        }
    }
}

}  // namespace
}  // namespace tessarondel
