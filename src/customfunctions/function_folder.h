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

// Whether the program lives in a folder of its own, or in a bin/ shared with
// other programs.
enum class ProgramLayout { Portable, Installed };

// "Custom Function" in `programDirectory` when it is a writable directory;
// otherwise "Tessarondel/Custom Function" under `dataHome`. A portable program
// creates the folder beside itself when it is missing; an installed one never
// does, as bin/ is no place for data even when it is writable, as for root.
std::filesystem::path ChooseFunctionFolder(const std::string& programDirectory, const std::string& dataHome,
                                           ProgramLayout layout);

// The folder that ChooseFunctionFolder settles on, found without creating
// anything, for a reader such as the command-line program: run by root from
// /usr/bin, it must not leave a folder there.
std::filesystem::path FindFunctionFolder(const std::string& programDirectory, const std::string& dataHome);

// $XDG_DATA_HOME when it is an absolute path, else ~/.local/share.
std::string UserDataHome();
// $XDG_STATE_HOME when it is an absolute path, else ~/.local/state.
std::string UserStateHome();

}  // namespace tessarondel
