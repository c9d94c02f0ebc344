#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "customfunctions/engine/function_table.h"

namespace tessarondel {

// A custom function document (.cfd): Windows-1252 text, CR LF line ends, a
// magic first line and four sections in a fixed order.

// The four fields of a document's bytes; nullopt when the name or the
// expression is blank (such a document is dropped without a word).
std::optional<CustomFunctionDocument> ParseDocument(std::string_view bytes);

// The ten items of a document, each ended by CR LF, in Windows-1252.
std::string FormatDocument(const CustomFunctionDocument& document);

struct FolderReadResult {
    std::vector<CustomFunctionDocument> documents;  // kept documents, in file-name order ignoring case
    bool failed = false;                            // a file could not be read: nothing is kept
};

// Reads every *.cfd of `folder` in name order, ignoring case.
FolderReadResult ReadFunctionFolder(const std::filesystem::path& folder);

// The boxes of the document failures, all with this title.
inline constexpr std::u16string_view DocumentErrorTitle = u"Error Information";
inline constexpr std::u16string_view LoadFailedMessage = u"Some errors occurred when Loading the Custom Function!";
inline constexpr std::u16string_view SaveFailedMessage = u"Some errors occurred when Saving the Custom Function!";
inline constexpr std::u16string_view RemoveFailedMessage = u"Some errors occurred when removing the Custom Function!";

// Reads the folder and runs each kept document through DefineDocument, in
// file order: of two documents where one calls the other, the callee must
// sort first. A refused document stays in the result. A failed read shows
// LoadFailedMessage through state.ShowMessageBox and defines nothing. Each
// defined document turns ShowErrorBox off.
FolderReadResult LoadFunctionFolder(EngineState& state, const std::filesystem::path& folder);

// Replaces <folder>/<name>.cfd atomically. False for a name that is not one
// plain file name component, or when the folder can't be written.
bool WriteFunctionDocument(const std::filesystem::path& folder, const CustomFunctionDocument& document);

// Removes <folder>/<name>.cfd; false when it doesn't exist or can't be removed.
bool DeleteFunctionDocument(const std::filesystem::path& folder, std::u16string_view name);

// "Custom Function" beside the executable, created if missing in a portable
// layout; otherwise, or when it can't be written, "Custom Function" under the
// user's data directory.
std::filesystem::path ResolveFunctionFolder();

// The same folder, without creating it.
std::filesystem::path FindFunctionFolder();

}  // namespace tessarondel
