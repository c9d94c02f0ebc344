#pragma once

#include <string>

#include "engine/engine_state.h"

namespace tessarondel {

// Rewrites every decimal exponent literal "<m>e<x>" of `src` as "<m>*(10^<x>)",
// after trimming and lower-casing it. Reports error 5 and stops at the first
// malformed literal, leaving the text as it stood before that literal.
void ScanExponents(EngineState& state, std::u16string& src);

}  // namespace tessarondel
