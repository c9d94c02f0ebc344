#pragma once

#include <string>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel::literal {

// The rewriting passes exactly as they are told, with their restarts from the
// first position, their whole-text replacements and their backward walks. The
// engine does the same in linear time; fuzz_literal_passes compares the two
// on arbitrary texts.
std::u16string FoldSource(std::u16string text);

// The name lists read as texts: "{name}" occurs in the list.
bool InList(std::u16string_view name, std::u16string_view list);
bool IsListedDelimiter(char16_t c);
bool IsFunctionName(const EngineState& state, std::u16string_view name);
bool IsKnownName(const EngineState& state, std::u16string_view name);

std::u16string ScanExponents(EngineState& state, std::u16string src);
std::u16string ReplaceWordOperators(std::u16string src);
// Returns false after an error that stops the build.
bool RunTokenPass(EngineState& state, std::u16string& src);

}  // namespace tessarondel::literal
