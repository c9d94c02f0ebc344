#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessarondel {

// Where the custom function documents live, and the two path helpers the
// program uses for its own folders, on the "/" separator.

// Every "//" becomes "/", left to right without rescanning: "///" gives "//".
std::string FixPath(std::string_view path);

// Creates the directories of `path` from the top down, ignoring every failure
// (an existing directory does no harm). A relative path is glued to the current
// directory without a separator, as the program has always done.
void MakePath(std::string_view path);

// "Custom Function" in `programDirectory`, created if missing, when it is a
// writable directory; otherwise "Tessarondel/Custom Function" under `dataHome`
// (a system-wide install can't write beside the program).
std::filesystem::path ChooseFunctionFolder(const std::string& programDirectory, const std::string& dataHome);

// The folder that ChooseFunctionFolder settles on, found without creating
// anything, for a reader such as the command-line program: run by root from
// /usr/bin, it must not leave a folder there.
std::filesystem::path FindFunctionFolder(const std::string& programDirectory, const std::string& dataHome);

// $XDG_DATA_HOME when it is an absolute path, else ~/.local/share.
std::string UserDataHome();
// $XDG_STATE_HOME when it is an absolute path, else ~/.local/state.
std::string UserStateHome();

}  // namespace tessarondel
