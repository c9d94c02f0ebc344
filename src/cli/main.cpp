#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "cli/cli_app.h"

#ifdef TESSARONDEL_HAVE_EDITLINE
#include <editline/readline.h>
#endif

namespace {

// On a terminal: a prompt, line editing and history.
tessarondel::LineReader TerminalLineReader() {
#ifdef TESSARONDEL_HAVE_EDITLINE
    if (isatty(STDIN_FILENO)) {
        return []() -> std::optional<std::string> {
            std::cout.flush();
            char* line = readline("> ");
            if (!line) return std::nullopt;
            std::string text(line);
            if (!text.empty()) add_history(line);
            std::free(line);
            return text;
        };
    }
#endif
    if (isatty(STDIN_FILENO)) {
        return [reader = tessarondel::StreamLineReader(std::cin)]() {
            std::cout.flush();
            return reader();
        };
    }
    return tessarondel::StreamLineReader(std::cin);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> args(argv + 1, argv + argc);
    return tessarondel::RunCli(args, TerminalLineReader(), std::cout, std::cerr);
}
