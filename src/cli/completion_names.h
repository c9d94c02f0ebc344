#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/engine_state.h"

namespace tessarondel {

// The names a word at the prompt completes to: built-in functions and their
// aliases, constants, the session's variables and its custom functions, that
// start with `prefix` in any case. Sorted, each once, in UTF-8.
std::vector<std::string> CompletionNames(const EngineState& engine, std::string_view prefix);

}  // namespace tessarondel
