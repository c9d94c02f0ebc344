#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarondel {

// All committed inputs, oldest first, and one more element at the end: the
// scratch line, the line being typed. The empty history is one empty element.
class InputHistory {
public:
    const std::vector<std::u16string>& Entries() const { return entries_; }
    std::int32_t HistoryPosition() const { return position_; }
    std::int32_t UpperBound() const { return static_cast<std::int32_t>(entries_.size()) - 1; }
    const std::u16string& ScratchLine() const { return entries_.back(); }

    // Stores the raw input before a new, empty scratch line and moves to it.
    void Commit(std::u16string_view rawInput);
    // The change rule of the input: only the scratch line follows the text.
    void OnInputChanged(std::u16string_view text);
    // One step back or forward; false at the end, where nothing happens.
    bool StepUp();
    bool StepDown();
    const std::u16string& EntryOnShow() const { return entries_[static_cast<std::size_t>(position_)]; }
    // Back to one empty element, position 0.
    void Clear();
    // The inputs of an earlier run, committed in order.
    void Restore(const std::vector<std::u16string>& inputs);

private:
    std::vector<std::u16string> entries_ = std::vector<std::u16string>(1);
    std::int32_t position_ = 0;
};

}  // namespace tessarondel
