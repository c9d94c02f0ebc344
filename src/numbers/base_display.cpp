#include "numbers/base_display.h"

#include <cmath>

#include "numbers/base_conversion.h"
#include "numbers/primitives.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr double ComplementModulus = 4294967296.0;  // 2 to the power 32

struct BaseForm {
    std::int32_t base;
    std::u16string_view prefix;
    bool upperCase;
};

BaseForm FormOf(int index) {
    switch (index) {
        case BaseIndexBinary:
            return {2, u"$B", false};
        case BaseIndexOctal:
            return {8, u"$O", false};
        default:
            return {16, u"$H", true};
    }
}

// Passes reports on and remembers whether there was one.
class ReportWatcher final : public ErrorSink {
public:
    explicit ReportWatcher(ErrorSink& target) : target_(target) {}
    void ReportError(int number) override {
        reported_ = true;
        target_.ReportError(number);
    }
    bool Reported() const { return reported_; }

private:
    ErrorSink& target_;
    bool reported_ = false;
};

// Negatives down to -2^32 in complement form ("$HFFFFFFFF" for -1); the rest
// as sign, prefix and digits of the magnitude ("-$HFF").
std::optional<std::u16string> BaseText(double lastValue, int index, bool complementChecked, ErrorSink& errors) {
    const bool complement = complementChecked && Floor(lastValue) < 0 && !(std::abs(lastValue) > ComplementModulus);
    const double magnitude = complement ? ComplementModulus - std::abs(lastValue) : std::abs(lastValue);
    const std::u16string_view sign = !complement && lastValue < 0 ? u"-" : u"";
    const BaseForm form = FormOf(index);
    ReportWatcher watcher(errors);
    std::u16string digits = NumberToBaseText(magnitude, form.base, 0, watcher);
    if (watcher.Reported()) return std::nullopt;
    if (form.upperCase) digits = AsciiUpper(digits);
    return std::u16string(sign) + std::u16string(form.prefix) + digits;
}

}  // namespace

std::u16string_view DecimalDisplayText(std::u16string_view resultText) {
    const std::u16string_view trimmed = TrimBlanks(resultText);
    return trimmed.empty() ? u"0" : trimmed;
}

BaseDisplay ShowResultInBase(double lastValue, std::u16string_view resultText, int index, bool complementChecked,
                             ErrorSink& errors) {
    if (index == BaseIndexDecimal) return {std::u16string(DecimalDisplayText(resultText)), false};
    if (index < BaseIndexBinary || index > BaseIndexHexadecimal) return {std::nullopt, true};
    return {BaseText(lastValue, index, complementChecked, errors), true};
}

}  // namespace tessarondel
