#include "engine/ladder.h"

#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/operators.h"
#include "engine/token_reader.h"
#include "engine/variables.h"
#include "numbers/base_conversion.h"
#include "numbers/builtins.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Leaves a nesting level on every way out, failures included.
class DepthGuard {
public:
    explicit DepthGuard(int& depth) : depth_(depth) {
        if (++depth_ > Ladder::MaxBracketDepth) {
            --depth_;
            throw RunFailure("brackets nested too deep");
        }
    }
    ~DepthGuard() { --depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    int& depth_;
};

}  // namespace

void Ladder::Advance() {
    ReadToken(state_);
    currentOperator_ = BinaryOperatorOf(state_.CurrentToken);
}

void Ladder::SetToken(std::u16string token, int kind) {
    state_.CurrentToken = std::move(token);
    state_.TokenKind = kind;
    currentOperator_ = BinaryOperatorOf(state_.CurrentToken);
}

// The value of a comma list is its last element; every element's 15-digit
// text goes to CommaList for the function that may stand before the bracket.
// Lists nest, and an inner list closes before the outer one goes on, so the
// values of all open lists share one stack, kept in the state for its room.
void Ladder::ParseList(double& value) {
    std::vector<double>& openListValues = state_.OpenListValues;
    double left = 0;
    double right = 0;
    const std::size_t first = openListValues.size();
    ParseAssignment(value);
    openListValues.push_back(value);
    while (currentOperator_ == BinaryOperator::Comma) {
        left = value;
        Advance();
        ParseAssignment(right);
        ApplyOperator(state_, BinaryOperator::Comma, left, right);
        value = left;
        openListValues.push_back(value);
    }
    state_.CommaList.AssignValues(std::span(openListValues).subspan(first));
    openListValues.resize(first);
}

template <bool (*IsOperator)(BinaryOperator), Ladder::Level Next>
void Ladder::ParseBinary(double& value) {
    double left = 0;
    double right = 0;
    (this->*Next)(value);
    for (BinaryOperator op = currentOperator_; IsOperator(op); op = currentOperator_) {
        left = value;
        Advance();
        (this->*Next)(right);
        ApplyOperator(state_, op, left, right);
        value = left;
    }
}

// Every operand passes down all the levels from here; built as one function,
// the descent costs no calls.
[[gnu::flatten]] void Ladder::ParseLogical(double& value) {
    ParseBinary<IsLogicalOperator, &Ladder::ParseCompare>(value);
}
void Ladder::ParseCompare(double& value) { ParseBinary<IsCompareOperator, &Ladder::ParseSum>(value); }
void Ladder::ParseSum(double& value) { ParseBinary<IsSumOperator, &Ladder::ParseProduct>(value); }
void Ladder::ParseProduct(double& value) { ParseBinary<IsProductOperator, &Ladder::ParsePower>(value); }
void Ladder::ParsePower(double& value) { ParseBinary<IsPowerOperator, &Ladder::ParseUnary>(value); }

void Ladder::ParseUnary(double& value) {
    int minus = 0;
    while (state_.TokenKind == TokenOperator && (state_.CurrentToken == u"-" || state_.CurrentToken == u"+")) {
        if (state_.CurrentToken == u"-") ++minus;
        Advance();
    }
    ParseCall(value);
    if (minus % 2 == 1) value = -value;
}

void Ladder::ParseCall(double& value) {
    ParseBracket(value);
    if (state_.TokenKind != TokenFunction) return;
    const std::u16string name = state_.CurrentToken;
    Advance();
    ParseBracket(value);
    CallBuiltin(name, value, state_.CommaList, state_.ApproximateBits, state_);
}

void Ladder::ParseBracket(double& value) {
    if (state_.CurrentToken != u"(" || state_.TokenKind != TokenOperator) {
        ParsePrimary(value);
        return;
    }
    const DepthGuard depth(bracketDepth_);
    double inner = value;
    Advance();
    ParseList(inner);
    value = inner;
    if (currentOperator_ != BinaryOperator::Comma && state_.CurrentToken != u")") {
        state_.ReportError(BracketsMismatch);
        return;
    }
    Advance();
}

void Ladder::ParsePrimary(double& value) {
    RunWithFailureHandler(state_, [&] {
        switch (state_.TokenKind) {
            case TokenNumber:
                value = FindChar(state_.CurrentToken, u'$') != std::u16string::npos
                            ? TextToNumber(BaseLiteralToDecimal(state_.CurrentToken, state_))
                            : TextToNumber(state_.CurrentToken);  // the literal conversion keeps such a token
                Advance();
                break;
            case TokenFunction:
                break;  // the name and its bracket are ParseCall's
            case TokenIdentifier:
                value = VariableValue(state_, state_.CurrentToken);
                Advance();
                break;
            default:
                state_.ReportError(SyntaxError);
        }
    });
}

}  // namespace tessarondel
