#include "customfunctions/engine/call_expansion.h"

#include <cstdint>
#include <optional>
#include <vector>

#include "customfunctions/engine/function_table.h"
#include "customfunctions/engine/function_text.h"
#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/token_reader.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Positions in the expansion are 16-bit: a text beyond 32,767 characters
// overflows them.
std::size_t Position(std::size_t position) {
    if (position > 32767) throw OverflowFailure();
    return position;
}

struct CallSite {
    std::size_t open = 0;   // 1-based position of the token's `name(`
    std::size_t close = 0;  // 1-based position of its closing bracket; 0 when none matches
};

// The first `token(` anywhere in the text (not necessarily the token just read)
// and its matching bracket, found by counting round brackets only.
CallSite FindCallSite(std::u16string_view text, std::u16string_view token) {
    CallSite site;
    site.open = Position(FindText(text, std::u16string(token) + u"("));
    if (site.open == 0) return site;
    int depth = 1;
    std::size_t i = Position(site.open + token.size() + 1);
    do {
        const char16_t c = i <= text.size() ? text[i - 1] : u'\0';
        if (c == u'(') ++depth;
        if (c == u')') --depth;
        i = Position(i + 1);
    } while (i <= text.size() && depth != 0);
    if (depth == 0) site.close = i - 1;
    return site;
}

// Cuts the argument text at commas; a piece with more opening brackets takes
// the following pieces along until the counts agree.
bool CutArguments(EngineState& state, std::u16string_view argumentText, std::vector<std::u16string>& result) {
    const std::vector<std::u16string> parts = SplitText(argumentText, u",");
    const std::size_t last = parts.size() - 1;
    for (std::size_t k = 0; k <= last; ++k) {
        if (TrimBlanks(parts[k]).empty()) {
            state.ErrorNumber = InvalidParameters;
            return false;
        }
        int opening = CountChar(state, parts[k], u'(');
        int closing = CountChar(state, parts[k], u')');
        if (opening < closing) return false;
        if (opening == closing) {
            result.push_back(parts[k]);
            continue;
        }
        const std::size_t first = k;
        do {
            ++k;
            opening += CountChar(state, parts.at(k), u'(');
            closing += CountChar(state, parts.at(k), u')');
        } while (k < last && closing < opening);
        if (opening != closing) return false;
        std::u16string joined = parts[first];
        for (std::size_t j = first + 1; j <= k; ++j) joined += u"," + parts[j];
        result.push_back(std::move(joined));
    }
    return true;
}

// The text that replaces one call, or nothing when the call is refused (the
// number to report is then in ErrorNumber).
bool BuildReplacement(EngineState& state, const std::u16string& token, std::u16string_view argumentText,
                      SlotList<std::u16string>& arguments, std::u16string& replacement) {
    CustomFunctionEntry entry = state.CustomFunctionTable[FindCustomFunctionIndex(state, token)];
    if (entry.NoParameters) {
        if (!argumentText.empty()) {
            state.ErrorNumber = InvalidParameters;
            return false;
        }
        // No brackets around a body without parameters: `1+2` called in `j()*2` gives 1+2*2.
        replacement = entry.CompiledBody;
        return true;
    }
    if (!SplitCallArguments(state, argumentText, entry.Parameters.UpperBound(), arguments, entry)) return false;
    replacement = TrimBlanks(BindCustomFunctionBody(state, entry, arguments));
    return true;
}

// The first token of `text` that names a custom function, read as the reader
// reads, from the first character. The walk keeps its own cursor, so it
// creates no variables; it stops where the reader stops. Error 3 of the reader
// is reported here. The empty token it ends on names nothing: a name that
// begins with "}" or ends with "{" puts "{}" into the name list, and the empty
// token would then expand the first bracket of the text for ever.
std::optional<std::u16string_view> FindCustomName(EngineState& state, std::u16string_view text) {
    std::u16string_view rest = text;
    while (true) {
        rest = TrimBlanks(rest);
        const TokenShape shape = ShapeOfToken(rest);
        if (shape.invalid) state.ReportError(InvalidIdentifiers);
        if (shape.length == 0) return std::nullopt;
        const std::u16string_view token = rest.substr(0, shape.length);
        if (IsCustomFunctionName(state, token)) return TrimBlanks(token);
        rest.remove_prefix(shape.length);
    }
}

