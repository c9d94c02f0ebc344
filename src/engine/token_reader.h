#pragma once

#include "engine/engine_state.h"

namespace tessarondel {

// Cuts the next token off the front of state.TokenStream into CurrentToken and
// TokenKind. Creates a variable for a new identifier unless ExpansionScan is on.
void ReadToken(EngineState& state);

// Membership in the built-in, alias or custom function name lists, untrimmed.
bool IsFunctionName(const EngineState& state, std::u16string_view name);

}  // namespace tessarondel
