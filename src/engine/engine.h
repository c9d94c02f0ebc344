#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/engine_state.h"

namespace tessarondel {

// The engine's entry: evaluates `expression` (which is left folded and cut at
// its note) and returns the result text; sets LastAnswer and the error fields.
std::u16string EvaluateExpression(EngineState& state, std::u16string& expression);

// What front ends call: evaluates a copy of `expression`.
std::u16string EvaluateText(EngineState& state, std::u16string_view expression);

// Fills `list` with one record per variable (name, NumberText trimmed) and
// returns the count; returns 0 and leaves `list` alone when there are none.
int GetVariableSnapshot(EngineState& state, std::vector<VariableRecord>& list);

void ClearVariables(EngineState& state);

// The exact message of an error number; the empty text for unused numbers.
std::u16string_view ErrorMessage(int number);

}  // namespace tessarondel
