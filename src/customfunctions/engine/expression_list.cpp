// From a document's multi-line expression to the body the table stores.
#include <string>

#include "customfunctions/engine/function_table.h"
#include "customfunctions/engine/function_text.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

std::u16string StripNote(std::u16string_view line) {
    return std::u16string(TrimBlanks(line.substr(0, line.find(u'\''))));
}

std::u16string PrepareExpressionList(std::u16string_view lines) {
    std::u16string joined;
    for (const std::u16string& line : SplitText(lines, u"\r\n")) {
        const std::u16string kept = StripNote(line);
        if (kept.empty() || kept == u"\t") continue;
        joined += kept;
        joined += u',';
    }
    // Cutting the last character off nothing is the failure that a list of
    // notes and blank lines ends in; the caller's handler decides.
    const std::u16string_view trimmed = TrimBlanks(joined);
    if (trimmed.empty()) throw RunFailure("left part of negative length");
    // Every kept line is followed by a comma, so the last character is one.
    return std::u16string(trimmed.substr(0, trimmed.size() - 1));
}

bool DefineDocument(EngineState& state, const CustomFunctionDocument& document) {
    state.ShowErrorBox = false;
    try {
        const std::u16string name = ReplaceAll(document.Name, u"\r\n", u" ");
        const std::u16string parameters = ReplaceAll(document.ParameterText, u"\r\n", u" ");
        const std::u16string body = PrepareExpressionList(document.Expression);
        return DefineCustomFunction(state, name, parameters, body, document.Description);
    } catch (const std::runtime_error&) {
        return false;
    }
}

}  // namespace tessarondel
