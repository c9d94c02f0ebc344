// Placeholder until the custom function table lands: no custom names exist.
#include "customfunctions/engine/call_expansion.h"

namespace tessarondel {

std::u16string ExpandCustomFunctionCalls(EngineState&, std::u16string text) { return text; }

bool IsCustomFunctionName(const EngineState&, std::u16string_view) { return false; }

}  // namespace tessarondel
