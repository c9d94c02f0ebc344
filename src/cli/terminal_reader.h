#pragma once

#include <filesystem>
#include <optional>

#include "cli/cli_app.h"
#include "engine/engine_state.h"

namespace tessarondel {

// Standard input for a person at a terminal: a "> " prompt with line editing,
// Tab completing the names CompletionNames gives for `engine`, and Up and Down
// through the lines entered before. With `historyFile` those lines carry over
// from earlier sessions: the newest 1,000 are kept there, readable by the user
// alone. One reader per process: the line editor is a single global.
LineReader TerminalReader(const EngineState& engine, std::optional<std::filesystem::path> historyFile);

}  // namespace tessarondel
