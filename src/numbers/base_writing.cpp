#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <exception>
#include <string>
#include <system_error>

#include "numbers/base_conversion.h"
#include "numbers/error_numbers.h"
#include "numbers/number_text.h"
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
    std::string digits;
    long pointPosition = 0;
};

DecimalDigits ReadDecimalDigits(std::u16string_view text) {
    DecimalDigits d;
    std::size_t i = 0;
    for (; i < text.size() && text[i] != u'E'; ++i) {
        if (text[i] == u'.') {
            d.pointPosition = static_cast<long>(d.digits.size());
        } else {
            d.digits += static_cast<char>(text[i]);
        }
    }
    if (text.find(u'.') == std::u16string_view::npos) d.pointPosition = static_cast<long>(d.digits.size());
    if (i < text.size()) d.pointPosition += static_cast<long>(LeadingNumber(text.substr(i + 1)));
    return d;
}

// Adds one unit in the last place of a digit text; a carry out in front adds a digit.
void IncrementDigits(std::string& digits) {
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digits.insert(digits.begin(), '1');
}

// The whole part and the fraction of a number in fixed notation.
struct FixedParts {
    std::string whole;
    std::string fraction;
};

// A non-negative number text in fixed notation with exactly `decimals`
// places, like the format picture "0." followed by that many zeros: rounded
// on the decimal digits, ties away from zero, never in exponent form, and at
// least one digit before the point. The text is digits only, so lower-casing
// and trimming it changes nothing.
FixedParts FixedText(std::u16string_view numberText, std::int32_t decimals) {
    if (decimals < 0) throw RunFailure("negative decimal count");
    const DecimalDigits d = ReadDecimalDigits(numberText);
    const auto length = static_cast<long>(d.digits.size());
    FixedParts parts;
    if (d.pointPosition >= length) {
        parts.whole = d.digits + std::string(static_cast<std::size_t>(d.pointPosition - length), '0');
    } else if (d.pointPosition <= 0) {
        parts.fraction = std::string(static_cast<std::size_t>(-d.pointPosition), '0') + d.digits;
    } else {
        parts.whole = d.digits.substr(0, static_cast<std::size_t>(d.pointPosition));
        parts.fraction = d.digits.substr(static_cast<std::size_t>(d.pointPosition));
    }
    const auto places = static_cast<std::size_t>(decimals);
    const bool roundUp = parts.fraction.size() > places && parts.fraction[places] >= '5';
    parts.fraction.resize(places, '0');
    std::string all = parts.whole + parts.fraction;
    if (roundUp) IncrementDigits(all);
    parts.whole = all.substr(0, all.size() - places);
    parts.fraction = all.substr(all.size() - places);
    const std::size_t firstNonZero = parts.whole.find_first_not_of('0');
    parts.whole = firstNonZero == std::string::npos ? "0" : parts.whole.substr(firstNonZero);
    return parts;
}

// The value of a text of decimal digits with an optional point; beyond the
// double range a failure.
double DigitsValue(const std::string& digits) {
    double value = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (parsed.ec != std::errc()) throw OverflowFailure();
    return value;
}

void AppendDigit(std::u16string& digits, std::int32_t value) {
    if (value >= 0 && value <= 15) digits += DigitCharacters[static_cast<std::size_t>(value)];
}

// Long division of a whole number on doubles; at least one digit. Neither
// the product nor the remainder can leave the double range.
std::u16string WholeDigits(double w, std::int32_t base) {
    if (base == 0) throw RunFailure("division by zero");
    std::u16string digits;
    digits.reserve(64);
    do {
        const double quotient = Truncate(w / base);
        AppendDigit(digits, ToInt32(w - quotient * base));
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
        AppendDigit(digits, ToInt32(digit));
        f -= digit;
    } while (f != 0 && digits.size() < static_cast<std::size_t>(decimals));
    return digits;
}

std::u16string ConvertToBase(double x, std::int32_t base, std::int32_t decimals) {
    const FixedParts fixed = FixedText(TrimBlanks(NumberText(std::abs(x))), decimals);
    std::u16string text = WholeDigits(DigitsValue(fixed.whole), base);
    if (!fixed.fraction.empty()) {
        text += u'.';
        text += FractionDigits(DigitsValue("0." + fixed.fraction), base, decimals);
    }
    if (x < 0 && text != u"0") text.insert(text.begin(), u'-');
    return text;
}

}  // namespace

std::u16string BaseDigitText(std::int32_t value) {
    std::u16string digit;
    AppendDigit(digit, value);
    return digit;
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
