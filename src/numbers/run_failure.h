#pragma once

#include <stdexcept>

namespace tessarondel {

// A run-time failure abandons the running code up to the nearest armed handler.
// Handlers ask one question only: was it the overflow failure? So there are
// exactly two kinds, and neither may escape EvaluateText.

// A result beyond the double range, a number text beyond it, ToInt32 out of
// range, -2147483648 div -1.
struct OverflowFailure : std::runtime_error {
    OverflowFailure() : std::runtime_error("overflow") {}
};

// Everything else: division by zero, an invalid argument, a text that is no
// number, an index out of range, the bound of a list that never got slots.
struct RunFailure : std::runtime_error {
    explicit RunFailure(const char* what = "run-time failure") : std::runtime_error(what) {}
};

}  // namespace tessarondel
