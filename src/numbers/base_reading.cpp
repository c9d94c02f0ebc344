#include <cstddef>
#include <exception>

#include "numbers/base_conversion.h"
#include "numbers/number_text.h"
#include "numbers/primitives.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr int SyntaxError = 0;
constexpr int BaseConvertingError = 11;

}  // namespace

std::u16string BaseLiteralToDecimal(std::u16string_view token, ErrorSink& errors) {
    if (token.find(u'$') == std::u16string_view::npos) return std::u16string(token);
    if (token.size() < 3) {
        errors.ReportError(SyntaxError);
        return {};
    }
    const std::u16string prefix = AsciiLower(token.substr(0, 2));
    std::int32_t base = 0;
    if (prefix == u"$b") {
        base = 2;
    } else if (prefix == u"$h") {
        base = 16;
    } else if (prefix == u"$o") {
        base = 8;
    } else {
        errors.ReportError(SyntaxError);
        return {};
    }
    return BaseTextToDecimal(TrimBlanks(token.substr(2)), base, errors);
}

std::u16string BaseTextToDecimal(std::u16string_view digits, std::int32_t base, ErrorSink& errors) {
    try {
        const std::u16string lowered = AsciiLower(digits);
        std::u16string_view text = TrimBlanks(lowered);
        const bool negative = text.size() > 1 && text[0] == u'-';
        if (negative) text.remove_prefix(1);
        const std::size_t point = text.find(u'.');
        const std::u16string_view whole = text.substr(0, point);
        const std::u16string_view fraction =
            point == std::u16string_view::npos ? std::u16string_view() : text.substr(point + 1);

        double value = 0;
        for (std::size_t i = whole.size(); i-- > 0;) {
            const double k = static_cast<double>(whole.size() - 1 - i);
            value = Checked(value + BaseDigitValue(whole.substr(i, 1), base, errors) * Power(base, k));
        }
        for (std::size_t i = 0; i < fraction.size(); ++i) {
            const double k = -static_cast<double>(i + 1);
            value = Checked(value + BaseDigitValue(fraction.substr(i, 1), base, errors) * Power(base, k));
        }
        std::u16string result(TrimBlanks(NumberText(value)));
        if (negative && result != u"0") result.insert(0, 1, u'-');
        return result;
    } catch (const std::exception&) {
        errors.ReportError(BaseConvertingError);
        return {};
    }
}

std::int32_t BaseDigitValue(std::u16string_view digit, std::int32_t base, ErrorSink& errors) {
    const char16_t c = digit.empty() ? u'\0' : AsciiUpperChar(digit[0]);
    std::int32_t value = -1;
    if (c >= u'0' && c <= u'9') value = c - u'0';
    if (c >= u'A' && c <= u'F') value = c - u'A' + 10;
    if (value < 0 || value >= base) {
        errors.ReportError(SyntaxError);
        return 0;
    }
    return value;
}

}  // namespace tessarondel
