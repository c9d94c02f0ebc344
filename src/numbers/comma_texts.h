#pragma once

#include <span>
#include <string>
#include <vector>

namespace tessarondel {

// The 15-digit texts of the elements of a comma list, as the built-in
// functions read them. The list may never have got slots: asking for its upper
// bound is then a run-time failure. Lists closed by the engine keep their
// values and write the texts when an element is first read, since most calls
// (sin, sqrt, ...) only ask for the bound.
class CommaTexts {
public:
    CommaTexts() = default;
    explicit CommaTexts(std::vector<std::u16string> texts);

    // The list of these values; their texts are written on demand.
    void AssignValues(std::span<const double> values);

    bool HasSlots() const { return allocated_; }
    // Upper bound (last index); -1 for an allocated empty list.
    long UpperBound() const;
    const std::u16string& operator[](long index) const;
    const std::vector<std::u16string>& Items() const;
    // The element's text read as a number. A list of values reads the value
    // rounded to 15 digits, which is what its text gives, without writing it.
    double Value(long index) const;

private:
    void WriteTexts() const;

    std::vector<double> values_;
    bool holdsValues_ = false;
    mutable std::vector<std::u16string> texts_;
    mutable bool textsPending_ = false;
    bool allocated_ = false;
};

}  // namespace tessarondel