// One pass of the scan: finds the first custom name, and expands its first
// call everywhere. Returns false when the scan reached the end or was refused.
bool ExpandNextCall(EngineState& state, std::u16string& text, SlotList<std::u16string>& arguments, bool& refused) {
    const std::optional<std::u16string_view> found = FindCustomName(state, text);
    if (!found) return false;
    const std::u16string token(*found);
    const CallSite site = FindCallSite(text, token);
    if (site.open == 0 || site.close == 0) {
        if (site.open != 0) state.ErrorNumber = BracketsMismatch;
        refused = true;
        return false;
    }
    const std::size_t argumentStart = site.open + token.size() + 1;
    const std::u16string_view argumentText =
        std::u16string_view(text).substr(argumentStart - 1, site.close - argumentStart);
    std::u16string replacement;
    if (!BuildReplacement(state, token, argumentText, arguments, replacement)) {
        refused = true;
        return false;
    }
    const std::u16string callText = text.substr(site.open - 1, site.close - site.open + 1);
    // Only a table put out of step by dropping an unknown name lets a name
    // reach a body that holds its own call. Then the restart finds the same
    // call for ever: unchanged, a fault; growing, until the text is longer
    // than its 16-bit positions can count.
    if (replacement == callText) throw RunFailure("a call that expands to itself");
    // Every identical call goes at once, and any text that merely ends in it.
    text = ReplaceAll(text, callText, replacement);
    Position(text.size());
    return true;
}

}  // namespace

bool IsCustomFunctionName(const EngineState& state, std::u16string_view token) {
    // Most sessions define no functions; the walk then only reads tokens.
    if (state.CustomFunctionNames.empty()) return false;
    return InBracedList(AsciiLower(TrimBlanks(token)), state.CustomFunctionNames);
}

std::u16string ExpandCustomFunctionCalls(EngineState& state, std::u16string text) {
    // Keeps its contents from one call to the next in this pass: an empty call
    // after a good one passes the bound test and is refused by its blankness.
    SlotList<std::u16string> arguments;
    const bool finished = RunWithFailureHandler(state, [&] {
        bool refused = false;
        // After each replacement the scan starts again at the first character.
        bool expanded = true;
        while (expanded) expanded = ExpandNextCall(state, text, arguments, refused);
        if (refused) state.ReportError(state.ErrorNumber);
    });
    if (!finished) return {};
    return text;
}

bool SplitCallArguments(EngineState& state, std::u16string_view argumentText, long parameterUpperBound,
                        SlotList<std::u16string>& arguments, const CustomFunctionEntry& entry) {
    state.ErrorNumber = UnknownError;
    bool failed = false;
    try {
        if (!argumentText.empty()) {
            std::vector<std::u16string> result;
            failed = !CutArguments(state, argumentText, result);
            if (!failed) arguments.Assign(std::move(result));
        }
        // Before any call of this pass filled `arguments`, this bound is the fault below.
        if (arguments.UpperBound() != parameterUpperBound) {
            failed = true;
            state.ErrorNumber = InvalidParameters;
        }
        if (TrimBlanks(argumentText).empty() == !entry.NoParameters) {
            failed = true;
            state.ErrorNumber = InvalidParameters;
        }
        return !failed;
    } catch (...) {
        state.ReportError(state.ErrorNumber);
        return false;
    }
}

std::u16string BindCustomFunctionBody(EngineState& state, CustomFunctionEntry& entry,
                                      const SlotList<std::u16string>& arguments) {
    std::u16string bound;
    RunWithFailureHandler(state, [&] {
        if (arguments.UpperBound() != entry.Parameters.UpperBound()) {
            state.ReportError(InvalidParameters);
            return;
        }
        for (long k = 0; k <= arguments.UpperBound(); ++k) entry.Parameters[k].Value = arguments[k];
        std::u16string body = entry.CompiledBody;
        for (const CustomFunctionParameter& parameter : entry.Parameters.Items()) {
            const std::u16string name(TrimBlanks(parameter.Name));
            if (name.empty()) break;
            body = ReplaceAll(body, u"{" + name + u"}", u"(" + std::u16string(TrimBlanks(parameter.Value)) + u")");
        }
        const std::u16string_view trimmed = TrimBlanks(body);
        if (!trimmed.empty() && AsciiLower(trimmed) != u"error") {
            bound = u"(" + body + u")";
        } else {
            // The call goes on to be replaced by nothing, but the error stands.
            state.ReportError(state.ErrorNumber);
        }
    });
    return bound;
}

}  // namespace tessarondel
