#pragma once

#include <span>
#include <string>
#include <vector>

#include "numbers/slot_list.h"

namespace tessarondel {

// The 15-digit texts of the elements of the comma list that closed last. Only
// a built-in call reads them, and most lists close without one, so the values
// are kept and written as texts when they are first read.
class CommaListTexts {
public:
    void Close(std::span<const double> values) {
        values_.assign(values.begin(), values.end());
        pending_ = true;
    }
    // A list that never got slots until the first list closes.
    SlotList<std::u16string>& Texts();

private:
    std::vector<double> values_;
    bool pending_ = false;
    SlotList<std::u16string> texts_;
};

}  // namespace tessarondel
