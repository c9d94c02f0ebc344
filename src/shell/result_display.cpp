#include "shell/result_display.h"

#include <cmath>
#include <optional>

#include "numbers/base_conversion.h"
#include "numbers/primitives.h"
#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

constexpr double kComplementBase = 4294967296.0;  // 2 to the power 32

// Passes reports on to the engine and remembers that one came.
class WatchingSink final : public ErrorSink {
public:
    explicit WatchingSink(EngineState& engine) : engine_(engine) {}
    void ReportError(int number) override {
        reported_ = true;
        engine_.ReportError(number);
    }
    bool Reported() const { return reported_; }

private:
    EngineState& engine_;
    bool reported_ = false;
};

struct BaseForm {
    std::int32_t Radix;
    const char16_t* Prefix;
};

BaseForm FormOf(int index) {
    switch (index) {
        case BaseBinary: return {2, u"$B"};
        case BaseOctal: return {8, u"$O"};
        default: return {16, u"$H"};
    }
}

// The complement form for negatives down to -2^32 when asked for, otherwise
// the sign before the prefix and the magnitude's digits.
std::optional<std::u16string> BaseText(int index, double value, bool formatNegative, EngineState& engine) {
    const BaseForm form = FormOf(index);
    WatchingSink sink(engine);
    const bool complement = formatNegative && Floor(value) < 0 && std::fabs(value) <= kComplementBase;
    std::u16string text = complement || value >= 0 ? u"" : u"-";
    text += form.Prefix;
    const double magnitude = complement ? kComplementBase - std::fabs(value) : std::fabs(value);
    text += AsciiUpper(NumberToBaseText(magnitude, form.Radix, 0, sink));
    if (sink.Reported()) return std::nullopt;
    return text;
}

}  // namespace

std::u16string ResultDisplay::ToolTip() const {
    if (engine_.ErrorFlag) return u"Error occurred! - [" + engine_.ErrorText + u"]";
    return u"The last answer - [" + std::u16string(TrimBlanks(text_)) + u"]";
}

void ResultDisplay::SetText(std::u16string text) {
    if (text == text_) return;
    text_ = std::move(text);
    look_ = engine_.ErrorFlag ? kErrorLook : kResultLook;
}

void ResultDisplay::ShowResultInBase(int index, double lastValue, std::u16string_view resultText) {
    formatNegVisible_ = true;
    if (index == BaseDecimal) {
        formatNegVisible_ = false;
        const std::u16string_view trimmed = TrimBlanks(resultText);
        SetText(trimmed.empty() ? std::u16string(u"0") : std::u16string(trimmed));
        return;
    }
    if (index != BaseBinary && index != BaseOctal && index != BaseHexadecimal) return;
    if (auto text = BaseText(index, lastValue, formatNegChecked_, engine_)) SetText(std::move(*text));
}

const std::vector<std::u16string>& ResultDisplay::ApproximateEntries() {
    static const std::vector<std::u16string> entries = [] {
        std::vector<std::u16string> list{u"Off"};
        for (int places = 0; places <= 22; ++places) list.push_back(AsciiToU16(std::to_string(places)));
        return list;
    }();
    return entries;
}

std::u16string ResultDisplay::ApproximateToolTip() const {
    return u"Auto Round Operation according to the appointed bits - [" +
           ApproximateEntries()[static_cast<std::size_t>(approximateIndex_)] + u"]";
}

void ResultDisplay::SelectApproximate(int index) {
    approximateIndex_ = index;
    engine_.ApproximateBits = index - 1;  // "Off" is -1, entry n is n
}

}  // namespace tessarondel
