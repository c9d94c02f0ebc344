#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace tessarondel {

// A text read from front to back by a cursor and rewritten in place, in
// which the text just ahead of the cursor can be replaced at a cost
// independent of the text's length. The string holds, in this order: the
// rewritten text read so far, a gap, read text that has not yet been moved
// down to close the gap, and the unread text. Reading moves nothing; a
// replacement first moves the read text down, then writes in front of the
// unread text, into the replaced characters and the gap, widening the gap
// when the replacement is longer than the room.
class SpliceText {
public:
    explicit SpliceText(std::u16string& text) : text_(text) {}
    SpliceText(const SpliceText&) = delete;
    SpliceText& operator=(const SpliceText&) = delete;
    // Closes the gap: the string is the rewritten text again.
    ~SpliceText() {
        MoveReadText();
        text_.erase(done_, next_ - done_);
    }

    // 0-based position of the first unread character in the rewritten text.
    std::size_t Cursor() const { return done_ + (next_ - readFrom_); }
    std::size_t Remaining() const { return text_.size() - next_; }

    // The unread characters, from the cursor on.
    std::u16string_view Ahead() const { return {text_.data() + next_, text_.size() - next_}; }
    // The character just in front of the cursor; only when Cursor() > 0.
    char16_t Behind() const { return next_ > readFrom_ ? text_[next_ - 1] : text_[done_ - 1]; }

    void Advance(std::size_t count) { next_ += count; }

    // Replaces the next `count` unread characters by `replacement`, which is
    // then the unread front.
    void ReplaceAhead(std::size_t count, std::u16string_view replacement) {
        MoveReadText();
        const std::size_t room = next_ + count - done_;
        if (replacement.size() > room) OpenGap(replacement.size() - room);
        next_ += count;
        next_ -= replacement.size();
        readFrom_ = next_;
        std::copy(replacement.begin(), replacement.end(), text_.data() + next_);
    }

private:
    void MoveReadText() {
        if (readFrom_ != done_) std::copy(text_.data() + readFrom_, text_.data() + next_, text_.data() + done_);
        done_ += next_ - readFrom_;
        readFrom_ = next_;
    }

    // Widens the gap by at least `needed`, and by as much as is left to read,
    // so that the moves of the unread part stay linear in the text's length.
    // What the gap holds is never read: a short one is copied from a block of
    // zeros, which is faster than filling it.
    void OpenGap(std::size_t needed) {
        static constexpr char16_t Filler[64] = {};
        const std::size_t width = needed + Remaining();
        if (width <= std::size(Filler)) {
            text_.insert(next_, Filler, width);
        } else {
            text_.insert(next_, width, u' ');
        }
        next_ += width;
        readFrom_ = next_;
    }

    std::u16string& text_;
    std::size_t done_ = 0;      // text_[0, done_) is rewritten text
    std::size_t readFrom_ = 0;  // text_[readFrom_, next_) is read but not yet moved down to done_
    std::size_t next_ = 0;      // text_[next_, end) is unread
};

}  // namespace tessarondel
