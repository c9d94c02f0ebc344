#include "engine/token_reader.h"

#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/variables.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Characters up to the first delimiter, blanks included.
std::size_t NameLength(std::u16string_view rest) {
    std::size_t n = 0;
    while (n < rest.size() && !IsDelimiterChar(rest[n])) ++n;
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
    if (rest.empty()) return;
    const char16_t c = rest[0];
    std::size_t length = 0;
    if (IsOperatorText(rest.substr(0, 1))) {
        length = rest.size() > 2 && IsOperatorText(rest.substr(0, 2)) ? 2 : 1;
        state.TokenKind = TokenOperator;
    } else if (IsLetterChar(c) || IsDigitChar(c)) {
        length = NameLength(rest);
        state.TokenKind = IsDigitChar(c) ? TokenNumber : TokenIdentifier;
    } else if (rest.size() < 3) {
        state.ReportError(InvalidIdentifiers);
        return;
    } else if (InBracedList(AsciiLower(rest.substr(0, 2)), BasePrefixList)) {
        length = BaseLiteralLength(rest);
        state.TokenKind = TokenNumber;
    } else {
        return;  // unreadable: looks like the end of the stream
    }
    token = rest.substr(0, length);
    state.TokenStream.Consume(length);  // moves the offset only: the view stays valid
    if (state.TokenKind == TokenIdentifier) {
        if (IsFunctionName(state, token)) {
            state.TokenKind = TokenFunction;
        } else if (!state.ExpansionScan && !VariableExists(state, token)) {
            AddVariable(state, token);
        }
    }
}

}  // namespace

void ReadToken(EngineState& state) {
    state.TokenKind = TokenNone;
    state.CurrentToken.clear();
    std::u16string_view token;  // a view into the stream's text
    const bool completed = RunWithFailureHandler(state, [&] { ReadTokenUnguarded(state, token); });
    if (completed) state.CurrentToken = TrimBlanks(token);
}

}  // namespace tessarondel
