#include "cli/terminal_reader.h"

#include <editline/readline.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "cli/completion_names.h"

namespace tessarondel {
namespace {

constexpr int kKeptLines = 1000;

// The line editor calls back without context: the session whose names it completes.
const EngineState* completionEngine = nullptr;

// The line editor's generator: the first call gathers the names, each call hands one out.
char* NextCompletion(const char* word, int state) {
    static std::vector<std::string> names;
    static std::size_t next = 0;
    if (state == 0) {
        names = CompletionNames(*completionEngine, word);
        next = 0;
    }
    return next < names.size() ? strdup(names[next++].c_str()) : nullptr;
}

// The history file is written after every line, so a session ended by a
// signal keeps what it had.
void KeepHistory(const std::filesystem::path& file) {
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) {  // owner-only before anything is in it
        std::filesystem::create_directories(file.parent_path(), ignored);
        std::ofstream{file};
        std::filesystem::permissions(file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
                                     ignored);
    }
    write_history(file.c_str());
}

}  // namespace

LineReader TerminalReader(const EngineState& engine, std::optional<std::filesystem::path> historyFile) {
    completionEngine = &engine;
    rl_readline_name = "tessarondel";
    rl_completion_entry_function = NextCompletion;
    rl_basic_word_break_characters = " \t\n\"'(),=+-*/\\%^<>&|!~";
    rl_completion_append_character = '\0';  // a function name is followed by its bracket, not a blank
    using_history();
    stifle_history(kKeptLines);
    if (historyFile) read_history(historyFile->c_str());
    return [historyFile = std::move(historyFile)](std::string& text) {
        std::cout.flush();
        char* line = readline("> ");
        if (!line) return false;
        text = line;
        if (!text.empty()) {
            add_history(line);
            if (historyFile) KeepHistory(*historyFile);
        }
        std::free(line);
        return true;
    };
}

}  // namespace tessarondel
