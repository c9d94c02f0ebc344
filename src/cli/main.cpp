#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <optional>

#include "cli/cli_app.h"
#include "customfunctions/function_folder.h"

#ifdef TESSARONDEL_HAVE_EDITLINE
#include "cli/terminal_reader.h"
#endif

namespace {

// Standard input line by line; on a terminal with a prompt, line editing,
// completion and history. Input from a pipe or a file never touches the history.
tessarondel::LineReader StandardInputReader([[maybe_unused]] const tessarondel::EngineState& engine,
                                            [[maybe_unused]] bool keepHistory) {
#ifdef TESSARONDEL_HAVE_EDITLINE
    if (isatty(STDIN_FILENO)) {
        std::optional<std::filesystem::path> historyFile;
        if (keepHistory) historyFile = std::filesystem::path(tessarondel::UserStateHome()) / "Tessarondel/cli_history";
        return tessarondel::TerminalReader(engine, std::move(historyFile));
    }
#endif
    // The answers go out before the program waits for more input, which is
    // when a person at a terminal or a program at the other end of a pipe needs
    // them; lines already read ahead are answered without a flush each.
    std::cin.tie(nullptr);
    return [reader = tessarondel::StreamLineReader(std::cin)](std::string& line) {
        if (std::cin.rdbuf()->in_avail() <= 0) std::cout.flush();
        return reader(line);
    };
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> args(argv + 1, argv + argc);
    return tessarondel::RunCli(args, tessarondel::ReaderFactory(StandardInputReader), std::cout, std::cerr);
}
