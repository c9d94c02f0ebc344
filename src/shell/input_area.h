#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarondel {

// The one-line input box: its text and its selection. Positions are 0-based
// UTF-16 offsets, as the box counts them; an empty selection is the caret.
class InputArea {
public:
    const std::u16string& Text() const { return text_; }
    std::size_t SelectionStart() const { return selectionStart_; }
    std::size_t SelectionLength() const { return selectionLength_; }

    // Setting the text leaves the caret at its end.
    void SetText(std::u16string text);
    // Clamped to the text.
    void SetSelection(std::size_t start, std::size_t length);
    // Replaces the selection (inserts at the caret) and puts the caret behind
    // the inserted text.
    void ReplaceSelection(std::u16string_view replacement);

    // The box's own text when that isn't blank, so a long expression can be read.
    std::u16string ToolTip() const;

private:
    std::u16string text_;
    std::size_t selectionStart_ = 0;
    std::size_t selectionLength_ = 0;
};

}  // namespace tessarondel
