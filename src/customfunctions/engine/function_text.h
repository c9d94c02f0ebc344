#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessarondel {

// Searching, replacing and splitting texts, with 1-based positions where
// positions are exchanged. Trimming and case are in numbers/text_rules.h.

// 1-based position of `needle` in `text`, searching from `start` (1-based); 0 when absent.
std::size_t FindText(std::u16string_view text, std::u16string_view needle, std::size_t start = 1);

// Every occurrence, left to right, without rescanning the replaced text.
std::u16string ReplaceAll(std::u16string_view text, std::u16string_view from, std::u16string_view to);

// Pieces between separators; the empty text gives an empty list.
std::vector<std::u16string> SplitText(std::u16string_view text, std::u16string_view separator);

std::size_t CountOccurrences(std::u16string_view text, char16_t c);

}  // namespace tessarondel
