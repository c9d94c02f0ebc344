#include "customfunctions/function_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>

#include "customfunctions/cfd_document.h"

namespace tessarondel {

namespace {

void CreateDirectory(const std::string& path) { ::mkdir(path.c_str(), 0777); }

bool IsWritableDirectory(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && ::access(path.c_str(), W_OK | X_OK) == 0;
}

std::string CurrentDirectory() {
    std::error_code error;
    const auto current = std::filesystem::current_path(error);
    return error ? std::string() : current.string();
}

std::string ProgramDirectory() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? CurrentDirectory() : program.parent_path().string();
}

}  // namespace

std::string FixPath(std::string_view path) {
    std::string fixed;
    for (std::size_t i = 0; i < path.size(); ++i) {
        fixed += path[i];
        if (path[i] == '/' && i + 1 < path.size() && path[i + 1] == '/') ++i;
    }
    return fixed;
}

void MakePath(std::string_view path) {
    if (path.empty()) return;
    std::string work = path.front() == '/' ? std::string() : CurrentDirectory();
    // The flag keeps the root itself from being created.
    bool pastRoot = false;
    for (char c : path) {
        if (c == '/' && pastRoot) CreateDirectory(work);
        work += c;
        if (work.size() > 1) pastRoot = true;
    }
    if (path.back() != '/') CreateDirectory(work);
}

std::filesystem::path FindFunctionFolder(const std::string& programDirectory, const std::string& dataHome) {
    const std::string beside = FixPath(programDirectory + "/Custom Function");
    if (IsWritableDirectory(beside)) return beside;
    return FixPath(dataHome + "/Tessarondel/Custom Function");
}

std::filesystem::path ChooseFunctionFolder(const std::string& programDirectory, const std::string& dataHome,
                                           ProgramLayout layout) {
    if (layout == ProgramLayout::Portable) MakePath(FixPath(programDirectory + "/Custom Function"));
    const std::filesystem::path folder = FindFunctionFolder(programDirectory, dataHome);
    MakePath(folder.string());
    return folder;
}

namespace {

std::string XdgHome(const char* variable, std::string_view fallbackUnderHome) {
    const char* xdg = std::getenv(variable);
    if (xdg != nullptr && xdg[0] == '/') return xdg;
    const char* home = std::getenv("HOME");
    return std::string(home != nullptr ? home : "") + std::string(fallbackUnderHome);
}

}  // namespace

std::string UserDataHome() { return XdgHome("XDG_DATA_HOME", "/.local/share"); }

std::string UserStateHome() { return XdgHome("XDG_STATE_HOME", "/.local/state"); }

std::filesystem::path ResolveFunctionFolder() {
    constexpr ProgramLayout layout = TESSARONDEL_PORTABLE_LAYOUT ? ProgramLayout::Portable : ProgramLayout::Installed;
    return ChooseFunctionFolder(ProgramDirectory(), UserDataHome(), layout);
}

std::filesystem::path FindFunctionFolder() { return FindFunctionFolder(ProgramDirectory(), UserDataHome()); }

}  // namespace tessarondel
