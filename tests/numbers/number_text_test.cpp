#include "numbers/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>

#include "numbers/ascii_text.h"
#include "numbers/run_failure.h"

namespace tessarondel {
namespace {

using testing_text::Narrow;
using testing_text::U16;

double FromBits(unsigned long long bits) {
    double x = 0;
    std::memcpy(&x, &bits, sizeof x);
    return x;
}

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
    {"Whole", 42, " 42", "42"},
    {"NegativeWhole", -42, "-42", "-42"},
    {"Half", 0.5, " .5", "0.5"},
    {"NegativeHalf", -0.5, "-.5", "-0.5"},
    {"FifteenDigitWhole", 999999999999999, " 999999999999999", "999999999999999"},
    {"SixteenDigitWhole", 1e15, " 1E+15", "1E+15"},
    {"RoundsUpIntoExponentForm", 999999999999999.9, " 1E+15", "1E+15"},
    {"PowerOfTwoFifty", 1125899906842624, " 1.12589990684262E+15", "1.12589990684262E+15"},
    {"ThirdStaysFixed", 0.333333333333333, " .333333333333333", "0.333333333333333"},
    {"OneThirtiethNeedsSixteenPlaces", 1.0 / 30, " 3.33333333333333E-02", "3.33333333333333E-02"},
    {"FifteenPlaces", 1e-15, " .000000000000001", "0.000000000000001"},
    {"SixteenPlaces", 1e-16, " 1E-16", "1E-16"},
    {"ThirteenPlaces", 1e-13, " .0000000000001", "0.0000000000001"},
    {"TwoDigitsAtFifteenPlaces", 9.9e-14, " .000000000000099", "0.000000000000099"},
    {"SmallFixed", 0.000001234, " .000001234", "0.000001234"},
    {"ExponentWithFraction", -1.5e-16, "-1.5E-16", "-1.5E-16"},
    {"ThreeDigitExponent", 1e100, " 1E+100", "1E+100"},
    {"RoundsFromBinaryValue", 0.1 + 0.2, " .3", "0.3"},
    {"SquareRootOfTwo", std::sqrt(2.0), " 1.4142135623731", "1.4142135623731"},
    {"TieRoundsOnExactBinary", 1.0000000000000049, " 1", "1"},
    {"SystemPi", FromBits(0x400921FB54442D11ULL), " 3.14159265358979", "3.14159265358979"},
    {"BigValue", FromBits(0x7FEFFFFFFFFFFFE2ULL), " 1.79769313486231E+308", "1.79769313486231E+308"},
    {"Largest", 1.7976931348623157e308, " 1.79769313486232E+308", "1.79769313486232E+308"},
    {"Subnormal", 4.9406564584124654e-324, " 4.94065645841247E-324", "4.94065645841247E-324"},
    {"NegativeFraction", -1234.5678, "-1234.5678", "-1234.5678"},
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

const NumericRow kNumericRows[] = {
    {"", false},    {".", false},     {"1.2.3", false},   {"2e", false}, {"2e+", false},
    {"-2", false},  {" 2", false},    {"2 ", false},      {"e5", false}, {"1x", false},
    {".e5", false}, {"1e2.5", false}, {".5", true},       {"5.", true},  {"1d5", true},
    {"2e3", true},  {"2E-3", true},   {"12.5D+07", true}, {"007", true}, {"1.84467440737096E+19", true},
};

TEST(IsNumericText, AcceptsDigitsPointAndExponentOnly) {
    for (const auto& row : kNumericRows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(IsNumericText(U16(row.text)), row.numeric);
    }
}

struct ValueRow {
    const char* text;
    double value;
};

TEST(TextToNumber, ReadsNumericTextsWithBlanksAndSign) {
    const ValueRow rows[] = {
        {"12", 12},
        {" 12.5 ", 12.5},
        {".5", 0.5},
        {"5.", 5},
        {"1d5", 1e5},
        {"2E-3", 2e-3},
        {"-2.5", -2.5},
        {"+7", 7},
        {"1e-400", 0},
        {"3.14159265358979", 3.14159265358979},
        {"1.79769313486231E+308", 1.79769313486231e308},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(TextToNumber(U16(row.text)), row.value);
    }
}

TEST(TextToNumber, FailsOnOtherTexts) {
    for (const char* text : {"", "abc", "1.2.3", "2e", "- 2", "1 2", "\t1"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW(TextToNumber(U16(text)), RunFailure);
    }
}

TEST(TextToNumber, BeyondTheDoubleRangeIsOverflow) {
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
        {"12abc", 12},
        {" 1 2 3 ", 123},
        {".5", 0.5},
        {"-3.5x", -3.5},
        {"2e", 2},
        {"2e+", 2},
        {"2e3x", 2000},
        {"3.33333333333333E-02", 3.33333333333333e-2},
        {"1.18059162071741E+21", 1.18059162071741e21},
        {"1d2", 100},
        {"1.2.3", 1.2},
        {"0.1000", 0.1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(LeadingNumber(U16(row.text)), row.value);
    }
}

TEST(LeadingNumber, BeyondTheDoubleRangeIsOverflow) { EXPECT_THROW(LeadingNumber(u"1e309"), OverflowFailure); }

// The value of x rounded to 15 significant digits from its exact binary value.
double RoundedTo15Digits(double x) {
    std::array<char, 64> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::scientific, 14);
    double rounded = 0;
    std::from_chars(buffer.data(), written.ptr, rounded);
    return rounded;
}

TEST(NumberText, HoldsTheExactlyRoundedDigitsForAnyDouble) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> decimals(-1e6, 1e6);
    for (int i = 0; i < 50000; ++i) {
        std::uint64_t bits = random();
        double x = 0;
        std::memcpy(&x, &bits, sizeof x);
        if (i % 2 == 0) x = std::round(decimals(random) * 1000) / 1000;  // short decimals take the quick way
        if (!std::isfinite(x)) continue;
        SCOPED_TRACE(testing::Message() << std::hexfloat << x);
        ASSERT_EQ(TextToNumber(NumberText(x)), RoundedTo15Digits(x));
    }
}

TEST(NumberText, RoundTripsThroughTextToNumberAtFifteenDigits) {
    for (double x : {1.0 / 3, -2.0 / 7, 123456.789e-200, 6.02214076e23, 1e-15, 1e-16}) {
        SCOPED_TRACE(x);
        const double back = TextToNumber(NumberText(x));
        EXPECT_NEAR(back, x, std::fabs(x) * 1e-14);
    }
}

}  // namespace
}  // namespace tessarondel
