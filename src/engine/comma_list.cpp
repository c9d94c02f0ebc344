#include "engine/comma_list.h"

#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

SlotList<std::u16string>& CommaListTexts::Texts() {
    if (pending_) {
        texts_.Resize(static_cast<long>(values_.size()) - 1);
        for (std::size_t i = 0; i < values_.size(); ++i) texts_[static_cast<long>(i)] = TrimBlanks(NumberText(values_[i]));
        pending_ = false;
    }
    return texts_;
}

}  // namespace tessarondel
