#include "engine/variables.h"

#include <algorithm>

#include "engine/engine.h"
#include "engine/errors.h"
#include "engine/name_lists.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

std::u16string Braced(std::u16string_view name) {
    std::u16string braced;
    braced.reserve(name.size() + 2);
    braced += u'{';
    braced += name;
    braced += u'}';
    return braced;
}

bool NoVariables(const EngineState& state) { return TrimBlanks(state.VariableNames).empty(); }

}  // namespace

bool VariableExists(const EngineState& state, std::u16string_view name) {
    const std::u16string_view trimmed = TrimBlanks(name);
    // The reader's names come lower-cased already; only others need a copy.
    if (std::none_of(trimmed.begin(), trimmed.end(), [](char16_t c) { return c >= u'A' && c <= u'Z'; })) {
        return InBracedList(trimmed, state.VariableNames);
    }
    return InBracedList(AsciiLower(trimmed), state.VariableNames);
}

std::int32_t VariableIndex(EngineState& state, std::u16string_view name) {
    // VariableNames holds lower-case names only (AddVariable lowers them).
    const std::size_t at = FindBracedName(TrimBlanks(name), state.VariableNames);
    if (at == std::u16string::npos || at == 0) return 1;
    return CountChar(state, std::u16string_view(state.VariableNames).substr(0, at), u'}') + 1;
}

void AddVariable(EngineState& state, std::u16string_view name) {
    const std::u16string lowered = AsciiLower(TrimBlanks(name));
    if (NoVariables(state)) state.VariableTable.assign(1, VariableSlot{});
    state.VariableNames += Braced(lowered);
    const auto slot = static_cast<std::size_t>(CountChar(state, state.VariableNames, u'}'));
    state.VariableTable.resize(slot + 1);
    state.VariableTable[slot] = VariableSlot{lowered, 0.0};
}

double VariableValue(EngineState& state, std::u16string_view name) {
    return state.VariableTable.at(static_cast<std::size_t>(VariableIndex(state, name))).value;
}

void ClearVariables(EngineState& state) {
    state.VariableNames.clear();
    state.VariableTable.assign(1, VariableSlot{});
}

int GetVariableSnapshot(EngineState& state, std::vector<VariableRecord>& list) {
    if (NoVariables(state)) return 0;
    const std::size_t count = state.VariableTable.size() - 1;
    list.resize(count);
    for (std::size_t i = 1; i <= count; ++i) {
        const VariableSlot& slot = state.VariableTable[i];
        list[i - 1] = VariableRecord{slot.name, std::u16string(TrimBlanks(NumberText(slot.value)))};
    }
    return static_cast<int>(count);
}

void BuildVariableListing(EngineState& state) { state.VariableListing.Take(state.VariableNames, state.VariableTable); }

}  // namespace tessarondel
