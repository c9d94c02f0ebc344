#pragma once

#include <cstdint>
#include <string_view>

#include "engine/engine_state.h"

namespace tessarondel {

// The binary operators, level by level of the ladder.
enum class BinaryOperator : std::uint8_t {
    None,
    Comma,
    Or,  // logical: | & %! %~ %>
    And,
    Xor,
    Eqv,
    Imp,
    Equal,  // comparing: == > < >= <= <>
    Greater,
    Less,
    GreaterOrEqual,
    LessOrEqual,
    NotEqual,
    Plus,  // summing: + -
    Minus,
    Times,  // multiplying: * / %\ %%
    Divide,
    IntegerDivide,
    Modulo,
    Power,  // ^
};

// The operator a token text stands for; None for any other text.
BinaryOperator BinaryOperatorOf(std::u16string_view text);

inline bool IsLogicalOperator(BinaryOperator op) { return op >= BinaryOperator::Or && op <= BinaryOperator::Imp; }
inline bool IsCompareOperator(BinaryOperator op) {
    return op >= BinaryOperator::Equal && op <= BinaryOperator::NotEqual;
}
inline bool IsSumOperator(BinaryOperator op) { return op == BinaryOperator::Plus || op == BinaryOperator::Minus; }
inline bool IsProductOperator(BinaryOperator op) { return op >= BinaryOperator::Times && op <= BinaryOperator::Modulo; }
inline bool IsPowerOperator(BinaryOperator op) { return op == BinaryOperator::Power; }

// Performs the binary operator `op` on left and right, into left, then rounds
// to ApproximateBits places when that is 0..22. Division by zero reports 5 and
// leaves left; a run-time failure reports 6 or 99 and leaves left as it was.
void ApplyOperator(EngineState& state, BinaryOperator op, double& left, double right);

}  // namespace tessarondel
