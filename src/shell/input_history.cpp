#include "shell/input_history.h"

namespace tessarondel {

void InputHistory::Commit(std::u16string_view rawInput) {
    entries_.emplace_back();
    position_ = UpperBound();
    entries_[entries_.size() - 2] = std::u16string(rawInput);
}

void InputHistory::OnInputChanged(std::u16string_view text) {
    if (position_ == UpperBound()) entries_.back() = std::u16string(text);
}

bool InputHistory::StepUp() {
    if (position_ <= 0) return false;
    --position_;
    return true;
}

bool InputHistory::StepDown() {
    if (position_ >= UpperBound()) return false;
    ++position_;
    return true;
}

void InputHistory::Clear() {
    entries_.assign(1, std::u16string());
    position_ = 0;
}

void InputHistory::Restore(const std::vector<std::u16string>& inputs) {
    Clear();
    for (const std::u16string& input : inputs) Commit(input);
}

}  // namespace tessarondel
