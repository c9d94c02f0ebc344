#pragma once

#include <filesystem>

#include "shell/session_history.h"

namespace tessarondel {

// The file that keeps the main window's session from one run to the next,
// $XDG_STATE_HOME/Tessarondel/history by default; its text is described at
// FormatSessionHistory. With two programs running, the last to save wins.
class HistoryFile {
public:
    explicit HistoryFile(std::filesystem::path path = DefaultPath()) : path_(std::move(path)) {}
    static std::filesystem::path DefaultPath();
    const std::filesystem::path& Path() const { return path_; }

    // The kept session; an empty one when the file is missing, empty or bad.
    // A bad file (cut off, binary, huge, another version) is moved aside to
    // "history.bad" beside it, so nothing is lost and nobody is asked.
    SessionHistory Load() const;
    // Replaces the file at once as a whole, readable by the user alone.
    bool Save(const SessionHistory& history) const;
    void Remove() const;

private:
    std::filesystem::path path_;
};

}  // namespace tessarondel
