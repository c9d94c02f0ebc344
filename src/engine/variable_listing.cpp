#include "engine/variable_listing.h"

#include <algorithm>

#include "engine/engine_state.h"
#include "numbers/number_text.h"

namespace tessarondel {

void VariableListingText::Take(std::u16string_view names, const std::vector<VariableSlot>& table) {
    const std::size_t count = table.empty() ? 0 : table.size() - 1;  // slot 0 is never used
    bool changed = false;
    // std::equal compares the names' memory at once, where == goes character by character.
    const bool sameNames = names.size() == names_.size() && std::equal(names.begin(), names.end(), names_.begin());
    if (lines_.size() != count || !sameNames) {
        names_ = names;
        lines_.resize(count);
        for (std::size_t i = 0; i < count; ++i) lines_[i].name = table[i + 1].name;
        changed = true;
    }
    for (std::size_t i = 0; i < count; ++i) {
        // Equal values have equal texts; 0 and -0 both list as 0.
        if (lines_[i].value != table[i + 1].value) {
            lines_[i].value = table[i + 1].value;
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
