// The pure decisions of the services: the fetched version text and the tray clicks.
#include <gtest/gtest.h>

#include "engine/text_codec.h"
#include "services/tray_state.h"
#include "services/version_text.h"
#include "table_file.h"

namespace tessarondel {
namespace {

TEST(Version, CleansAndCompares) {
    const char* const verdicts[] = {"Latest", "Unknown", "Newer"};
    for (const testing_table::Row& row : testing_table::ReadTable("services/version-texts.tsv")) {
        SCOPED_TRACE(row[0]);
        EXPECT_EQ(verdicts[static_cast<int>(JudgeVersion(CleanVersionText(ToUtf16(row[1]))))], row[2]);
    }
    EXPECT_EQ(CleanVersionText(u"{ 1.2 }"), u" 1.2 ");  // blanks inside the braces stay
}

// Only a left press and a right release do anything, and nothing while the
// proxy dialog is open.
TEST(Tray, ClicksDecideWhatTheWindowDoes) {
    const struct {
        TrayClick click;
        bool dialogOpen;
        TrayAction action;
    } rows[] = {{TrayClick::LeftPress, false, TrayAction::Toggle},
                {TrayClick::RightRelease, false, TrayAction::OpenMainMenu},
                {TrayClick::RightPress, false, TrayAction::None},
                {TrayClick::LeftPress, true, TrayAction::None},
                {TrayClick::RightRelease, true, TrayAction::None}};
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.click) * 2 + row.dialogOpen);
        EXPECT_EQ(DecideTrayAction(row.click, row.dialogOpen), row.action);
    }
    EXPECT_EQ(DecideFrameCloseAction(true), TrayAction::Toggle);
    EXPECT_EQ(DecideFrameCloseAction(false), TrayAction::Minimise);
}

}  // namespace
}  // namespace tessarondel
