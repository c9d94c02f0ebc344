#include "shell/installed_documents.h"

namespace tessarondel {

bool FileExistsOnDisk(const std::filesystem::path& file) {
    std::error_code ignored;
    return std::filesystem::exists(file, ignored);
}

std::optional<std::filesystem::path> FindInstalledDocument(const std::filesystem::path& programDirectory,
                                                           const std::filesystem::path& relative,
                                                           const FileExists& exists) {
    const std::filesystem::path places[] = {programDirectory, programDirectory / ".." / "share" / "tessarondel"};
    for (const std::filesystem::path& folder : places) {
        std::filesystem::path candidate = (folder / relative).lexically_normal();
        if (exists(candidate)) return candidate;
    }
    return std::nullopt;
}

}  // namespace tessarondel
