#pragma once

#include <string>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// Rewrites a source (folded, without its note) into the token stream: lower
// case, custom calls expanded, exponents, percent signs, word operators,
// constants and aliases rewritten, every token checked. Returns the empty text
// after an error that stops it; the caller tests ErrorFlag. The stream is
// built in `storage`, whose room is reused.
std::u16string BuildTokenStream(EngineState& state, std::u16string_view source, std::u16string storage = {});

// The passes of BuildTokenStream, in their order, rewriting in place.
// `room` is spare storage that the pass may swap with `src`.
void ReplacePercentSignsAndWordOperators(std::u16string& src, std::u16string& room);
// Checks and rewrites every token; false after an error that stops the build.
bool RunTokenPass(EngineState& state, std::u16string& src);
void InsertSignZeros(std::u16string& src);

// The stream text that a constant or an alias (lower case) is rewritten to;
// the empty text for any other name.
std::u16string_view StreamReplacement(std::u16string_view name);

}  // namespace tessarondel
