#include "engine/token_reader.h"

#include <array>

#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/variables.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// How a token starting with an ASCII character goes on, looked up rather than tested.
enum class TokenStart : unsigned char { Other, Number, Name, Operator };
constexpr auto TokenStarts = [] {
    std::array<TokenStart, 128> starts{};
    for (char16_t c = 0; c < starts.size(); ++c) {
        if (IsDigitChar(c)) {
            starts[c] = TokenStart::Number;
        } else if (IsLetterChar(c)) {
            starts[c] = TokenStart::Name;
        } else if (IsOperatorText(std::u16string_view(&c, 1))) {
            starts[c] = TokenStart::Operator;
        }
    }
    return starts;
}();
constexpr auto Delimiters = [] {
    std::array<bool, 128> delimiters{};
    for (char16_t c = 0; c < delimiters.size(); ++c) delimiters[c] = IsDelimiterChar(c);
    return delimiters;
}();

// Characters up to the first delimiter, blanks included. All delimiters are ASCII.
std::size_t NameLength(std::u16string_view rest) {
    std::size_t n = 1;
    while (n < rest.size() && (rest[n] >= Delimiters.size() || !Delimiters[rest[n]])) ++n;
    return n;
}

// A "$h", "$o" or "$b" literal: up to a delimiter or the next "$".
std::size_t BaseLiteralLength(std::u16string_view rest) {
    std::size_t n = 2;
    while (n < rest.size() && !IsDelimiterChar(rest[n]) && rest[n] != u'$') ++n;
    return n;
}

void ReadTokenUnguarded(EngineState& state, std::u16string_view& token) {
    state.TokenStream.TrimBlanks();
    const std::u16string_view rest = state.TokenStream.Rest();
    const TokenShape shape = ShapeOfToken(rest);
    if (shape.invalid) state.ReportError(InvalidIdentifiers);
    if (shape.length == 0) return;
    state.TokenKind = shape.kind;
    token = std::u16string_view(rest.data(), shape.length);
    state.TokenStream.Consume(shape.length);  // moves the offset only: the view stays valid
    if (state.TokenKind == TokenIdentifier) {
        if (IsFunctionName(state, token)) {
            state.TokenKind = TokenFunction;
        } else if (!VariableExists(state, token)) {
            AddVariable(state, token);
        }
    }
}

}  // namespace

TokenShape ShapeOfToken(std::u16string_view rest) {
    if (rest.empty()) return {};
    const char16_t c = rest[0];
    switch (c < TokenStarts.size() ? TokenStarts[c] : TokenStart::Other) {
        case TokenStart::Number:
            return {NameLength(rest), TokenNumber};
        case TokenStart::Name:
            return {NameLength(rest), TokenIdentifier};
        case TokenStart::Operator:
            // A two-character operator counts only with a third character behind it.
            return {rest.size() > 2 && IsOperatorText(std::u16string_view(rest.data(), 2)) ? 2U : 1U, TokenOperator};
        case TokenStart::Other:
            break;
    }
    if (rest.size() < 3) return {0, TokenNone, true};
    if (InBracedList(AsciiLower(rest.substr(0, 2)), BasePrefixList)) return {BaseLiteralLength(rest), TokenNumber};
    return {};  // unreadable: looks like the end of the stream
}

// Called once per token: the shape rules are built into it, not called.
[[gnu::flatten]] void ReadToken(EngineState& state) {
    state.TokenKind = TokenNone;
    state.CurrentToken.clear();
    std::u16string_view token;  // a view into the stream's text
    const bool completed = RunWithFailureHandler(state, [&] { ReadTokenUnguarded(state, token); });
    if (completed) state.CurrentToken = TrimBlanks(token);
}

}  // namespace tessarondel
