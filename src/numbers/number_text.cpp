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
// the value is 0.<digits> * 10^(exponent + 1), trailing zeros dropped.
struct RoundedDecimal {
    bool negative = false;
    std::string digits;  // "0" for zero
    int exponent = 0;    // power of ten of the first digit
};

// Digits and exponent of a scientific text "-d.ddde+xx".
RoundedDecimal ReadScientific(std::string_view text) {
    RoundedDecimal result;
    std::size_t i = 0;
    if (text[i] == '-') {
        result.negative = true;
        ++i;
    }
    const std::size_t e = text.find('e');
    for (; i < e; ++i) {
        if (text[i] != '.') result.digits += text[i];
    }
    std::from_chars(text.data() + e + (text[e + 1] == '+' ? 2 : 1), text.data() + text.size(), result.exponent);
    while (result.digits.size() > 1 && result.digits.back() == '0') result.digits.pop_back();
    return result;
}

RoundedDecimal RoundTo15Digits(double x) {
    if (x == 0) return RoundedDecimal{false, "0", 0};  // -0 formats as 0
    std::array<char, 64> buffer{};
    char* const first = buffer.data();
    // For a normal double the shortest text that reads back to x lies within
    // half a unit of its last bit, far less than half a unit of the 15th
    // digit; with at most 15 digits it is therefore x rounded to 15 digits.
    // Others are rounded from the exact value.
    auto written = std::to_chars(first, first + buffer.size(), x, std::chars_format::scientific);
    if (std::isnormal(x)) {
        RoundedDecimal shortest = ReadScientific(std::string_view(first, static_cast<std::size_t>(written.ptr - first)));
        if (shortest.digits.size() <= SignificantDigits) return shortest;
    }
    written = std::to_chars(first, first + buffer.size(), x, std::chars_format::scientific, SignificantDigits - 1);
    return ReadScientific(std::string_view(first, static_cast<std::size_t>(written.ptr - first)));
}

std::string FixedForm(const RoundedDecimal& d, bool zeroBeforePoint) {
    std::string whole;
    std::string fraction;
    if (d.exponent >= 0) {
        const auto wholeLength = static_cast<std::size_t>(d.exponent) + 1;
        whole = d.digits.substr(0, wholeLength);
        whole.append(wholeLength - whole.size(), '0');
        if (d.digits.size() > wholeLength) fraction = d.digits.substr(wholeLength);
    } else {
        fraction.assign(static_cast<std::size_t>(-d.exponent - 1), '0');
        fraction += d.digits;
    }
    if (whole.empty() && zeroBeforePoint) whole = "0";
    return fraction.empty() ? whole : whole + "." + fraction;
}

std::string ExponentForm(const RoundedDecimal& d) {
    std::string text(1, d.digits[0]);
    if (d.digits.size() > 1) text += "." + d.digits.substr(1);
    text += d.exponent < 0 ? "E-" : "E+";
    const int magnitude = d.exponent < 0 ? -d.exponent : d.exponent;
    if (magnitude < 10) text += '0';
    text += std::to_string(magnitude);
    return text;
}

std::string FormatRounded(double x, bool zeroBeforePoint) {
    const RoundedDecimal d = RoundTo15Digits(x);
    const int placesAfterPoint = static_cast<int>(d.digits.size()) - 1 - d.exponent;
    const bool fixed = d.exponent < SignificantDigits && placesAfterPoint <= MaxFixedPlaces;
    const std::string body = fixed ? FixedForm(d, zeroBeforePoint) : ExponentForm(d);
    return d.negative ? "-" + body : body;
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
    const long long leadPower = lead < point ? static_cast<long long>(point - lead) - 1
                                             : -static_cast<long long>(lead - point);
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

std::u16string NumberText(double x) {
    const std::string text = FormatRounded(x, false);
    return AsciiToU16(text[0] == '-' ? text : " " + text);
}

std::u16string DisplayNumberText(double x) { return AsciiToU16(FormatRounded(x, true)); }

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
