#include "numbers/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr int SignificantDigits = 15;
constexpr int MaxFixedPlaces = 15;

// x rounded to 15 significant digits from its exact binary value:
// the value is d1.d2d3... * 10^exponent, trailing zeros dropped.
struct RoundedDecimal {
    bool negative = false;
    std::array<char, 24> digits{};
    int count = 0;     // 1 for zero
    int exponent = 0;  // power of ten of the first digit
};

// Digits and exponent of a scientific text "-d.ddde+xx".
RoundedDecimal ReadScientific(const char* first, const char* last) {
    RoundedDecimal result;
    if (*first == '-') {
        result.negative = true;
        ++first;
    }
    for (; *first != 'e'; ++first) {
        if (*first != '.') result.digits[static_cast<std::size_t>(result.count++)] = *first;
    }
    ++first;
    if (*first == '+') ++first;
    std::from_chars(first, last, result.exponent);
    while (result.count > 1 && result.digits[static_cast<std::size_t>(result.count - 1)] == '0') --result.count;
    return result;
}

RoundedDecimal RoundTo15Digits(double x) {
    if (x == 0) {  // -0 formats as 0
        RoundedDecimal zero;
        zero.digits[0] = '0';
        zero.count = 1;
        return zero;
    }
    std::array<char, 64> buffer{};
    char* const first = buffer.data();
    char* const last = first + buffer.size();
    // For a normal double the shortest text that reads back to x lies within
    // half a unit of its last bit, far less than half a unit of the 15th
    // digit; with at most 15 digits it is therefore x rounded to 15 digits.
    // Others are rounded from the exact value.
    if (std::isnormal(x)) {
        const RoundedDecimal shortest =
            ReadScientific(first, std::to_chars(first, last, x, std::chars_format::scientific).ptr);
        if (shortest.count <= SignificantDigits) return shortest;
    }
    return ReadScientific(first,
                          std::to_chars(first, last, x, std::chars_format::scientific, SignificantDigits - 1).ptr);
}

// Writes into a buffer of at most 40 characters; returns the end.
char* WriteFixed(const RoundedDecimal& d, bool zeroBeforePoint, char* out) {
    const int wholeDigits = d.exponent + 1;  // may be 0 or negative
    for (int i = 0; i < wholeDigits; ++i) *out++ = i < d.count ? d.digits[static_cast<std::size_t>(i)] : '0';
    if (wholeDigits <= 0 && zeroBeforePoint) *out++ = '0';
    if (d.count > std::max(wholeDigits, 0)) {
        *out++ = '.';
        for (int i = wholeDigits; i < 0; ++i) *out++ = '0';
        for (int i = std::max(wholeDigits, 0); i < d.count; ++i) *out++ = d.digits[static_cast<std::size_t>(i)];
    }
    return out;
}

char* WriteExponentForm(const RoundedDecimal& d, char* out) {
    *out++ = d.digits[0];
    if (d.count > 1) {
        *out++ = '.';
        for (int i = 1; i < d.count; ++i) *out++ = d.digits[static_cast<std::size_t>(i)];
    }
    *out++ = 'E';
    *out++ = d.exponent < 0 ? '-' : '+';
    const int magnitude = d.exponent < 0 ? -d.exponent : d.exponent;
    if (magnitude < 10) *out++ = '0';
    return std::to_chars(out, out + 4, magnitude).ptr;
}

// The text of x; `lead` is the blank that NumberText puts before a non-negative number.
std::u16string FormatRounded(double x, bool zeroBeforePoint, bool lead) {
    std::array<char, 48> buffer{};
    // Whole numbers below 1E+15 have at most 15 digits: their text is the integer.
    if (x == std::trunc(x) && std::fabs(x) < 1e15) {
        char* out = buffer.data();
        if (lead && !(x < 0)) *out++ = ' ';
        out = std::to_chars(out, buffer.data() + buffer.size(), static_cast<long long>(x)).ptr;
        return std::u16string(buffer.data(), out);
    }
    const RoundedDecimal d = RoundTo15Digits(x);
    const int placesAfterPoint = d.count - 1 - d.exponent;
    const bool fixed = d.exponent < SignificantDigits && placesAfterPoint <= MaxFixedPlaces;
    char* out = buffer.data();
    if (d.negative) {
        *out++ = '-';
    } else if (lead) {
        *out++ = ' ';
    }
    out = fixed ? WriteFixed(d, zeroBeforePoint, out) : WriteExponentForm(d, out);
    return std::u16string(buffer.data(), out);
}

bool IsExponentMark(char16_t c) { return c == u'e' || c == u'E' || c == u'd' || c == u'D'; }

