#pragma once

#include <string_view>

#include "engine/engine_state.h"
#include "engine/operators.h"

namespace tessarondel {

// The precedence ladder: one procedure per level, each reading tokens with
// ReadToken and computing while it reads. Errors are reported and the levels
// go on with the values they have.
class Ladder {
public:
    // Starts at the token that the state holds.
    explicit Ladder(EngineState& state) : state_(state), currentOperator_(BinaryOperatorOf(state.CurrentToken)) {}
    Ladder(const Ladder&) = delete;
    Ladder& operator=(const Ladder&) = delete;

    void ParseList(double& value);        // ,
    void ParseAssignment(double& value);  // =
    void ParseLogical(double& value);     // | & %! %~ %>
    void ParseCompare(double& value);     // == > < >= <= <>
    void ParseSum(double& value);         // + -
    void ParseProduct(double& value);     // * / %\ %%
    void ParsePower(double& value);       // ^
    void ParseUnary(double& value);       // prefix - +
    void ParseCall(double& value);        // function application
    void ParseBracket(double& value);     // ( ... )
    void ParsePrimary(double& value);     // number, variable

    // Brackets nest deeper than this only in texts that no one types; beyond it
    // the evaluation fails as the platform's stack would, instead of crashing.
    static constexpr int MaxBracketDepth = 1000;

private:
    using Level = void (Ladder::*)(double&);
    // The shape of the binary levels: operands from `Next`, left-associative.
    template <bool (*IsOperator)(BinaryOperator), Level Next>
    void ParseBinary(double& value);

    // Reads the next token. Every level asks whether the token is its
    // operator, so the operator is looked up once per token.
    void Advance();
    void SetToken(std::u16string token, int kind);

    EngineState& state_;
    BinaryOperator currentOperator_;
    int bracketDepth_ = 0;
};

}  // namespace tessarondel
