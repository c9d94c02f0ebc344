#pragma once

#include <string>
#include <vector>

namespace tessarondel {

// A menu item as the catalogues use it: the caption is what the user reads,
// the tag is the data behind it. A caption "-" is a separator.
struct MenuItem {
    std::u16string Caption;
    std::u16string Tag;
    bool Checked = false;

    bool IsSeparator() const { return Caption == u"-"; }
};

using Menu = std::vector<MenuItem>;

}  // namespace tessarondel
