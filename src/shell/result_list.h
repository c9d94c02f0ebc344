#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/menu_item.h"

namespace tessarondel {

// The Result List pop-up: "Clear Result List", a separator, then one item per
// evaluation, captioned "(n)" TAB result, with the result alone as its tag.
class ResultList {
public:
    static constexpr std::size_t kFirstDynamicIndex = 2;

    ResultList();

    std::int32_t ResultListCount() const { return count_; }
    const Menu& Items() const { return items_; }

    void AddResultListItem(std::u16string_view text);
    void ClearResultList();
    // The items of an earlier run: its newest texts, the last one numbered `count`.
    void Restore(std::int32_t count, const std::vector<std::u16string>& texts);

private:
    std::int32_t count_ = 0;
    Menu items_;
};

}  // namespace tessarondel
