#include "services/tray_state.h"

#include <gtest/gtest.h>

namespace tessarondel {
namespace {

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
}

TEST(Tray, FrameCloseHidesToTrayOrMinimisesWithoutOne) {
    EXPECT_EQ(DecideFrameCloseAction(true), TrayAction::Toggle);
    EXPECT_EQ(DecideFrameCloseAction(false), TrayAction::Minimise);
}

}  // namespace
}  // namespace tessarondel
