#include "engine/operators.h"

#include <cstdint>

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

double Bitwise(std::u16string_view op, double left, double right) {
    const std::int32_t a = ToInt32(left);
    const std::int32_t b = ToInt32(right);
    if (op == u"&") return a & b;
    if (op == u"|") return a | b;
    if (op == u"%!") return a ^ b;
    if (op == u"%~") return ~(a ^ b);
    return ~a | b;  // %>
}

bool IsBitwise(std::u16string_view op) { return op == u"&" || op == u"|" || op == u"%!" || op == u"%~" || op == u"%>"; }

// The result of `op`, or left itself after error 5 or for an unknown operator.
double Operate(EngineState& state, std::u16string_view op, double left, double right) {
    if (op == u",") return right;
    if (op == u"-") return Checked(left - right);
    if (op == u"+") return Checked(left + right);
    if (op == u"*") return Checked(left * right);
    const bool dividing = op == u"/" || op == u"%%" || op == u"%\\";
    if (dividing && right == 0) {
        state.ReportError(InvalidParameters);
        return left;
    }
    if (op == u"/") return Checked(left / right);
    if (op == u"%%") return IntegerRemainder(left, right);
    if (op == u"^") return Power(left, right);
    if (op == u"%\\") return IntegerQuotient(left, right);
    if (op == u"==") return Truth(left == right);
    if (op == u">") return Truth(left > right);
    if (op == u"<") return Truth(left < right);
    if (op == u">=") return Truth(left >= right);
    if (op == u"<=") return Truth(left <= right);
    if (op == u"<>") return Truth(left != right);
    if (IsBitwise(op)) return Bitwise(op, left, right);
    return left;
}

}  // namespace

void ApplyOperator(EngineState& state, std::u16string_view op, double& left, double right) {
    RunWithFailureHandler(state, [&] {
        double result = Operate(state, op, left, right);
        if (state.ApproximateBits >= 0 && state.ApproximateBits <= 22) {
            result = RoundHalfEven(result, state.ApproximateBits);
        }
        left = result;
    });
}

}  // namespace tessarondel
