#include <bit>
#include <cmath>
#include <cstdint>

#include "engine/engine.h"
#include "engine/errors.h"
#include "engine/ladder.h"
#include "engine/source_folding.h"
#include "engine/token_reader.h"
#include "engine/token_stream.h"
#include "engine/variables.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Values at or under this are zero to the user; at or over the limit they are
// infinite. The limit is the 15-digit text of the largest double, read back,
// which is what the constant inf lands on.
const double ZeroThreshold = std::bit_cast<double>(std::uint64_t{0x3D3BD03C81406979});
const double InfinityLimit = std::bit_cast<double>(std::uint64_t{0x7FEFFFFFFFFFFFE2});

constexpr std::u16string_view NoteLineResult = u"Tessarondel Note Line";
constexpr std::u16string_view ErrorResult = u"Error";

std::u16string Fail(EngineState& state) {
    state.LastAnswer = 0;
    return std::u16string(ErrorResult);
}

std::u16string Classify(EngineState& state, double value) {
    if (std::fabs(value) <= ZeroThreshold) {
        state.LastAnswer = 0;
        return u"0";
    }
    if (value >= InfinityLimit) {
        state.LastAnswer = InfinityLimit;
        return u"Inf";
    }
    if (value <= -InfinityLimit) {
        state.LastAnswer = -InfinityLimit;
        return u"-Inf";
    }
    state.LastAnswer = value;
    return DisplayNumberText(value);
}

// The stages after the note is cut off: token stream, first token, ladder.
std::u16string EvaluateCode(EngineState& state, std::u16string_view code) {
    // The last evaluation's stream is read out: its storage builds the new one.
    state.TokenStream.Assign(BuildTokenStream(state, code, state.TokenStream.Release()));
    if (state.ErrorFlag) return Fail(state);
    ReadToken(state);
    if (state.CurrentToken.empty()) {
        state.ReportError(EmptyExpression);
        return Fail(state);
    }
    double value = 0;
    Ladder(state).ParseList(value);
    std::u16string result = Classify(state, value);
    if (state.ErrorFlag) result = Fail(state);
    BuildVariableListing(state);
    return result;
}

}  // namespace

std::u16string EvaluateExpression(EngineState& state, std::u16string& expression) {
    std::u16string result;
    RunWithFailureHandler(state, [&] {
        state.ErrorFlag = false;
        FoldSource(expression);
        if (TrimBlanks(expression).empty()) {
            state.ReportError(EmptyExpression);
            return;
        }
        // Everything behind the first apostrophe is a note, across line ends too.
        const std::u16string_view code = std::u16string_view(expression).substr(0, FindChar(expression, u'\''));
        if (TrimBlanks(code).empty()) {
            state.LastAnswer = 0;
            result = NoteLineResult;
            return;
        }
        expression.resize(code.size());
        result = EvaluateCode(state, expression);
    });
    return result;
}

std::u16string EvaluateText(EngineState& state, std::u16string_view expression) {
    // The copy lives in the state, whose room serves the next evaluation too.
    std::u16string& copy = state.ExpressionCopy;
    copy.assign(expression);
    return EvaluateExpression(state, copy);
}

}  // namespace tessarondel
