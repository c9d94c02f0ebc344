#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "engine/engine_state.h"

namespace tessarondel {

// Puts the next input line without its line end into its argument; false at
// the end. A reader on a terminal flushes the output before it waits for the
// user.
using LineReader = std::function<bool(std::string&)>;

// Exit statuses of tessarondel-cli.
enum CliStatus : int { CliAllGood = 0, CliSomeFailed = 1, CliBadUsage = 2 };

// Makes the reader of standard input once the session is set up: `engine` is
// the session, whose names a terminal may complete; `keepHistory` says whether
// a terminal keeps its lines between sessions.
using ReaderFactory = std::function<LineReader(const EngineState& engine, bool keepHistory)>;

// Runs tessarondel-cli with `args` (without the program name). Expressions
// come from the arguments or, without any, line by line from the reader.
int RunCli(const std::vector<std::string>& args, const ReaderFactory& makeReader, std::ostream& out, std::ostream& err);
int RunCli(const std::vector<std::string>& args, const LineReader& readLine, std::ostream& out, std::ostream& err);

// A LineReader over a stream.
LineReader StreamLineReader(std::istream& in);

}  // namespace tessarondel
