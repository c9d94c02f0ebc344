#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "numbers/run_failure.h"

namespace tessarondel {

// A list that may never have got slots. Asking for the upper bound of such a
// list is a run-time failure, even if the answer is not used: several
// procedures rely on that failure to leave early.
template <typename T>
class SlotList {
public:
    SlotList() = default;
    explicit SlotList(std::vector<T> items) : items_(std::move(items)), allocated_(true) {}

    bool HasSlots() const { return allocated_; }

    // Upper bound (last index); -1 for an allocated empty list.
    long UpperBound() const {
        if (!allocated_) throw RunFailure("list without slots");
        return static_cast<long>(items_.size()) - 1;
    }

    // Resizes to the bounds 0..upper, keeping what fits.
    void Resize(long upper) {
        items_.resize(static_cast<std::size_t>(upper + 1));
        allocated_ = true;
    }
    void Assign(std::vector<T> items) {
        items_ = std::move(items);
        allocated_ = true;
    }
    void Deallocate() {
        items_.clear();
        allocated_ = false;
    }

    T& operator[](long i) { return items_.at(Checked(i)); }
    const T& operator[](long i) const { return items_.at(Checked(i)); }

    const std::vector<T>& Items() const { return items_; }
    std::vector<T>& Items() { return items_; }

private:
    std::size_t Checked(long i) const {
        if (!allocated_ || i < 0 || static_cast<std::size_t>(i) >= items_.size()) throw RunFailure("index out of range");
        return static_cast<std::size_t>(i);
    }

    std::vector<T> items_;
    bool allocated_ = false;
};

}  // namespace tessarondel
