#include "engine/errors.h"
#include "engine/ladder.h"
#include "engine/token_reader.h"
#include "engine/variables.h"
#include "numbers/text_rules.h"

namespace tessarondel {

// An identifier followed by "=" assigns the value of a ParseLogical to its
// slot; any other look-ahead is pushed back and read again. The slot number is
// taken before the right side runs, which may create further variables.
void Ladder::ParseAssignment(double& value) {
    if (state_.TokenKind == TokenIdentifier) {
        std::u16string name = state_.CurrentToken;
        const int kind = state_.TokenKind;
        const auto slot = static_cast<std::size_t>(VariableIndex(state_, name));
        Advance();
        if (state_.CurrentToken == u"=") {
            Advance();
            ParseLogical(value);
            state_.VariableTable.at(slot).value = value;
            return;
        }
        state_.TokenStream.PushFront(state_.CurrentToken);
        SetToken(std::move(name), kind);
    }
    ParseLogical(value);
    if (TrimBlanks(state_.CurrentToken) == u"=") state_.ReportError(SyntaxError);
}

}  // namespace tessarondel
