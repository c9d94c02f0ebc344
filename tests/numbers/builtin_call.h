#pragma once

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
    // The value as the user sees it: 15 significant digits.
    std::string Shown() const { return testing_text::Narrow(DisplayNumberText(value)); }
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

inline CallOutcome Call(std::string_view name, double x, int approximateBits = RoundingOff) {
    return CallWith(name, {x}, approximateBits);
}

}  // namespace tessarondel::testing_builtins
