#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace tessarondel {

// A text read from front to back by a cursor, rewritten in place, in which
// the text just ahead of the cursor can be replaced at a cost independent of
// the text's length. The string holds the read part at its front and the
// unread part at its back, with a gap between them that only replacements
// open: while no replacement has happened, reading moves nothing.
class SpliceText {
public:
    explicit SpliceText(std::u16string& text) : text_(text) {}
    SpliceText(const SpliceText&) = delete;
    SpliceText& operator=(const SpliceText&) = delete;
    // Closes the gap: the string is the rewritten text again.
    ~SpliceText() { text_.erase(done_, next_ - done_); }

    // 0-based position of the first unread character.
    std::size_t Cursor() const { return done_; }
    std::size_t Remaining() const { return text_.size() - next_; }

    // The unread characters, from the cursor on.
    std::u16string_view Ahead() const { return std::u16string_view(text_).substr(next_); }
    // The character just in front of the cursor; only when Cursor() > 0.
    char16_t Behind() const { return text_[done_ - 1]; }

    void Advance(std::size_t count) {
        if (next_ != done_) std::copy_n(text_.data() + next_, count, text_.data() + done_);
        done_ += count;
        next_ += count;
    }

    // Replaces the next `count` unread characters by `replacement`, which is
    // then the unread front.
    void ReplaceAhead(std::size_t count, std::u16string_view replacement) {
        const std::size_t end = next_ + count;
        if (replacement.size() > end - done_) OpenGap(replacement.size() - (end - done_));
        next_ += count;
        next_ -= replacement.size();
        std::copy(replacement.begin(), replacement.end(), text_.data() + next_);
    }

private:
    // Widens the gap by at least `needed`, and by as much as is left to read,
    // so that the moves of the unread part stay linear in the text's length.
    void OpenGap(std::size_t needed) {
        const std::size_t width = needed + Remaining();
        text_.insert(next_, width, u' ');
        next_ += width;
    }

    std::u16string& text_;
    std::size_t done_ = 0;  // the read part is text_[0, done_)
    std::size_t next_ = 0;  // the unread part is text_[next_, end)
};

}  // namespace tessarondel
