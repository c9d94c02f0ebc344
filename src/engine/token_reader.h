#pragma once

#include <cstddef>
#include <string_view>

#include "engine/engine_state.h"
#include "engine/name_lists.h"

namespace tessarondel {

// Cuts the next token off the front of state.TokenStream into CurrentToken and
// TokenKind. Creates a variable for a new identifier.
void ReadToken(EngineState& state);

// Where the token at the front of a text ends and what kind it is. `rest`
// starts with no blank and ends with none. Length 0 means the reader stops
// there: at the end, at an unreadable character, or after error 3 (`invalid`).
struct TokenShape {
    std::size_t length = 0;
    int kind = TokenNone;
    bool invalid = false;
};
TokenShape ShapeOfToken(std::u16string_view rest);

// A blank, a letter, a digit, the point or a one-character operator: a text of
// such characters the reader reads to its end.
constexpr bool IsReadableChar(char16_t c) {
    return c == u' ' || IsLetterChar(c) || IsDigitChar(c) || IsOperatorText(std::u16string_view(&c, 1));
}

// Membership in the built-in, alias or custom function name lists, untrimmed.
bool IsFunctionName(const EngineState& state, std::u16string_view name);

}  // namespace tessarondel
