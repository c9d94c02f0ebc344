#include "engine/variable_listing.h"

#include "engine/engine_state.h"
#include "numbers/number_text.h"

namespace tessarondel {

void VariableListingText::Take(const std::vector<VariableSlot>& table) {
    const std::size_t count = table.empty() ? 0 : table.size() - 1;  // slot 0 is never used
    bool changed = lines_.size() != count;
    lines_.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const VariableSlot& slot = table[i + 1];
        Line& line = lines_[i];
        // Equal values have equal texts; 0 and -0 both list as 0.
        if (line.name != slot.name || line.value != slot.value) {
            line.name = slot.name;
            line.value = slot.value;
            changed = true;
        }
    }
    textPending_ = textPending_ || changed;
}

const std::u16string& VariableListingText::Text() const {
    if (textPending_) {
        text_.clear();
        for (const Line& line : lines_) text_.append(line.name).append(u"\t=\t").append(NumberText(line.value)).append(u"\r\n");
        textPending_ = false;
    }
    return text_;
}

}  // namespace tessarondel
