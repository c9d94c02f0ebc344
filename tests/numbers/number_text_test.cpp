#include "numbers/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <string>

#include "numbers/ascii_text.h"
#include "numbers/run_failure.h"

namespace tessarondel {
namespace {

using testing_text::Narrow;
using testing_text::U16;

struct FormatRow {
    const char* name;
    double value;
    const char* numberText;
    const char* displayText;
};

// Fifteen significant digits rounded from the exact double; the fixed form holds while the whole part fits
// in 15 digits and at most 15 places follow the point, leading zeros of the fraction included.
const FormatRow kFormatRows[] = {
    {"Zero", 0.0, " 0", "0"},
    {"NegativeZero", -0.0, " 0", "0"},
    {"Half", 0.5, " .5", "0.5"},
    {"NegativeHalf", -0.5, "-.5", "-0.5"},
    {"FifteenDigitWhole", 999999999999999, " 999999999999999", "999999999999999"},
    {"SixteenDigitWhole", 1e15, " 1E+15", "1E+15"},
    {"RoundsUpIntoExponentForm", 999999999999999.9, " 1E+15", "1E+15"},
    {"OneThirtiethNeedsSixteenPlaces", 1.0 / 30, " 3.33333333333333E-02", "3.33333333333333E-02"},
    {"FifteenPlaces", 1e-15, " .000000000000001", "0.000000000000001"},
    {"SixteenPlaces", 1e-16, " 1E-16", "1E-16"},
    {"ExponentWithFraction", -1.5e-16, "-1.5E-16", "-1.5E-16"},
    {"RoundsFromBinaryValue", 0.1 + 0.2, " .3", "0.3"},
    {"SquareRootOfTwo", std::sqrt(2.0), " 1.4142135623731", "1.4142135623731"},
    {"TieRoundsOnExactBinary", 1.0000000000000049, " 1", "1"},
    {"BigValue", std::bit_cast<double>(0x7FEFFFFFFFFFFFE2ULL), " 1.79769313486231E+308", "1.79769313486231E+308"},
    {"Largest", 1.7976931348623157e308, " 1.79769313486232E+308", "1.79769313486232E+308"},
    {"Subnormal", 4.9406564584124654e-324, " 4.94065645841247E-324", "4.94065645841247E-324"},
};

class NumberTextFormat : public testing::TestWithParam<FormatRow> {};

TEST_P(NumberTextFormat, MatchesBothForms) {
    const FormatRow& row = GetParam();
    EXPECT_EQ(Narrow(NumberText(row.value)), row.numberText);
    EXPECT_EQ(Narrow(DisplayNumberText(row.value)), row.displayText);
}

INSTANTIATE_TEST_SUITE_P(Rows, NumberTextFormat, testing::ValuesIn(kFormatRows),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(NumberTextFormat, IgnoresCommaDecimalLocale) {
    const char* previous = std::setlocale(LC_ALL, nullptr);
    const std::string saved = previous ? previous : "C";
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) GTEST_SKIP() << "de_DE.UTF-8 locale not installed";
    EXPECT_EQ(Narrow(DisplayNumberText(-1234.5)), "-1234.5");
    EXPECT_EQ(TextToNumber(u"2.5"), 2.5);
    std::setlocale(LC_ALL, saved.c_str());
}

struct NumericRow {
    const char* text;
    bool numeric;
};

TEST(IsNumericText, AcceptsDigitsPointAndExponentOnly) {
    const NumericRow rows[] = {
        {"", false},   {".", false},  {"1.2.3", false}, {"2e+", false},     {"-2", false},
        {" 2", false}, {"e5", false}, {".e5", false},   {"1e2.5", false},   {".5", true},
        {"5.", true},  {"1d5", true}, {"2E-3", true},   {"12.5D+07", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(IsNumericText(U16(row.text)), row.numeric);
    }
}

struct ValueRow {
    const char* text;
    double value;
};

// Numeric texts read as strtod reads them: number_text_reference_test.cpp.
TEST(TextToNumber, FailsOnOtherTextsAndOverflowsBeyondTheDoubleRange) {
    for (const char* text : {"", "abc", "1.2.3", "2e", "- 2", "1 2", "\t1"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW(TextToNumber(U16(text)), RunFailure);
    }
    EXPECT_THROW(TextToNumber(u"1e400"), OverflowFailure);
    EXPECT_THROW(TextToNumber(u"1.797693134862316e308"), OverflowFailure);
    EXPECT_THROW(TextToNumber(std::u16string(400, u'9')), OverflowFailure);
    EXPECT_THROW(TextToNumber(u"0.0001d313"), OverflowFailure);
}

TEST(LeadingNumber, ReadsWhatFormsANumber) {
    const ValueRow rows[] = {
        {"", 0},
        {"abc", 0},
        {".", 0},
        {" 1 2 3 ", 123},
        {"-3.5x", -3.5},
        {"2e", 2},
        {"2e+", 2},
        {"2e3x", 2000},
        {"1d2", 100},
        {"1.2.3", 1.2},
        {"3.33333333333333E-02", 3.33333333333333e-2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(LeadingNumber(U16(row.text)), row.value);
    }
    EXPECT_THROW(LeadingNumber(u"1e309"), OverflowFailure);
}

}  // namespace
}  // namespace tessarondel
