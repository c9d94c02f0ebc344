#pragma once

#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// Performs the binary operator `op` on left and right, into left, then rounds
// to ApproximateBits places when that is 0..22. Division by zero reports 5 and
// leaves left; a run-time failure reports 6 or 99 and leaves left as it was.
void ApplyOperator(EngineState& state, std::u16string_view op, double& left, double right);

}  // namespace tessarondel
