#pragma once

#include <string>
#include <vector>

namespace tessarondel {

struct VariableSlot;

// The listing of the variables, one "name<TAB>=<TAB> value<CR><LF>" line per
// slot, as the table stood when it was last taken. Nothing in the program
// shows it after every evaluation, so taking it keeps names and values only,
// and the lines are written when the text is read.
class VariableListingText {
public:
    // `names` is the braced list of the table's names, which changes with them.
    void Take(std::u16string_view names, const std::vector<VariableSlot>& table);
    const std::u16string& Text() const;

private:
    struct Line {
        std::u16string name;
        double value = 0.0;
    };
    std::u16string names_;
    std::vector<Line> lines_;
    mutable std::u16string text_;
    mutable bool textPending_ = false;
};

}  // namespace tessarondel
