#pragma once

#include <string>

#include "engine/engine_state.h"

namespace tessarondel {

// Rewrites every decimal exponent literal "<m>e<x>" of `src` (lower case) as
// "<m>*(10^<x>)", after trimming it. Reports error 5 and stops at the first
// malformed literal, leaving the text as it stood before that literal.
void ScanExponents(EngineState& state, std::u16string& src);

}  // namespace tessarondel
