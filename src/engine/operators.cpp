#include "engine/operators.h"

#include <cstdint>
#include <utility>

#include "engine/errors.h"
#include "numbers/primitives.h"

namespace tessarondel {

namespace {

constexpr double True = -1.0;
constexpr double False = 0.0;

double Truth(bool condition) { return condition ? True : False; }

// The integer quotient and remainder of the 32-bit values; 0 as divisor is a
// plain failure, and the one quotient beyond the range overflows.
std::int32_t CheckedDivisor(std::int32_t dividend, std::int32_t divisor) {
    if (divisor == 0) throw RunFailure("integer division by zero");
    if (dividend == INT32_MIN && divisor == -1) throw OverflowFailure();
    return divisor;
}

double IntegerQuotient(double left, double right) {
    const std::int32_t dividend = ToInt32(left);
    return dividend / CheckedDivisor(dividend, ToInt32(right));
}

double IntegerRemainder(double left, double right) {
    const std::int32_t dividend = ToInt32(left);
    return dividend % CheckedDivisor(dividend, ToInt32(right));
}

double Bitwise(BinaryOperator op, double left, double right) {
    const std::int32_t a = ToInt32(left);
    const std::int32_t b = ToInt32(right);
    switch (op) {
        case BinaryOperator::And:
            return a & b;
        case BinaryOperator::Or:
            return a | b;
        case BinaryOperator::Xor:
            return a ^ b;
        case BinaryOperator::Eqv:
            return ~(a ^ b);
        default:
            return ~a | b;  // Imp
    }
}

// The result of `op`, or left itself after error 5.
double Operate(EngineState& state, BinaryOperator op, double left, double right) {
    using enum BinaryOperator;
    const bool dividing = op == Divide || op == Modulo || op == IntegerDivide;
    if (dividing && right == 0) {
        state.ReportError(InvalidParameters);
        return left;
    }
    switch (op) {
        case Comma:
            return right;
        case Minus:
            return Checked(left - right);
        case Plus:
            return Checked(left + right);
        case Times:
            return Checked(left * right);
        case Divide:
            return Checked(left / right);
        case Modulo:
            return IntegerRemainder(left, right);
        case Power:
            return tessarondel::Power(left, right);
        case IntegerDivide:
            return IntegerQuotient(left, right);
        case Equal:
            return Truth(left == right);
        case Greater:
            return Truth(left > right);
        case Less:
            return Truth(left < right);
        case GreaterOrEqual:
            return Truth(left >= right);
        case LessOrEqual:
            return Truth(left <= right);
        case NotEqual:
            return Truth(left != right);
        case Or:
        case And:
        case Xor:
        case Eqv:
        case Imp:
            return Bitwise(op, left, right);
        case None:
            break;
    }
    return left;
}

}  // namespace

BinaryOperator BinaryOperatorOf(std::u16string_view text) {
    using enum BinaryOperator;
    if (text.size() == 1) {
        switch (text[0]) {
            case u',':
                return Comma;
            case u'|':
                return Or;
            case u'&':
                return And;
            case u'>':
                return Greater;
            case u'<':
                return Less;
            case u'+':
                return Plus;
            case u'-':
                return Minus;
            case u'*':
                return Times;
            case u'/':
                return Divide;
            case u'^':
                return Power;
            default:
                return None;
        }
    }
    if (text.size() != 2) return None;
    constexpr std::pair<std::u16string_view, BinaryOperator> Pairs[] = {
        {u"%!", Xor},
        {u"%~", Eqv},
        {u"%>", Imp},
        {u"==", Equal},
        {u">=", GreaterOrEqual},
        {u"<=", LessOrEqual},
        {u"<>", NotEqual},
        {u"%\\", IntegerDivide},
        {u"%%", Modulo},
    };
    for (const auto& [pair, op] : Pairs) {
        if (text == pair) return op;
    }
    return None;
}

void ApplyOperator(EngineState& state, BinaryOperator op, double& left, double right) {
    RunWithFailureHandler(state, [&] {
        double result = Operate(state, op, left, right);
        if (state.ApproximateBits >= 0 && state.ApproximateBits <= 22) {
            result = RoundHalfEven(result, state.ApproximateBits);
        }
        left = result;
    });
}

}  // namespace tessarondel
