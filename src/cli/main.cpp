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
        return [](std::string& text) {
            std::cout.flush();
            char* line = readline("> ");
            if (!line) return false;
            text = line;
            if (!text.empty()) add_history(line);
            std::free(line);
            return true;
        };
    }
#endif
    if (isatty(STDIN_FILENO)) {
        return [reader = tessarondel::StreamLineReader(std::cin)](std::string& line) {
            std::cout.flush();
            return reader(line);
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
