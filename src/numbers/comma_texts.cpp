#include "numbers/comma_texts.h"

#include "numbers/number_text.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

CommaTexts::CommaTexts(std::vector<std::u16string> texts) : texts_(std::move(texts)), allocated_(true) {}

void CommaTexts::AssignValues(std::span<const double> values) {
    values_.assign(values.begin(), values.end());
    holdsValues_ = true;
    textsPending_ = true;
    allocated_ = true;
}

long CommaTexts::UpperBound() const {
    if (!allocated_) throw RunFailure("list without slots");
    return static_cast<long>(textsPending_ ? values_.size() : texts_.size()) - 1;
}

const std::u16string& CommaTexts::operator[](long index) const {
    const std::vector<std::u16string>& texts = Items();
    if (!allocated_ || index < 0 || static_cast<std::size_t>(index) >= texts.size()) {
        throw RunFailure("index out of range");
    }
    return texts[static_cast<std::size_t>(index)];
}

double CommaTexts::Value(long index) const {
    if (!holdsValues_) return TextToNumber((*this)[index]);
    if (index < 0 || static_cast<std::size_t>(index) >= values_.size()) throw RunFailure("index out of range");
    return FifteenDigitCopy(values_[static_cast<std::size_t>(index)]);
}

const std::vector<std::u16string>& CommaTexts::Items() const {
    if (textsPending_) WriteTexts();
    return texts_;
}

void CommaTexts::WriteTexts() const {
    texts_.resize(values_.size());
    for (std::size_t i = 0; i < values_.size(); ++i) texts_[i] = TrimBlanks(NumberText(values_[i]));
    textsPending_ = false;
}

}  // namespace tessarondel
