#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/engine.h"
#include "engine/text_codec.h"

namespace tessarondel::testing_engine {

// A fresh engine as a front end sets it up: auto-rounding off.
inline EngineState FreshEngine() {
    EngineState state;
    state.ApproximateBits = -1;
    return state;
}

// One evaluation: the result text, and the error number when the flag is set (-1 otherwise).
struct Outcome {
    std::string result;
    int error = -1;
};

inline Outcome Evaluate(EngineState& state, std::string_view utf8) {
    Outcome outcome;
    outcome.result = ToUtf8(EvaluateText(state, ToUtf16(utf8)));
    outcome.error = state.ErrorFlag ? state.ErrorNumber : -1;
    return outcome;
}

inline Outcome EvaluateFresh(std::string_view utf8) {
    EngineState state = FreshEngine();
    return Evaluate(state, utf8);
}

inline std::vector<std::pair<std::string, std::string>> Variables(EngineState& state) {
    std::vector<VariableRecord> records;
    const int count = GetVariableSnapshot(state, records);
    std::vector<std::pair<std::string, std::string>> out;
    for (int i = 0; i < count; ++i) {
        out.emplace_back(ToUtf8(records[static_cast<std::size_t>(i)].Name),
                         ToUtf8(records[static_cast<std::size_t>(i)].Value));
    }
    return out;
}

}  // namespace tessarondel::testing_engine
