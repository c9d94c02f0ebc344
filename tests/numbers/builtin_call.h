#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "ascii_text.h"
#include "numbers/builtins.h"
#include "numbers/error_sink.h"
#include "numbers/number_text.h"
#include "numbers/run_failure.h"
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

// A value in a table: a number, or pi, big (BigValue) or halfpi (2*atan(1), not PiValue / 2) with a
// sign, a factor and a divisor, "-3pi/2" being -(3*PiValue)/2.
inline double ValueOf(const std::string& token) {
    static const std::regex named(R"((-?)(\d*)(pi|big|halfpi)(?:/(\d+))?)");
    std::smatch part;
    double x = 0;
    if (!std::regex_match(token, part, named)) {
        std::from_chars(token.data(), token.data() + token.size(), x);
        return x;
    }
    x = part[3] == "pi" ? PiValue : part[3] == "big" ? BigValue : 1.5707963267948966;
    if (part[2].length() > 0) x *= std::stoi(part[2]);
    if (part[4].length() > 0) x /= std::stoi(part[4]);
    return part[1].length() > 0 ? -x : x;
}

// The blank-separated values, or report numbers, of a table field.
inline std::vector<double> Values(const std::string& field) {
    std::istringstream words(field);
    std::vector<double> out;
    for (std::string word; words >> word;) out.push_back(ValueOf(word));
    return out;
}

inline std::vector<int> Ints(const std::string& field) {
    std::istringstream words(field);
    std::vector<int> out;
    for (int n = 0; words >> n;) out.push_back(n);
    return out;
}

// A value, or the kind of run-time failure, the way the tables write them.
template <typename Read>
std::string Outcome(Read read) {
    try {
        return ::testing::PrintToString(read());
    } catch (const OverflowFailure&) {
        return "overflow";
    } catch (const RunFailure&) {
        return "failure";
    }
}

inline std::string Expected(const std::string& field) {
    return field == "overflow" || field == "failure" ? field : ::testing::PrintToString(ValueOf(field));
}

}  // namespace tessarondel::testing_builtins
