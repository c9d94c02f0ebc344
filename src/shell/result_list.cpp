#include "shell/result_list.h"

#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

ResultList::ResultList() : items_{{u"Clear Result List", u""}, {u"-", u""}} {}

void ResultList::AddResultListItem(std::u16string_view text) {
    ++count_;
    std::u16string caption = u"(" + std::u16string(TrimBlanks(NumberText(count_))) + u")\t";
    caption += text;
    items_.push_back({std::move(caption), std::u16string(text)});
}

void ResultList::ClearResultList() {
    items_.resize(kFirstDynamicIndex);
    count_ = 0;
}

void ResultList::Restore(std::int32_t count, const std::vector<std::u16string>& texts) {
    ClearResultList();
    count_ = count - static_cast<std::int32_t>(texts.size());
    for (const std::u16string& text : texts) AddResultListItem(text);
}

}  // namespace tessarondel
