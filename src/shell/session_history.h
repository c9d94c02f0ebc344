#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/expression_list.h"

namespace tessarondel {

// A variable as it is kept between runs: its exact value for the engine and
// the text the Variable List showed.
struct SavedVariable {
    std::u16string Name;
    double Value = 0.0;
    std::u16string Shown;

    friend bool operator==(const SavedVariable&, const SavedVariable&) = default;
};

// The last answer: LastValue and the text the engine returned for it.
struct SavedAnswer {
    double Value = 0.0;
    std::u16string Text;

    friend bool operator==(const SavedAnswer&, const SavedAnswer&) = default;
};

// What the main window keeps between runs when the user asks for it. Lists
// run oldest first. Row IDs and Result List numbers count up to their counter
// one by one, so a list is its counter and its newest entries.
struct SessionHistory {
    std::int32_t ExpressionRowCount = 0;
    std::vector<ExpressionRecord> Rows;
    std::int32_t ResultListCount = 0;
    std::vector<std::u16string> Results;  // the Result List items' texts
    std::vector<std::u16string> Inputs;   // committed inputs, without the scratch line
    std::vector<SavedVariable> Variables;
    std::optional<SavedAnswer> Answer;  // none after an error: the answer is then 0

    friend bool operator==(const SessionHistory&, const SessionHistory&) = default;
};

// Rows, Result List items and inputs beyond this many are dropped, oldest first.
inline constexpr std::size_t kSessionHistoryLimit = 1000;
// A history file above this size is not read.
inline constexpr std::size_t kSessionHistoryMaxBytes = 64u << 20;

// The history file's text (UTF-8, LF line ends): the first line names the
// format and its version, "Tessarondel history 1"; then one tagged line per
// entry, fields split by TAB; the last line is "End", so a cut-off file shows.
//   Row       ID  expression  result        one per expression list row
//   Result    N   text                      one per Result List item
//   Input     text                          one per committed input
//   Variable  name  value  shown            value in the shortest text that reads back exactly
//   Answer    value  text                   the last answer, when there is one
// In fields a backslash escapes: \\ \t \n \r \0. Keeps the newest entries of each list.
std::string FormatSessionHistory(const SessionHistory& history);

// The history a file's text holds; none when it is no history of this
// version: empty, cut off, binary, another version, or malformed.
std::optional<SessionHistory> ParseSessionHistory(std::string_view text);

}  // namespace tessarondel
