#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// The engine's table of custom functions: how a function gets in, what is
// refused (and in which order), how it is replaced and how it leaves.

struct CustomFunctionDocument {
    std::u16string Name;
    std::u16string ParameterText;
    std::u16string Expression;
    std::u16string Description;
};

// What adding and updating take. `Unused` keeps the record's shape: the fourth
// text has never carried anything.
struct CustomFunctionInput {
    std::u16string Name;
    std::u16string ParameterText;
    std::u16string Expression;
    std::u16string Unused;
    std::u16string Description;
};

bool DefineCustomFunction(EngineState& state, std::u16string_view name, std::u16string_view parameters,
                          std::u16string_view expression, std::u16string_view description);
// May throw RunFailure when the table never got slots; callers decide.
bool RedefineCustomFunction(EngineState& state, std::u16string_view name, std::u16string_view parameters,
                            std::u16string_view expression, std::u16string_view description);
// May throw RunFailure when the table never got slots; callers decide.
bool DropCustomFunction(EngineState& state, std::u16string_view name);
std::int32_t FindCustomFunctionIndex(EngineState& state, std::u16string_view name);

// Report their own refusals (ErrorFlag cleared first, so the report counts).
bool AddCustomFunction(EngineState& state, CustomFunctionInput input);
bool UpdateCustomFunction(EngineState& state, CustomFunctionInput input);
bool RemoveCustomFunction(EngineState& state, const CustomFunctionEntry& entry);

void NormaliseCustomFunctionInput(CustomFunctionInput& input);

// Marks each parameter that stands between delimiters as {name} in CompiledBody.
void CompileCustomFunctionBody(EngineState& state, CustomFunctionEntry& entry);

// Runs a loaded document through the engine; turns ShowErrorBox off. A fault
// ends it quietly with false.
bool DefineDocument(EngineState& state, const CustomFunctionDocument& document);

// The stored body of a multi-line expression: notes stripped, blank lines
// dropped, lines joined by commas. Throws RunFailure when nothing is left.
std::u16string PrepareExpressionList(std::u16string_view lines);

// A line cut at its first apostrophe, trimmed.
std::u16string StripNote(std::u16string_view line);

}  // namespace tessarondel
