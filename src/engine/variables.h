#pragma once

#include <cstdint>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// "{name}" (trimmed, lower-cased) in VariableNames.
bool VariableExists(const EngineState& state, std::u16string_view name);
// The slot of a name: the closing braces in front of "{name}", plus 1; 1 for
// the first name and also for a name that is not there.
std::int32_t VariableIndex(EngineState& state, std::u16string_view name);
// Appends a variable with the value 0; the caller has checked that it is new.
void AddVariable(EngineState& state, std::u16string_view name);
double VariableValue(EngineState& state, std::u16string_view name);
// Lets VariableListing show the variables as they stand.
void BuildVariableListing(EngineState& state);

}  // namespace tessarondel
