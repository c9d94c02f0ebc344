#pragma once

#include <string>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// Replaces every call of a custom function in `text` by its body with the
// argument texts bound; finds the calls by reading tokens as the reader does,
// without creating variables. On a
// refused call the error is reported and the text so far is returned; after a
// run-time fault the empty text.
std::u16string ExpandCustomFunctionCalls(EngineState& state, std::u16string text);

bool IsCustomFunctionName(const EngineState& state, std::u16string_view token);

// Cuts the argument text of one call at its commas, keeping the commas of
// nested brackets, into `arguments`. Leaves ErrorNumber 99 behind even on
// success. `arguments` keeps its old contents when the cut fails.
bool SplitCallArguments(EngineState& state, std::u16string_view argumentText, long parameterUpperBound,
                        SlotList<std::u16string>& arguments, const CustomFunctionEntry& entry);

// The replacement text of a call with parameters: each {name} mark becomes the
// bracketed argument, and the whole is bracketed. Fills the Values of `entry`,
// which is the call's private copy.
std::u16string BindCustomFunctionBody(EngineState& state, CustomFunctionEntry& entry,
                                      const SlotList<std::u16string>& arguments);

}  // namespace tessarondel
