#pragma once

#include <exception>

#include "engine/engine_state.h"
#include "numbers/run_failure.h"

namespace tessarondel {

// The engine's error numbers.
enum EngineError : int {
    SyntaxError = 0,           // "2=3", "foo(2)", "1+"
    BracketsMismatch = 1,      // "((1)", "(1!2)"
    EmptyExpression = 2,       // "   ", "!555"
    InvalidIdentifiers = 3,    // "5!", "7\2"
    UndefinedName = 4,         // "2x", "12a"
    InvalidParameters = 5,     // "1/0", "sqrt(0-1)", "1e2.5"
    OverflowError = 6,         // "1e308*10", "2147483648 and 1"
    ConstantAssignment = 7,    // "pi=3"
    InvalidName = 8,           // "a b", "a.b", "_=3"
    RedefinedFunction = 9,     // defining a name that exists
    RecursiveFunctions = 10,   // a body that reaches its own name
    BaseConvertingError = 11,  // "$b" followed by 1025 ones
    FunctionAssignment = 12,   // "sin=3"
    UnknownError = 99,         // "(0-1)^0.5", "5 mod 0.4"
};

// A failure handler: runs `body`; a run-time failure that escapes it is
// reported (6 for overflow, 99 for anything else) and swallowed. Returns false
// when a failure was caught.
template <typename Body>
bool RunWithFailureHandler(EngineState& state, Body&& body) {
    try {
        body();
        return true;
    } catch (const OverflowFailure&) {
        state.ReportError(OverflowError);
    } catch (const std::exception&) {
        state.ReportError(UnknownError);
    }
    return false;
}

// The handler of the passes that ignore their failures and simply leave.
template <typename Body>
void RunIgnoringFailures(Body&& body) {
    try {
        body();
    } catch (const std::exception&) {
    }
}

}  // namespace tessarondel
