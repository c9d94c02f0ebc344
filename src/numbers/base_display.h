#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "numbers/error_sink.h"

namespace tessarondel {

// The base buttons of the result display, in their order.
enum BaseIndex : int {
    BaseIndexBinary = 0,
    BaseIndexDecimal = 1,
    BaseIndexOctal = 2,
    BaseIndexHexadecimal = 3,
};

// What the result display shows after a base was chosen.
struct BaseDisplay {
    // The display's new text; none when the display keeps its text: the base
    // conversion reported error 11, or the index names no base.
    std::optional<std::u16string> text;
    // Visibility of the complement check box and of its label.
    bool complementBoxVisible = true;
};

// The decimal display: `resultText` trimmed, "0" when empty.
std::u16string_view DecimalDisplayText(std::u16string_view resultText);

// The text of the result display for the base `index` (0 binary, 1 decimal,
// 2 octal, 3 hexadecimal): decimal shows `resultText` trimmed ("0" when
// empty); the other bases show `lastValue` as a literal that reads back
// ("$HFF", "-$B101"), negatives in 32-bit complement form ("$HFFFFFF01") when
// `complementChecked`. A failed conversion reports error 11 to `errors`.
BaseDisplay ShowResultInBase(double lastValue, std::u16string_view resultText, int index, bool complementChecked,
                             ErrorSink& errors);

}  // namespace tessarondel
