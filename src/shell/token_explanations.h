#pragma once

#include <span>
#include <string_view>
#include <utility>

namespace tessarondel {

// The Quick Reference's explanation of an inserted token, looked up exactly
// and case-sensitively; the empty text when the token has none.
std::u16string_view TokenExplanation(std::u16string_view token);

// Every token that has an explanation, with it, in the table's order.
using TokenExplanationEntry = std::pair<std::u16string_view, std::u16string_view>;
std::span<const TokenExplanationEntry> TokenExplanations();

}  // namespace tessarondel
