#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/engine_state.h"
#include "numbers/base_display.h"

namespace tessarondel {

// Colour as 0xRRGGBB.
struct DisplayLook {
    std::uint32_t Colour = 0xFFFFC0;
    int FontSize = 12;
    bool Bold = true;
    bool Italic = false;

    friend bool operator==(const DisplayLook&, const DisplayLook&) = default;
};

inline constexpr DisplayLook kResultLook{0xFFFFC0, 12, true, false};
inline constexpr DisplayLook kErrorLook{0xFF0000, 8, true, false};

// The result display with its base options, the "Format Negative" box and the
// auto-rounding list. It reads the engine's error fields for its look and tip.
class ResultDisplay {
public:
    static constexpr std::array<const char16_t*, 4> kBaseCaptions{u"Binary", u"Decimal", u"Octal", u"HEXadecimal"};
    static constexpr const char16_t* kFormatNegCaption = u"Format Negative";
    static constexpr const char16_t* kFormatNegToolTip =
        u"Format the negative in Binary, Octal and HEXadecimal mode, in order to delete the minus";

    explicit ResultDisplay(EngineState& engine) : engine_(engine) {}

    const std::u16string& Text() const { return text_; }
    const DisplayLook& Look() const { return look_; }
    // The tool tip as the mouse finds it: the error, or the shown answer.
    std::u16string ToolTip() const;

    // Setting a different text sets the look from the engine's ErrorFlag.
    void SetText(std::u16string text);
    void ResetLook() { look_ = kResultLook; }

    // OptBaseNum(0..3): visibility (all four together) and the selection.
    bool BaseOptionsVisible() const { return baseOptionsVisible_; }
    void SetBaseOptionsVisible(bool visible) { baseOptionsVisible_ = visible; }
    int SelectedBase() const { return selectedBase_; }
    void SelectBase(int index) { selectedBase_ = index; }

    // chkFormatNeg and its label share one visibility.
    bool FormatNegChecked() const { return formatNegChecked_; }
    void SetFormatNegChecked(bool checked) { formatNegChecked_ = checked; }
    bool FormatNegVisible() const { return formatNegVisible_; }
    void SetFormatNegVisible(bool visible) { formatNegVisible_ = visible; }

    // Rewrites the text for a base from the last value and the engine's text.
    void ShowResultInBase(int index, double lastValue, std::u16string_view resultText);

    // comApproximateBit: "Off", then "0" to "22".
    static const std::vector<std::u16string>& ApproximateEntries();
    int ApproximateIndex() const { return approximateIndex_; }
    std::u16string ApproximateToolTip() const;
    // Selects an entry and sets the engine's ApproximateBits from it.
    void SelectApproximate(int index);

private:
    EngineState& engine_;
    std::u16string text_ = u"0";
    DisplayLook look_ = kResultLook;
    bool baseOptionsVisible_ = true;
    int selectedBase_ = BaseIndexDecimal;
    bool formatNegChecked_ = false;
    bool formatNegVisible_ = false;
    int approximateIndex_ = 0;
};

}  // namespace tessarondel