// Length of the digit run starting at i.
std::size_t DigitRun(std::u16string_view t, std::size_t i) {
    std::size_t n = 0;
    while (i + n < t.size() && IsAsciiDigit(t[i + n])) ++n;
    return n;
}

// A number in plain ASCII: optional "-", digits with an optional point, and
// an optional "e" exponent. Too large is the overflow failure; too small is 0.
double ParseDecimal(std::string_view text) {
    double value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec == std::errc()) return value;
    if (parsed.ec != std::errc::result_out_of_range) throw RunFailure("no number");
    // Out of range: decide whether the magnitude is beyond the top or the bottom.
    const std::size_t e = text.find('e');
    const std::string_view mantissa = text.substr(0, e);
    long long exponent = 0;
    if (e != std::string_view::npos) {
        const char* first = text.data() + e + 1 + (text[e + 1] == '+' ? 1 : 0);
        std::from_chars(first, text.data() + text.size(), exponent);
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t lead = mantissa.find_first_of("123456789");
    const long long leadPower =
        lead < point ? static_cast<long long>(point - lead) - 1 : -static_cast<long long>(lead - point);
    if (leadPower + exponent >= 0) throw OverflowFailure();
    return text[0] == '-' ? -0.0 : 0.0;
}

// Plain ASCII form of a numeric text: "d" read as "e", no "+" in front.
std::string ToPlainAscii(std::u16string_view t) {
    std::string out;
    out.reserve(t.size() + 1);
    for (const char16_t c : t) out += IsExponentMark(c) ? 'e' : static_cast<char>(c);
    return out;
}

// The same for short texts, without a heap allocation.
double ParseNumericText(std::u16string_view t, bool negative) {
    std::array<char, 64> buffer{};
    if (t.size() + 1 > buffer.size()) return ParseDecimal((negative ? "-" : "") + ToPlainAscii(t));
    std::size_t n = 0;
    if (negative) buffer[n++] = '-';
    for (const char16_t c : t) buffer[n++] = IsExponentMark(c) ? 'e' : static_cast<char>(c);
    return ParseDecimal(std::string_view(buffer.data(), n));
}

}  // namespace

std::u16string NumberText(double x) { return FormatRounded(x, false, true); }

std::u16string DisplayNumberText(double x) { return FormatRounded(x, true, false); }

bool IsNumericText(std::u16string_view t) {
    std::size_t i = DigitRun(t, 0);
    std::size_t digits = i;
    if (i < t.size() && t[i] == u'.') {
        const std::size_t fraction = DigitRun(t, i + 1);
        digits += fraction;
        i += 1 + fraction;
    }
    if (digits == 0) return false;
    if (i == t.size()) return true;
    if (!IsExponentMark(t[i])) return false;
    ++i;
    if (i < t.size() && (t[i] == u'+' || t[i] == u'-')) ++i;
    const std::size_t exponentDigits = DigitRun(t, i);
    return exponentDigits > 0 && i + exponentDigits == t.size();
}

double TextToNumber(std::u16string_view t) {
    t = TrimBlanks(t);
    bool negative = false;
    if (!t.empty() && (t[0] == u'-' || t[0] == u'+')) {
        negative = t[0] == u'-';
        t.remove_prefix(1);
    }
    if (!IsNumericText(t)) throw RunFailure("text is no number");
    return ParseNumericText(t, negative);
}

double LeadingNumber(std::u16string_view t) {
    std::u16string compact;
    compact.reserve(t.size());
    for (const char16_t c : t) {
        if (c != u' ') compact += c;
    }
    std::u16string_view rest(compact);
    std::string number;
    if (!rest.empty() && (rest[0] == u'-' || rest[0] == u'+')) {
        if (rest[0] == u'-') number += '-';
        rest.remove_prefix(1);
    }
    std::size_t i = DigitRun(rest, 0);
    std::size_t digits = i;
    if (i < rest.size() && rest[i] == u'.') {
        const std::size_t fraction = DigitRun(rest, i + 1);
        digits += fraction;
        i += 1 + fraction;
    }
    if (digits == 0) return 0;
    std::size_t end = i;
    if (i < rest.size() && IsExponentMark(rest[i])) {
        std::size_t j = i + 1;
        if (j < rest.size() && (rest[j] == u'+' || rest[j] == u'-')) ++j;
        const std::size_t exponentDigits = DigitRun(rest, j);
        if (exponentDigits > 0) end = j + exponentDigits;  // only a complete exponent counts
    }
    number += ToPlainAscii(rest.substr(0, end));
    return ParseDecimal(number);
}

}  // namespace tessarondel
