#include <algorithm>
#include <cmath>
#include <cstddef>
#include <exception>
#include <string>

#include "numbers/base_conversion.h"
#include "numbers/error_numbers.h"
#include "numbers/number_text.h"
#include "numbers/numeric_helpers.h"
#include "numbers/primitives.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr std::u16string_view DigitCharacters = u"0123456789abcdef";

// A non-negative number text ("2.5", ".5", "1E+20") as its digits and the
// count of them that stand before the point (negative or beyond the digits
// when the exponent moves the point out of them).
struct DecimalDigits {
    std::u16string digits;
    long pointPosition = 0;
};

DecimalDigits ReadDecimalDigits(std::u16string_view text) {
    const std::size_t exponentMark = text.find(u'E');
    const std::u16string_view mantissa = text.substr(0, exponentMark);
    const std::size_t point = std::min(mantissa.find(u'.'), mantissa.size());
    DecimalDigits d;
    d.digits = std::u16string(mantissa.substr(0, point));
    if (point < mantissa.size()) d.digits += mantissa.substr(point + 1);
    d.pointPosition = static_cast<long>(point);
    if (exponentMark != std::u16string_view::npos)
        d.pointPosition += static_cast<long>(LeadingNumber(text.substr(exponentMark + 1)));
    return d;
}

// Adds one unit in the last place of a digit text; a carry out in front adds a digit.
void IncrementDigits(std::u16string& digits) {
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it != u'9') {
            ++*it;
            return;
        }
        *it = u'0';
    }
    digits.insert(digits.begin(), u'1');
}

// The number of a non-negative number text in fixed notation with exactly
// `decimals` places and a point in any case, like the format picture "0."
// followed by that many zeros: rounded on the decimal digits, ties away from
// zero, never in exponent form.
std::u16string FixedText(std::u16string_view numberText, std::int32_t decimals) {
    if (decimals < 0) throw RunFailure("negative decimal count");
    const DecimalDigits d = ReadDecimalDigits(numberText);
    const auto length = static_cast<long>(d.digits.size());
    std::u16string whole;
    std::u16string fraction;
    if (d.pointPosition >= length) {
        whole = d.digits + std::u16string(static_cast<std::size_t>(d.pointPosition - length), u'0');
    } else if (d.pointPosition <= 0) {
        fraction = std::u16string(static_cast<std::size_t>(-d.pointPosition), u'0') + d.digits;
    } else {
        whole = d.digits.substr(0, static_cast<std::size_t>(d.pointPosition));
        fraction = d.digits.substr(static_cast<std::size_t>(d.pointPosition));
    }
    const auto places = static_cast<std::size_t>(decimals);
    const bool roundUp = fraction.size() > places && fraction[places] >= u'5';
    fraction.resize(places, u'0');
    std::u16string all = whole + fraction;
    if (roundUp) IncrementDigits(all);
    std::u16string rounded = all.substr(0, all.size() - places);
    const std::size_t firstNonZero = rounded.find_first_not_of(u'0');
    rounded = firstNonZero == std::u16string::npos ? u"0" : rounded.substr(firstNonZero);
    return rounded + u"." + all.substr(all.size() - places);
}

// Long division of a whole number on doubles; at least one digit.
std::u16string WholeDigits(double w, std::int32_t base) {
    std::u16string digits;
    do {
        const double quotient = Truncate(Divide(w, base));
        digits += BaseDigitText(ToInt32(Checked(w - Checked(quotient * base))));
        w = quotient;
    } while (w != 0);
    std::reverse(digits.begin(), digits.end());
    return digits;
}

// Digits of a fraction, cut (not rounded) at `decimals`; at least one digit.
std::u16string FractionDigits(double f, std::int32_t base, std::int32_t decimals) {
    std::u16string digits;
    do {
        f = Checked(f * base);
        const double digit = Truncate(f);
        digits += BaseDigitText(ToInt32(digit));
        f -= digit;
    } while (f != 0 && digits.size() < static_cast<std::size_t>(decimals));
    return digits;
}

std::u16string ConvertToBase(double x, std::int32_t base, std::int32_t decimals) {
    const std::u16string fixed = AsciiLower(TrimBlanks(FixedText(TrimBlanks(NumberText(std::abs(x))), decimals)));
    const std::size_t point = fixed.find(u'.');
    std::u16string whole = fixed.substr(0, point);
    std::u16string fraction = fixed.substr(point + 1);
    const double w = LeadingNumber(whole);
    const double f = LeadingNumber(u"." + fraction);
    if (!whole.empty()) whole = WholeDigits(w, base);
    if (!fraction.empty()) fraction = FractionDigits(f, base, decimals);
    std::u16string text = whole.empty() ? u"0" : whole;
    if (!fraction.empty()) text += u"." + fraction;
    text = AsciiLower(TrimBlanks(text));
    return x < 0 && text != u"0" ? u"-" + text : text;
}

}  // namespace

std::u16string BaseDigitText(std::int32_t value) {
    if (value < 0 || value > 15) return {};
    return std::u16string(1, DigitCharacters[static_cast<std::size_t>(value)]);
}

// Goes through the 15-digit decimal text, so 2.5 with no decimals is "11"
// in binary and -0.4 is "0" without a sign.
std::u16string NumberToBaseText(double x, std::int32_t base, std::int32_t decimals, ErrorSink& errors) {
    try {
        return ConvertToBase(x, base, decimals);
    } catch (const std::exception&) {
        errors.ReportError(BaseConvertingErrorNumber);
        return {};
    }
}

}  // namespace tessarondel
