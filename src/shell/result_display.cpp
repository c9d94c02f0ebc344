#include "shell/result_display.h"

#include "numbers/text_rules.h"

namespace tessarondel {
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
    const BaseDisplay shown = tessarondel::ShowResultInBase(lastValue, resultText, index, formatNegChecked_, engine_);
    formatNegVisible_ = shown.complementBoxVisible;
    if (shown.text) SetText(*shown.text);
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
