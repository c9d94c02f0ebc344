// The engine's linear-time passes against the literal ones of literal_passes.cpp:
// the same text, the same completion and the same error on any input. The
// input is UTF-8: the text, then, after 0x1E, the custom function names
// ("{area},{f}") that the token pass and the lookups consult. Folding gets the
// text as typed; the rewriting passes get it lower-cased, as the engine does.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include "engine/exponent_scan.h"
#include "engine/name_lists.h"
#include "engine/source_folding.h"
#include "engine/text_codec.h"
#include "engine/token_stream.h"
#include "literal_passes.h"
#include "numbers/text_rules.h"

namespace {

using tessarondel::EngineState;

struct PassOutcome {
    std::u16string text;  // empty when the pass stopped at an error
    bool completed = true;
    bool flag = false;
    int number = 0;
    bool operator==(const PassOutcome&) const = default;
};

using Pass = std::function<bool(EngineState&, std::u16string&)>;

PassOutcome Run(const Pass& pass, std::u16string text, std::u16string_view customNames) {
    EngineState state;
    state.CustomFunctionNames = customNames;
    const bool completed = pass(state, text);
    return {completed ? text : u"", completed, state.ErrorFlag, state.ErrorNumber};
}

void Compare(const Pass& linear, const Pass& literal, const std::u16string& text, std::u16string_view customNames) {
    if (!(Run(linear, text, customNames) == Run(literal, text, customNames))) std::abort();
}

void ComparePasses(const std::u16string& typed, std::u16string_view customNames) {
    namespace literal = tessarondel::literal;
    Compare([](EngineState&, std::u16string& t) { return tessarondel::FoldSource(t), true; },
            [](EngineState&, std::u16string& t) { return t = literal::FoldSource(t), true; }, typed, customNames);
    const std::u16string text = tessarondel::AsciiLower(typed);
    Compare([](EngineState& state, std::u16string& t) { return tessarondel::ScanExponents(state, t), true; },
            [](EngineState& state, std::u16string& t) { return t = literal::ScanExponents(state, t), true; }, text,
            customNames);
    // Percent signs one by one, then the restarting word operator pass.
    Compare(
        [](EngineState&, std::u16string& t) {
            std::u16string room;
            return tessarondel::ReplacePercentSignsAndWordOperators(t, room), true;
        },
        [](EngineState&, std::u16string& t) {
            for (std::size_t at = t.find(u'%'); at != std::u16string::npos; at = t.find(u'%', at)) {
                t.replace(at, 1, u"*(0.01)");
            }
            return t = literal::ReplaceWordOperators(t), true;
        },
        text, customNames);
    Compare(tessarondel::RunTokenPass, literal::RunTokenPass, text, customNames);
}

// The text's prefixes up to 14 characters long, looked up as names: the
// literal lookups search the whole lists, too slow for every piece.
void CompareLookups(const std::u16string& text, std::u16string_view customNames) {
    namespace literal = tessarondel::literal;
    EngineState state;
    state.CustomFunctionNames = customNames;
    for (const char16_t c : text) {
        if (tessarondel::IsDelimiterChar(c) != literal::IsListedDelimiter(c)) std::abort();
    }
    for (std::size_t length = 0; length <= std::min<std::size_t>(text.size(), 14); ++length) {
        const std::u16string_view name = std::u16string_view(text).substr(0, length);
        bool same = tessarondel::IsFunctionName(state, name) == literal::IsFunctionName(state, name) &&
                    tessarondel::IsKnownName(state, name) == literal::IsKnownName(state, name) &&
                    tessarondel::IsConstantName(name) == literal::InList(name, tessarondel::ConstantList);
        for (const std::u16string_view list : {tessarondel::BuiltinFunctionList, tessarondel::AliasList,
                                               tessarondel::WordOperatorList, tessarondel::ConstantList}) {
            same = same && tessarondel::InBracedList(name, list) == literal::InList(name, list);
        }
        if (!same) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t separator = input.find('\x1e');
    const std::u16string text = tessarondel::ToUtf16(input.substr(0, separator));
    const std::u16string customNames =
        separator == std::string_view::npos ? u"" : tessarondel::ToUtf16(input.substr(separator + 1));
    ComparePasses(text, customNames);
    CompareLookups(text, customNames);
    return 0;
}
