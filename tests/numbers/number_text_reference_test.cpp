// The number texts against independent references from the C library:
// strtod for reading, printf's "%.14E" for the 15 rounded digits.
#include <gtest/gtest.h>

#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "numbers/ascii_text.h"
#include "numbers/builtins.h"
#include "numbers/comma_texts.h"
#include "numbers/number_text.h"
#include "numbers/numeric_helpers.h"
#include "numbers/run_failure.h"

namespace tessarondel {
namespace {

using testing_text::Narrow;
using testing_text::U16;

enum class Outcome { Value, Overflow, NoNumber };

struct Reading {
    Outcome outcome = Outcome::NoNumber;
    std::uint64_t bits = 0;
};

Reading ReadWithTextToNumber(const std::string& text) {
    try {
        return {Outcome::Value, std::bit_cast<std::uint64_t>(TextToNumber(U16(text)))};
    } catch (const OverflowFailure&) {
        return {Outcome::Overflow, 0};
    } catch (const RunFailure&) {
        return {Outcome::NoNumber, 0};
    }
}

// The reading of a numeric text, d read as e.
Reading ReadWithStrtod(const std::string& text) {
    std::string ascii = text;
    for (char& c : ascii) {
        if (c == 'd' || c == 'D') c = 'e';
    }
    errno = 0;
    const double value = std::strtod(ascii.c_str(), nullptr);
    if (errno == ERANGE && std::fabs(value) == HUGE_VAL) return {Outcome::Overflow, 0};
    return {Outcome::Value, std::bit_cast<std::uint64_t>(value)};
}

// How the generated tokens look: significant digits, zeros around them, exponent range.
// Every token is numeric.
struct TokenShape {
    const char* label;
    int count;
    int fewestDigits;
    int mostDigits;
    bool exponent;
    int lowestExponent;
    int highestExponent;
};

const TokenShape kTokenShapes[] = {
    {"ShortPlainTokens", 20000, 1, 8, false, 0, 0},
    {"FifteenToTwentyDigits", 20000, 15, 20, false, 0, 0},
    {"ExponentsAroundTheExactPowers", 10000, 1, 20, true, -30, 30},
    {"ExponentsNearTheTop", 5000, 1, 20, true, 285, 330},
    {"ExponentsNearTheBottom", 5000, 1, 20, true, -345, -290},
};

std::string GenerateToken(const TokenShape& shape, std::mt19937& random) {
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const int significant = shape.fewestDigits + below(shape.mostDigits - shape.fewestDigits + 1);
    std::string digits(static_cast<std::size_t>(below(3)), '0');  // leading zeros
    for (int i = 0; i < significant; ++i) digits += static_cast<char>('0' + below(10));
    digits.append(static_cast<std::size_t>(below(4)), '0');  // trailing zeros
    std::string text(static_cast<std::size_t>(below(4) == 0), ' ');
    text += "  -+"[below(4)];
    if (text.back() == ' ') text.pop_back();
    const int point = below(static_cast<int>(digits.size()) + 2) - 1;  // -1: no point
    text += point < 0 ? digits
                      : digits.substr(0, static_cast<std::size_t>(point)) + '.' +
                            digits.substr(static_cast<std::size_t>(point));
    if (shape.exponent) {
        text += "eEdD"[below(4)];
        const int exponent = shape.lowestExponent + below(shape.highestExponent - shape.lowestExponent + 1);
        text += exponent < 0 ? "-" : (below(2) == 0 ? "+" : "");
        text += std::string(static_cast<std::size_t>(below(2)), '0') + std::to_string(std::abs(exponent));
    }
    if (below(4) == 0) text += ' ';
    return text;
}

class TextToNumberAgainstStrtod : public testing::TestWithParam<TokenShape> {};

TEST_P(TextToNumberAgainstStrtod, GivesTheSameDoubleOrFailure) {
    const TokenShape& shape = GetParam();
    std::mt19937 random(static_cast<unsigned>(shape.count + shape.mostDigits));
    for (int i = 0; i < shape.count; ++i) {
        const std::string text = GenerateToken(shape, random);
        const Reading expected = ReadWithStrtod(text);
        const Reading actual = ReadWithTextToNumber(text);
        ASSERT_EQ(actual.outcome, expected.outcome) << '"' << text << '"';
        ASSERT_EQ(actual.bits, expected.bits) << '"' << text << '"';
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, TextToNumberAgainstStrtod, testing::ValuesIn(kTokenShapes),
                         [](const auto& info) { return std::string(info.param.label); });

// Short texts of the characters a token is made of, mostly not numeric.
TEST(TextToNumberAgainstStrtod, TellsNumbersFromOtherTexts) {
    // Blanks around, a sign, digits with at most one point, an e/d exponent.
    const std::regex numericText(" *[-+]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eEdD][-+]?[0-9]+)? *");
    const std::string alphabet = "0019..eEdD+- x";
    std::mt19937 random(11);
    int numeric = 0;
    for (int i = 0; i < 30000; ++i) {
        std::string text(random() % 8, ' ');
        for (char& c : text) c = alphabet[random() % alphabet.size()];
        const Reading expected = std::regex_match(text, numericText) ? ReadWithStrtod(text) : Reading{};
        const Reading actual = ReadWithTextToNumber(text);
        numeric += expected.outcome == Outcome::Value;
        ASSERT_EQ(actual.outcome, expected.outcome) << '"' << text << '"';
        ASSERT_EQ(actual.bits, expected.bits) << '"' << text << '"';
    }
    EXPECT_GT(numeric, 1000);  // the draw reaches both sides
}

// The text of x from printf's 15 rounded digits: fixed while the whole part
// needs at most 15 digits and at most 15 places follow the point.
std::string ReferenceText(double x, bool display) {
    char scientific[40];
    std::snprintf(scientific, sizeof scientific, "%.14E", std::fabs(x));  // "d.ddddddddddddddE+xx"
    std::string digits = std::string(1, scientific[0]) + std::string(scientific + 2, 14);
    const int exponent = std::atoi(scientific + 17);
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
    const int count = static_cast<int>(digits.size());
    std::string body;
    if (exponent >= 15 || count - 1 - exponent > 15) {
        body = digits.substr(0, 1) + (count > 1 ? "." + digits.substr(1) : "") + "E" + (exponent < 0 ? "-" : "+") +
               (std::abs(exponent) < 10 ? "0" : "") + std::to_string(std::abs(exponent));
    } else if (exponent >= 0) {
        digits.resize(static_cast<std::size_t>(std::max(count, exponent + 1)), '0');
        body = digits.substr(0, static_cast<std::size_t>(exponent + 1));
        if (count > exponent + 1) body += "." + digits.substr(static_cast<std::size_t>(exponent + 1));
    } else {
        body = (display ? "0." : ".") + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    if (x < 0) return "-" + body;
    return display ? body : " " + body;
}

// Both texts against printf; the 15-digit copy and a list's value, which skip the text, against the
// display text read back.
void ExpectBothTexts(double x) {
    ASSERT_EQ(Narrow(NumberText(x)), ReferenceText(x, false)) << std::hexfloat << x;
    ASSERT_EQ(Narrow(DisplayNumberText(x)), ReferenceText(x, true)) << std::hexfloat << x;
    if (std::fabs(x) >= 1.797693134862315E+308) return;  // its text lies beyond the double range
    const auto readBack = std::bit_cast<std::uint64_t>(TextToNumber(DisplayNumberText(x)));
    ASSERT_EQ(std::bit_cast<std::uint64_t>(FifteenDigitCopy(x)), readBack) << std::hexfloat << x;
    CommaTexts list;
    list.AssignValues(std::vector<double>{x});
    ASSERT_EQ(std::bit_cast<std::uint64_t>(list.Value(0)), readBack) << std::hexfloat << x;
}

TEST(FifteenDigitCopy, LargestDoublesRoundBeyondTheRange) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_THROW(TextToNumber(DisplayNumberText(largest)), OverflowFailure);
    EXPECT_THROW(FifteenDigitCopy(largest), OverflowFailure);
    EXPECT_THROW(FifteenDigitCopy(-largest), OverflowFailure);
}

// How the doubles are drawn.
struct DoubleSource {
    const char* label;
    double (*draw)(std::mt19937_64& random, int i);
};

double AnyBitPattern(std::mt19937_64& random, int) {
    const double x = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
    return std::isfinite(x) ? x : 0.5;
}

// k/10, k/1000 and the like: results of everyday sums.
double DecimalLooking(std::mt19937_64& random, int i) {
    const double k = static_cast<double>(static_cast<std::int64_t>(random() % 2000001) - 1000000);
    return k / std::pow(10.0, i % 9) * (i % 3 == 0 ? 0.1 : 1);
}

// Powers of ten and their neighbours, from 1E-30 to 1E+30.
double NearPowerOfTen(std::mt19937_64& random, int i) {
    const double power = std::pow(10.0, i % 61 - 30);
    const int steps = static_cast<int>(random() % 5) - 2;
    double x = power;
    for (int s = 0; s < std::abs(steps); ++s) x = std::nextafter(x, steps < 0 ? 0.0 : 1e300);
    return x;
}

// 16 digits ending in 5: exact ties at the 15th digit (N + .5 and N/100 + .x25
// are doubles exactly), every third one a neighbour just off the tie.
double HalfwayCase(std::mt19937_64& random, int i) {
    const double whole = static_cast<double>(100000000000000 + random() % 900000000000000);
    double x = i % 2 == 0 ? whole + 0.5 : std::floor(whole / 100) + 0.125 * static_cast<double>(1 + 2 * (random() % 4));
    if (i % 3 == 1) x = std::nextafter(x, 0.0);
    if (i % 3 == 2) x = std::nextafter(x, 1e300);
    return i % 4 == 3 ? -x : x;
}

// Every power of two, normal and subnormal, both signs.
double PowerOfTwo(std::mt19937_64&, int i) { return std::ldexp(i % 2 == 0 ? 1.0 : -1.0, i / 2 % 2098 - 1074); }

// Edges and values where a copy could part from its text.
double Listed(std::mt19937_64&, int i) {
    static const double values[] = {0.0,
                                    -0.0,
                                    PiValue,
                                    3 * PiValue / 2,
                                    0.1 + 0.2,
                                    1E-15,
                                    1E-16,
                                    1E+15,
                                    999999999999999.9,
                                    -99.999999999999999,
                                    9.88131291682493E-14,
                                    123456789012345678.0,
                                    -BigValue,
                                    5E-324,
                                    -1E-320,
                                    2.2250738585072014E-308,
                                    1.4999999999999999,
                                    0.999999999999999944,
                                    2.5e-7,
                                    -1.7976931348623e308};
    return values[i % std::size(values)];
}

const DoubleSource kDoubleSources[] = {
    {"Listed", Listed},
    {"AnyBitPattern", AnyBitPattern},
    {"DecimalLooking", DecimalLooking},
    {"NearPowerOfTen", NearPowerOfTen},
    {"HalfwayCase", HalfwayCase},
    {"PowerOfTwo", PowerOfTwo},
};

class NumberTextAgainstPrintf : public testing::TestWithParam<DoubleSource> {};

TEST_P(NumberTextAgainstPrintf, WritesTheSameText) {
    std::mt19937_64 random(2026);
    for (int i = 0; i < 12000 && !HasFatalFailure(); ++i) ExpectBothTexts(GetParam().draw(random, i));
}

INSTANTIATE_TEST_SUITE_P(Sources, NumberTextAgainstPrintf, testing::ValuesIn(kDoubleSources),
                         [](const auto& info) { return std::string(info.param.label); });

}  // namespace
}  // namespace tessarondel
