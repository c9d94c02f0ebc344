#pragma once

#include <string>
#include <string_view>

namespace tessarondel {

// The version this build is; the About box shows it too.
inline constexpr std::u16string_view BuildVersionText = u"1.2.6688 Build 1228";

// The version file's text as it is compared: blanks trimmed, then every "{"
// and every "}" removed wherever they stand. Tabs and line ends stay.
std::u16string CleanVersionText(std::u16string_view fetched);

// Any text other than our own counts as newer: there is no ordering of versions.
enum class VersionVerdict { Latest, Unknown, Newer };
VersionVerdict JudgeVersion(std::u16string_view cleaned);

// The question that offers the download page for a newer version.
std::u16string NewVersionQuestion(std::u16string_view cleaned);

}  // namespace tessarondel
