#include "engine/name_lists.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <stdexcept>

#include "engine/name_table.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr std::size_t CountCharLimit = 32767;
constexpr int OverflowError = 6;

bool HasListPunctuation(std::u16string_view name) {
    for (const char16_t c : name) {
        if (c == u'{' || c == u'}' || c == u',') return true;
    }
    return false;
}

constexpr bool StartsWithLowerCase(std::u16string_view name) {
    return !name.empty() && name[0] >= u'a' && name[0] <= u'z';
}

constexpr std::u16string_view BracedLists[] = {BuiltinFunctionList, AliasList, WordOperatorList, ConstantList};
constexpr unsigned BracedListBits[] = {BuiltinFunctionBit, AliasBit, WordOperatorBit, ConstantBit};

// Every entry of the four lists with the bit of its list. For a name without
// braces and commas, "{name}" occurs in a list exactly when the name is an
// entry: every "{" opens an entry and the first "}" behind it closes that
// entry. Other names take the substring search. Every entry starts with a
// lower-case letter, so no name that starts otherwise is in a list at all.
constexpr auto ListEntries = [] {
    NameTable<unsigned char, 80> table;
    for (std::size_t list = 0; list < std::size(BracedLists); ++list) {
        const std::u16string_view text = BracedLists[list];
        for (std::size_t open = text.find(u'{'); open != std::u16string_view::npos; open = text.find(u'{', open + 1)) {
            const std::size_t close = text.find(u'}', open);
            if (!StartsWithLowerCase(text.substr(open + 1))) throw std::invalid_argument("list entry");
            table.Add(text.substr(open + 1, close - open - 1), static_cast<unsigned char>(BracedListBits[list]));
        }
    }
    return table;
}();

// Out of line, so that the common lookup saves no registers for it.
[[gnu::noinline]] unsigned ListsHoldingBySubstring(std::u16string_view name) {
    if (!HasListPunctuation(name)) return 0;
    unsigned lists = 0;
    for (std::size_t list = 0; list < std::size(BracedLists); ++list) {
        if (InBracedList(name, BracedLists[list])) lists |= BracedListBits[list];
    }
    return lists;
}

}  // namespace

bool IsConstantName(std::u16string_view name) { return (ListsHolding(name) & ConstantBit) != 0; }

unsigned ListsHolding(std::u16string_view name) {
    if (!StartsWithLowerCase(name)) return 0;
    if (const unsigned char* lists = ListEntries.Find(name)) return *lists;
    return ListsHoldingBySubstring(name);
}

std::size_t FindBracedName(std::u16string_view name, std::u16string_view list) {
    if (name.empty()) return list.find(u"{}");
    // Each match of the name must have "{" before it and "}" behind it.
    // The places of the name's first character, each tested for the whole name.
    for (std::size_t at = FindChar(list, name[0], 1); at != std::u16string_view::npos;
         at = FindChar(list, name[0], at + 1)) {
        if (list[at - 1] == u'{' && at + name.size() < list.size() && list[at + name.size()] == u'}' &&
            list.substr(at, name.size()) == name) {
            return at - 1;
        }
    }
    return std::u16string_view::npos;
}

bool InBracedList(std::u16string_view name, std::u16string_view list) {
    return FindBracedName(name, list) != std::u16string_view::npos;
}

bool IsFunctionName(const EngineState& state, std::u16string_view name) {
    return IsBuiltinOrAlias(ListsHolding(name)) || InCustomFunctionNames(state, name);
}

bool IsKnownName(const EngineState& state, std::u16string_view name) {
    return ListsHolding(name) != 0 || InCustomFunctionNames(state, name);
}

int CountChar(EngineState& state, std::u16string_view text, char16_t c) {
    if (text.size() > CountCharLimit) {
        state.ReportError(OverflowError);
        return 0;
    }
    // A plain loop with a 32-bit count vectorises; the text is short enough for it.
    std::uint32_t count = 0;
    for (const char16_t t : text) count += t == c ? 1U : 0U;
    return static_cast<int>(count);
}

}  // namespace tessarondel
