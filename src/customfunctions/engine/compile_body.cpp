// Marking the parameters of a body as {name}, so the expansion can bind them.
#include <string>

#include "customfunctions/engine/function_table.h"
#include "customfunctions/engine/function_text.h"
#include "engine/errors.h"
#include "engine/name_lists.h"

namespace tessarondel {

namespace {

// Whether the character at 1-based `position` is a delimiter; outside the
// body there is the empty text, which counts as one.
bool IsDelimiterAt(std::u16string_view body, long position) {
    if (position < 1 || position > static_cast<long>(body.size())) return true;
    return IsDelimiterChar(body[static_cast<std::size_t>(position - 1)]);
}

// One parameter's pass over the body. Positions are 1-based and 0 means "not
// found"; the blank is no delimiter, so `x + y` stays unmarked, and a body one
// character shorter than a name it doesn't hold becomes that name's mark.
std::u16string MarkParameter(std::u16string body, std::u16string_view name) {
    const long L = static_cast<long>(name.size());
    const std::u16string braced = u"{" + std::u16string(name) + u"}";
    const auto length = [&body] { return static_cast<long>(body.size()); };
    const auto left = [&body](long count) { return body.substr(0, static_cast<std::size_t>(count)); };
    const auto from = [&body](long position) { return body.substr(static_cast<std::size_t>(position - 1)); };
    long pos = 0;
    do {
        pos = static_cast<long>(FindText(body, name, static_cast<std::size_t>(pos + 1)));
        const bool ends = pos + L - 1 == length();
        if (pos == 1) {
            if (L >= length()) {
                body = braced;
                pos = L + 3;
            } else if (IsDelimiterAt(body, L + 1)) {
                body = braced + from(L + 1);
                pos = L + 3;
            }
        } else if (ends) {
            if (pos == 0) {
                body = braced;
                pos = pos + L + 2;
            } else if (IsDelimiterAt(body, pos - 1)) {
                body = left(pos - 1) + braced;
                pos = pos + L + 2;
            }
        } else if (pos >= 1 && pos + L - 1 < length() && IsDelimiterAt(body, pos - 1) && IsDelimiterAt(body, pos + L)) {
            body = left(pos - 1) + braced + from(pos + L);
            pos = pos + L + 2;
        }
    } while (pos + L - 1 < length() && pos != 0);
    return body;
}

}  // namespace

void CompileCustomFunctionBody(EngineState& state, CustomFunctionEntry& entry) {
    if (entry.NoParameters) {
        entry.CompiledBody = entry.Expression;
        return;
    }
    // After a failure CompiledBody stays as it was.
    RunWithFailureHandler(state, [&entry] {
        std::u16string body = entry.Expression;
        for (const CustomFunctionParameter& parameter : entry.Parameters.Items()) {
            body = MarkParameter(std::move(body), parameter.Name);
        }
        entry.CompiledBody = std::move(body);
    });
}

}  // namespace tessarondel
