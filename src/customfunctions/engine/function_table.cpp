#include "customfunctions/engine/function_table.h"

#include <vector>

#include "customfunctions/engine/function_text.h"
#include "engine/errors.h"
#include "engine/name_lists.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Records the number of a refusal; the caller reports it.
bool Refuse(EngineState& state, int number) {
    state.ErrorNumber = number;
    return false;
}

// Clears ErrorFlag first, so an earlier error can't swallow this report.
bool ReportRefusal(EngineState& state) {
    state.ErrorFlag = false;
    state.ReportError(state.ErrorNumber);
    return false;
}

long CountClosingBraces(std::u16string_view names) { return static_cast<long>(CountOccurrences(names, u'}')); }

// Whether any slot's body holds `call`, stale slots included. Every hit means
// error 10, so stopping at the first one or going on gives the same.
bool AnySlotCalls(const EngineState& state, std::u16string_view call) {
    const auto& table = state.CustomFunctionTable;
    for (long k = 0; k <= table.UpperBound(); ++k) {
        if (ContainsText(call, table[k].Expression)) return true;
    }
    return false;
}

// Gives `parameters` the bounds of the comma-split list and fills the names.
// False at the first blank piece, with what came before it already filled.
bool FillParameters(SlotList<CustomFunctionParameter>& parameters, std::u16string_view parameterText) {
    const std::vector<std::u16string> pieces = SplitText(parameterText, u",");
    parameters.Assign(std::vector<CustomFunctionParameter>(pieces.size()));
    for (std::size_t k = 0; k < pieces.size(); ++k) {
        const std::u16string name(TrimBlanks(pieces[k]));
        if (name.empty()) return false;
        parameters[static_cast<long>(k)] = {name, u"0"};
    }
    return true;
}

// The name is tested bare against the joined lists, so a name that is any part
// of an entry (`a` of {max}, `are` of {area}) is refused.
bool PassesAddChecks(EngineState& state, const CustomFunctionInput& input) {
    if (TrimBlanks(input.Name).empty()) return Refuse(state, InvalidName);
    std::u16string reserved(BuiltinFunctionList);
    reserved.append(AliasList).append(state.CustomFunctionNames).append(WordOperatorList).append(ConstantList);
    if (ContainsText(input.Name, reserved)) return Refuse(state, RedefinedFunction);
    if (TrimBlanks(input.Expression).empty()) return Refuse(state, EmptyExpression);
    const std::u16string call = input.Name + u"(";
    if (ContainsText(call, input.Expression)) return Refuse(state, RecursiveFunctions);
    if (!TrimBlanks(state.CustomFunctionNames).empty() && AnySlotCalls(state, call))
        return Refuse(state, RecursiveFunctions);
    return true;
}

// The checks and changes of an update of slot `i`; false leaves the number to report in ErrorNumber.
bool ApplyUpdate(EngineState& state, long i, const CustomFunctionInput& input) {
    if (i == 0) return false;
    if (TrimBlanks(input.Expression).empty()) return Refuse(state, EmptyExpression);
    const std::u16string call = input.Name + u"(";
    if (ContainsText(call, input.Expression)) return Refuse(state, RecursiveFunctions);
    // The slot's own old body takes part: a function that another calls can't change.
    if (!TrimBlanks(state.CustomFunctionNames).empty() && AnySlotCalls(state, call))
        return Refuse(state, RecursiveFunctions);
    CustomFunctionEntry& entry = state.CustomFunctionTable[i];
    const std::u16string parameterText(TrimBlanks(input.ParameterText));
    // A blank list keeps the old Parameters in the slot.
    if (!parameterText.empty() && !FillParameters(entry.Parameters, parameterText)) return false;
    entry.Name = input.Name;
    entry.Expression = input.Expression;
    entry.ParameterText = parameterText;
    entry.NoParameters = parameterText.empty();
    entry.Description = input.Description;
    CompileCustomFunctionBody(state, entry);
    return true;
}

}  // namespace

void NormaliseCustomFunctionInput(CustomFunctionInput& input) {
    input.Name = AsciiLower(TrimBlanks(input.Name));
    input.Expression = AsciiLower(TrimBlanks(input.Expression));
    input.ParameterText = AsciiLower(TrimBlanks(input.ParameterText));
    input.Description = AsciiLower(TrimBlanks(input.Description));
}

