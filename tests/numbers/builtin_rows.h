#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "builtin_call.h"
#include "row_name.h"

namespace tessarondel::testing_builtins {

// How a row's expected value is compared: exactly, or to the 15 significant
// digits in which the values are written down.
enum class Match { Exact, FifteenDigits };

struct OneArgumentRow {
    std::string label;
    std::string function;
    double x = 0;
    double expected = 0;
    Match match = Match::Exact;
    std::vector<int> reports;
};

struct ListRow {
    std::string label;
    std::string function;
    std::vector<double> arguments;
    double expected = 0;
    Match match = Match::Exact;
    std::vector<int> reports;
};

inline void PrintTo(const OneArgumentRow& row, std::ostream* out) { *out << row.label; }
inline void PrintTo(const ListRow& row, std::ostream* out) { *out << row.label; }

inline void ExpectValue(double actual, double expected, Match match) {
    if (match == Match::Exact) {
        EXPECT_EQ(actual, expected);
    } else {
        EXPECT_NEAR(actual, expected, std::abs(expected) * 1E-14);
    }
}

inline void ExpectOutcome(const CallOutcome& outcome, double expected, Match match, const std::vector<int>& reports) {
    SCOPED_TRACE("shown as " + outcome.Shown());
    ExpectValue(outcome.value, expected, match);
    EXPECT_EQ(outcome.reports, reports);
}

}  // namespace tessarondel::testing_builtins
