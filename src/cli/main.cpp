#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "cli/cli_app.h"

#ifdef TESSARONDEL_HAVE_EDITLINE
#include <editline/readline.h>
#endif

namespace {

// Standard input line by line; on a terminal with a prompt, line editing and history.
tessarondel::LineReader StandardInputReader() {
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
    return tessarondel::RunCli(args, StandardInputReader(), std::cout, std::cerr);
}