std::int32_t FindCustomFunctionIndex(EngineState& state, std::u16string_view name) {
    state.CustomFunctionNames = AsciiLower(TrimBlanks(state.CustomFunctionNames));
    const std::u16string& names = state.CustomFunctionNames;
    const std::size_t p = FindText(names, u"{" + AsciiLower(TrimBlanks(name)) + u"}");
    if (p <= 1) return static_cast<std::int32_t>(p);
    return static_cast<std::int32_t>(CountClosingBraces(std::u16string_view(names).substr(0, p - 1)) + 1);
}

bool AddCustomFunction(EngineState& state, CustomFunctionInput input) {
    NormaliseCustomFunctionInput(input);
    const std::u16string savedNames = state.CustomFunctionNames;
    auto& table = state.CustomFunctionTable;
    if (TrimBlanks(state.CustomFunctionNames).empty()) table.Assign(std::vector<CustomFunctionEntry>(1));
    if (!PassesAddChecks(state, input)) return ReportRefusal(state);

    state.CustomFunctionNames += u"{" + input.Name + u"}";
    const long n = CountClosingBraces(state.CustomFunctionNames);
    table.Resize(n);
    // A slot that was stale keeps its old Parameters; with NoParameters they are never read.
    CustomFunctionEntry& entry = table[n];
    entry.Name = input.Name;
    entry.Expression = input.Expression;
    entry.ParameterText = TrimBlanks(input.ParameterText);
    entry.NoParameters = true;
    entry.Description = input.Description;
    if (!TrimBlanks(input.ParameterText).empty()) {
        entry.NoParameters = false;
        if (!FillParameters(entry.Parameters, input.ParameterText)) {
            state.CustomFunctionNames = savedNames;
            table.Resize(n - 1);
            return ReportRefusal(state);
        }
    }
    CompileCustomFunctionBody(state, entry);
    return true;
}

bool UpdateCustomFunction(EngineState& state, CustomFunctionInput input) {
    NormaliseCustomFunctionInput(input);
    const long i = FindCustomFunctionIndex(state, input.Name);
    // Before the first add the table has no slots, and this copy is the failure the caller meets.
    const CustomFunctionEntry saved = state.CustomFunctionTable[i];
    if (ApplyUpdate(state, i, input)) return true;
    state.ErrorFlag = false;
    state.CustomFunctionTable[i] = saved;
    state.ReportError(state.ErrorNumber);
    return false;
}

bool RemoveCustomFunction(EngineState& state, const CustomFunctionEntry& entry) {
    const long n = CountClosingBraces(state.CustomFunctionNames);
    if (n < 1) return false;
    const std::u16string name = entry.Name;  // `entry` may be a slot that the loop below overwrites
    const long i = FindCustomFunctionIndex(state, name);
    state.CustomFunctionNames = ReplaceAll(state.CustomFunctionNames, u"{" + name + u"}", u"");
    // The table keeps its size: the last used slot stays behind as a stale copy.
    for (long k = i; k <= n - 1; ++k) state.CustomFunctionTable[k] = state.CustomFunctionTable[k + 1];
    return true;
}

bool DefineCustomFunction(EngineState& state, std::u16string_view name, std::u16string_view parameters,
                          std::u16string_view expression, std::u16string_view description) {
    const auto trimmed = [](std::u16string_view text) { return std::u16string(TrimBlanks(text)); };
    return AddCustomFunction(state,
                             {trimmed(name), trimmed(parameters), trimmed(expression), u"", trimmed(description)});
}

bool RedefineCustomFunction(EngineState& state, std::u16string_view name, std::u16string_view parameters,
                            std::u16string_view expression, std::u16string_view description) {
    return UpdateCustomFunction(state, {std::u16string(name), std::u16string(parameters), std::u16string(expression),
                                        u"", std::u16string(description)});
}

bool DropCustomFunction(EngineState& state, std::u16string_view name) {
    // An unknown name takes slot 0, and the removal shifts every entry down.
    const CustomFunctionEntry entry = state.CustomFunctionTable[FindCustomFunctionIndex(state, name)];
    return RemoveCustomFunction(state, entry);
}

}  // namespace tessarondel
