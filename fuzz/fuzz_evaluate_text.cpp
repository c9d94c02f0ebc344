// Feeds arbitrary bytes through EvaluateText. The first byte picks the
// auto-rounding places; the rest is split at 0x1E into expressions that run
// one after the other in one engine, so variables and the comma list carry
// over. Whatever comes in, no failure may escape and no infinity or NaN may
// become a value.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "engine/engine.h"
#include "engine/text_codec.h"

namespace {

using tessarondel::EngineState;

bool IsAllowedResult(const std::u16string& result, const EngineState& state) {
    if (state.ErrorFlag) return result == u"Error" || result.empty();
    return !result.empty();
}

void CheckInvariants(const std::u16string& result, const EngineState& state) {
    if (!std::isfinite(state.LastAnswer) || !IsAllowedResult(result, state)) std::abort();
    for (std::size_t i = 1; i < state.VariableTable.size(); ++i) {
        if (!std::isfinite(state.VariableTable[i].value)) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    EngineState state;
    state.ApproximateBits = static_cast<int>(data[0] % 25) - 1;
    std::string_view rest(reinterpret_cast<const char*>(data + 1), size - 1);
    while (true) {
        const std::size_t separator = rest.find('\x1e');
        const std::u16string result = tessarondel::EvaluateText(state, tessarondel::ToUtf16(rest.substr(0, separator)));
        CheckInvariants(result, state);
        if (separator == std::string_view::npos) break;
        rest.remove_prefix(separator + 1);
    }
    std::vector<tessarondel::VariableRecord> records;
    tessarondel::GetVariableSnapshot(state, records);
    return 0;
}
