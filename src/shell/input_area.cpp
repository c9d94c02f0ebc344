#include "shell/input_area.h"

#include <algorithm>

#include "numbers/text_rules.h"
#include "shell/shell_captions.h"

namespace tessarondel {

void InputArea::SetText(std::u16string text) {
    text_ = std::move(text);
    selectionStart_ = text_.size();
    selectionLength_ = 0;
}

void InputArea::SetSelection(std::size_t start, std::size_t length) {
    selectionStart_ = std::min(start, text_.size());
    selectionLength_ = std::min(length, text_.size() - selectionStart_);
}

void InputArea::ReplaceSelection(std::u16string_view replacement) {
    text_.replace(selectionStart_, selectionLength_, replacement);
    selectionStart_ += replacement.size();
    selectionLength_ = 0;
}

std::u16string InputArea::ToolTip() const {
    if (TrimBlanks(text_).empty()) return kInputAreaEmptyToolTip;
    return text_;
}

}  // namespace tessarondel
