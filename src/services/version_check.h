#pragma once

#include <string>
#include <string_view>

#include "services/internet_transfer.h"
#include "shell/message_box.h"
#include "shell/desktop_services.h"

namespace tessarondel {

// The fixed places on the maker's servers; the servers are configuration.
inline constexpr std::u16string_view VersionFolderPath = u"/tq/version";
inline constexpr std::u16string_view VersionFileName = u"/ver.lmv";
inline constexpr std::u16string_view HomePagePath = u"/tq/index.htm";
inline constexpr std::u16string_view DownloadPagePath = u"/download.htm";

// Fetches baseUrl followed by the trimmed file name and returns the trimmed
// body; after any failure tells the user and returns the empty text.
std::u16string GetInfFromInternet(InternetTransfer& transfer, MessageBox& messages, std::u16string_view baseUrl,
                                  std::u16string_view fileName);

// Where the servers are.
struct MakerServers {
    std::u16string UpdateServer;
    std::u16string WebServer;
};

// The "Check New" command: fetch, compare with our version, report, and offer
// the download page when the server names another version.
void CheckForUpdate(InternetTransfer& transfer, MessageBox& messages, ShellOpener& opener,
                    const MakerServers& servers);

}  // namespace tessarondel
