#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace tessarondel {

// Exact lookup of a fixed set of names, built at compile time. A name's
// bucket comes from its length and its first, middle and last characters,
// which sets the short names of the lists apart well enough that a lookup
// mostly compares one entry.
template <typename Value, std::size_t Capacity>
class NameTable {
    static_assert(Capacity < 256, "bucket starts are bytes");

public:
    // Every name is added once and is not empty; anything else stops the
    // compilation of a constant table.
    constexpr void Add(std::u16string_view name, Value value) {
        if (count_ == Capacity || name.empty() || Find(name) != nullptr)
            throw std::invalid_argument("name table entry");
        const std::size_t bucket = BucketOf(name);
        const std::size_t at = start_[bucket + 1];
        for (std::size_t i = count_; i > at; --i) entries_[i] = entries_[i - 1];
        entries_[at] = Entry{name, value};
        ++count_;
        for (std::size_t later = bucket + 1; later < start_.size(); ++later) ++start_[later];
    }

    // The value of `name`, or null when it is no entry.
    constexpr const Value* Find(std::u16string_view name) const {
        if (name.empty()) return nullptr;
        const std::size_t bucket = BucketOf(name);
        for (std::size_t i = start_[bucket]; i < start_[bucket + 1]; ++i) {
            if (Equal(entries_[i].name, name)) return &entries_[i].value;
        }
        return nullptr;
    }

private:
    struct Entry {
        std::u16string_view name;
        Value value{};
    };
    static constexpr std::size_t Buckets = 256;

    static constexpr std::size_t BucketOf(std::u16string_view name) {
        const std::size_t mix = name.size() * 13 + name[0] * 31u + name[name.size() / 2] * 7u + name.back();
        return mix % Buckets;
    }

    // A plain loop: the names are a few characters long.
    static constexpr bool Equal(std::u16string_view a, std::u16string_view b) {
        if (a.size() != b.size()) return false;
        for (std::size_t i = 0; i < a.size(); ++i) {
            if (a[i] != b[i]) return false;
        }
        return true;
    }

    std::array<Entry, Capacity> entries_{};
    std::size_t count_ = 0;
    std::array<unsigned char, Buckets + 1> start_{};  // first entry of each bucket, then the end
};

}  // namespace tessarondel
