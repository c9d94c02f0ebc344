#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "ascii_text.h"
#include "numbers/builtins.h"
#include "numbers/error_sink.h"
#include "numbers/number_text.h"
#include "numbers/slot_list.h"
#include "numbers/text_rules.h"

namespace tessarondel::testing_builtins {

// Records every report in order: the last one is the number the user sees.
class RecordingSink final : public ErrorSink {
public:
    void ReportError(int number) override { reports.push_back(number); }
    std::vector<int> reports;
};

struct CallOutcome {
    double value = 0;
    std::vector<int> reports;
};

inline constexpr int RoundingOff = -1;

// Calls a function the way the engine does after a group closed: the list
// holds the elements as trimmed 15-digit texts, the value the last one in
// full precision.
inline CallOutcome CallWith(std::string_view name, const std::vector<double>& arguments,
                            int approximateBits = RoundingOff) {
    std::vector<std::u16string> texts;
    for (const double argument : arguments) texts.emplace_back(TrimBlanks(NumberText(argument)));
    CallOutcome outcome;
    outcome.value = arguments.back();
    RecordingSink sink;
    CallBuiltin(testing_text::U16(name), outcome.value, CommaTexts(texts), approximateBits, sink);
    outcome.reports = sink.reports;
    return outcome;
}

// Expected values are exact, or written down to 15 significant digits.
enum class Match { Exact, FifteenDigits };

struct CallRow {
    std::string label;
    std::string function;
    std::vector<double> arguments;
    double expected = 0;
    std::vector<int> reports = {};
    Match match = Match::Exact;
};

inline void PrintTo(const CallRow& row, std::ostream* out) { *out << row.label; }

// Names parameterised tests after their row's label.
template <typename Row>
std::string RowName(const ::testing::TestParamInfo<Row>& info) {
    return info.param.label;
}

inline void ExpectRow(const CallRow& row) {
    const CallOutcome outcome = CallWith(row.function, row.arguments);
    SCOPED_TRACE("shown as " + testing_text::Narrow(DisplayNumberText(outcome.value)));
    if (row.match == Match::Exact) {
        EXPECT_EQ(outcome.value, row.expected);
    } else {
        EXPECT_NEAR(outcome.value, row.expected, std::abs(row.expected) * 1E-14);
    }
    EXPECT_EQ(outcome.reports, row.reports);
}

}  // namespace tessarondel::testing_builtins
