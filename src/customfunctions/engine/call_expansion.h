#pragma once

#include <string>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// Replaces every call of a custom function in `text` by its body with the
// argument texts bound; drives the token reader with ExpansionScan on.
std::u16string ExpandCustomFunctionCalls(EngineState& state, std::u16string text);

bool IsCustomFunctionName(const EngineState& state, std::u16string_view token);

}  // namespace tessarondel
