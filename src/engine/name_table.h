#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace tessarondel {

// Exact lookup of a fixed set of short lower-case names, built at compile
// time. Entries are grouped by length and first letter, so a lookup looks at
// the one or two entries that share both with the name.
template <typename Value, std::size_t Capacity>
class NameTable {
    static_assert(Capacity < 256, "bucket starts are bytes");

public:
    static constexpr std::size_t MaxLength = 12;

    // Every name starts with a-z, has 1 to MaxLength characters and is added
    // once; anything else stops the compilation of a constant table.
    constexpr void Add(std::u16string_view name, Value value) {
        if (count_ == Capacity || !Fits(name) || Find(name) != nullptr) throw std::invalid_argument("name table entry");
        const std::size_t bucket = BucketOf(name);
        const std::size_t at = start_[bucket + 1];
        for (std::size_t i = count_; i > at; --i) entries_[i] = entries_[i - 1];
        entries_[at] = Entry{name, value};
        ++count_;
        for (std::size_t later = bucket + 1; later < start_.size(); ++later) ++start_[later];
    }

    // The value of `name`, or null when it is no entry.
    constexpr const Value* Find(std::u16string_view name) const {
        if (!Fits(name)) return nullptr;
        const std::size_t bucket = BucketOf(name);
        for (std::size_t i = start_[bucket]; i < start_[bucket + 1]; ++i) {
            if (SameTail(entries_[i].name, name)) return &entries_[i].value;
        }
        return nullptr;
    }

private:
    struct Entry {
        std::u16string_view name;
        Value value{};
    };
    static constexpr std::size_t Letters = 26;

    static constexpr bool Fits(std::u16string_view name) {
        return name.size() - 1 < MaxLength && name[0] >= u'a' && name[0] <= u'z';  // size 0 wraps around
    }
    static constexpr std::size_t BucketOf(std::u16string_view name) {
        return (name.size() - 1) * Letters + static_cast<std::size_t>(name[0] - u'a');
    }
    // Both have the same length and first letter: their bucket.
    static constexpr bool SameTail(std::u16string_view entry, std::u16string_view name) {
        for (std::size_t i = 1; i < name.size(); ++i) {
            if (entry[i] != name[i]) return false;
        }
        return true;
    }

    std::array<Entry, Capacity> entries_{};
    std::size_t count_ = 0;
    std::array<unsigned char, MaxLength * Letters + 1> start_{};  // first entry of each bucket, then the end
};

}  // namespace tessarondel
