#pragma once

#include <string_view>

namespace tessarondel {

// The Quick Reference's explanation of an inserted token, looked up exactly
// and case-sensitively; the empty text when the token has none.
std::u16string_view TokenExplanation(std::u16string_view token);

}  // namespace tessarondel
