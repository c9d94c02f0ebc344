#include "numbers/base_conversion.h"

#include <gtest/gtest.h>

#include <string>

#include "builtin_call.h"
#include "numbers/base_display.h"
#include "numbers/builtins.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing_builtins::Ints;
using testing_builtins::RecordingSink;
using testing_builtins::ValueOf;
using testing_table::ReadTable;
using testing_table::Row;
using testing_text::Narrow;
using testing_text::U16;

class NumberToBase : public testing::TestWithParam<Row> {};

TEST_P(NumberToBase, WritesTheDigits) {
    const Row& row = GetParam();
    RecordingSink sink;
    EXPECT_EQ(Narrow(NumberToBaseText(ValueOf(row[1]), std::stoi(row[2]), std::stoi(row[3]), sink)), row[4]);
    EXPECT_EQ(sink.reports, Ints(row[5]));
}

INSTANTIATE_TEST_SUITE_P(Rows, NumberToBase, testing::ValuesIn(ReadTable("numbers/base-writing.tsv")),
                         testing_table::RowName);

int BaseIndexOf(const std::string& name) {
    if (name == "bin") return BaseIndexBinary;
    if (name == "oct") return BaseIndexOctal;
    if (name == "dec") return BaseIndexDecimal;
    if (name == "hex") return BaseIndexHexadecimal;
    return std::stoi(name);
}

class ResultInBase : public testing::TestWithParam<Row> {};

TEST_P(ResultInBase, ShowsTheText) {
    const Row& row = GetParam();
    RecordingSink sink;
    const BaseDisplay display =
        ShowResultInBase(ValueOf(row[1]), U16(row[6]), BaseIndexOf(row[2]), row[3] == "yes", sink);
    EXPECT_EQ(display.text ? Narrow(*display.text) : "(none)", row[4]);
    EXPECT_EQ(display.complementBoxVisible, row[2] != "dec");
    EXPECT_EQ(sink.reports, Ints(row[5]));
}

INSTANTIATE_TEST_SUITE_P(Rows, ResultInBase, testing::ValuesIn(ReadTable("numbers/base-display.tsv")),
                         testing_table::RowName);

TEST(BaseLiteralToDecimal, ConvertsLiteralsToFifteenDigitText) {
    for (const Row& row : ReadTable("numbers/base-literals.tsv")) {
        SCOPED_TRACE(row[0]);
        RecordingSink sink;
        EXPECT_EQ(Narrow(BaseLiteralToDecimal(U16(row[0]), sink)), row[1]);
        EXPECT_EQ(sink.reports, Ints(row[2]));
    }
}

TEST(BaseDigitText, WritesOneLowerCaseDigitOrNothing) {
    for (std::int32_t value = -1; value <= 16; ++value) {
        const bool digit = value >= 0 && value < 16;
        EXPECT_EQ(Narrow(BaseDigitText(value)), digit ? std::string(1, "0123456789abcdef"[value]) : "") << value;
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

TEST(BaseTextToDecimal, HonoursASignForDirectCalls) {
    RecordingSink sink;
    EXPECT_EQ(Narrow(BaseTextToDecimal(u"-ff", 16, sink)), "-255");
    EXPECT_EQ(Narrow(BaseTextToDecimal(u"-0", 16, sink)), "0");
    EXPECT_EQ(Narrow(BaseTextToDecimal(u"-", 16, sink)), "0");
    EXPECT_EQ(sink.reports, std::vector<int>{0});
}

TEST(BaseTextToDecimal, OverflowIsAConvertingError) {
    RecordingSink sink;
    EXPECT_EQ(BaseTextToDecimal(std::u16string(1025, u'1'), 2, sink), u"");
    EXPECT_EQ(sink.reports, std::vector<int>{11});
    RecordingSink full;
    EXPECT_EQ(Narrow(BaseTextToDecimal(std::u16string(1024, u'0'), 2, full)), "0");
    EXPECT_TRUE(full.reports.empty());
}

}  // namespace
}  // namespace tessarondel
