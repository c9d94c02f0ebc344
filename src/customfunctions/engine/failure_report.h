#pragma once

#include "engine/engine_state.h"
#include "numbers/run_failure.h"

namespace tessarondel {

// The failure handler of the custom function procedures, called from a catch
// block: the overflow failure reports 6, any other failure 99.
inline void ReportCaughtFailure(EngineState& state) {
    try {
        throw;
    } catch (const OverflowFailure&) {
        state.ReportError(6);
    } catch (...) {
        state.ReportError(99);
    }
}

}  // namespace tessarondel
