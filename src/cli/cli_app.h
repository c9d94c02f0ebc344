#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace tessarondel {

// Puts the next input line without its line end into its argument; false at
// the end. A reader on a terminal flushes the output before it waits for the
// user.
using LineReader = std::function<bool(std::string&)>;

// Exit statuses of tessarondel-cli.
enum CliStatus : int { CliAllGood = 0, CliSomeFailed = 1, CliBadUsage = 2 };

// Runs tessarondel-cli with `args` (without the program name). Expressions
// come from the arguments or, without any, line by line from `readLine`.
int RunCli(const std::vector<std::string>& args, const LineReader& readLine, std::ostream& out, std::ostream& err);

// A LineReader over a stream.
LineReader StreamLineReader(std::istream& in);

}  // namespace tessarondel
