#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace tessarondel {

// A text read from front to back by a cursor, in which the text just ahead
// of the cursor can be replaced at a cost independent of the text's length:
// the finished part is kept in order, the unread part reversed, so its front
// is the back of a string.
class SpliceText {
public:
    explicit SpliceText(std::u16string_view text) : ahead_(text.rbegin(), text.rend()) { done_.reserve(text.size()); }

    std::size_t Size() const { return done_.size() + ahead_.size(); }
    // 0-based position of the first unread character.
    std::size_t Cursor() const { return done_.size(); }
    std::size_t Remaining() const { return ahead_.size(); }

    // The unread character `offset` places behind the cursor.
    char16_t Ahead(std::size_t offset) const { return ahead_[ahead_.size() - 1 - offset]; }
    // The character just in front of the cursor; only when Cursor() > 0.
    char16_t Behind() const { return done_.back(); }
    char16_t Last() const { return ahead_.empty() ? done_.back() : ahead_.front(); }

    // Copies the next `count` unread characters into `text`.
    void CopyAhead(std::size_t count, std::u16string& text) const {
        text.resize(count);
        for (std::size_t i = 0; i < count; ++i) text[i] = Ahead(i);
    }

    void Advance(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            done_.push_back(ahead_.back());
            ahead_.pop_back();
        }
    }

    // Replaces the next `count` unread characters by `replacement`, which is
    // then the unread front.
    void ReplaceAhead(std::size_t count, std::u16string_view replacement) {
        ahead_.resize(ahead_.size() - count);
        ahead_.append(replacement.rbegin(), replacement.rend());
    }

    std::u16string Text() const {
        std::u16string text = done_;
        text.append(ahead_.rbegin(), ahead_.rend());
        return text;
    }

private:
    std::u16string done_;
    std::u16string ahead_;  // reversed
};

}  // namespace tessarondel
