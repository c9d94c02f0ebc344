#pragma once

#include <filesystem>
#include <functional>
#include <optional>

namespace tessarondel {

using FileExists = std::function<bool(const std::filesystem::path&)>;

bool FileExistsOnDisk(const std::filesystem::path& file);

// The manual's first page, relative to the folder of the installed texts.
inline const std::filesystem::path kManualIndex = std::filesystem::path("manual") / "index.html";

// Where a text that ships with the program is: beside the program (a build
// tree or a self-contained folder) first, then in the data folder of an
// install that puts the program in bin/ and its texts in share/tessarondel/.
// Nothing when neither holds it.
std::optional<std::filesystem::path> FindInstalledDocument(const std::filesystem::path& programDirectory,
                                                           const std::filesystem::path& relative,
                                                           const FileExists& exists = FileExistsOnDisk);

}  // namespace tessarondel
