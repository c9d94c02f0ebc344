#include <gtest/gtest.h>

#include "services/tray_state.h"

namespace tessarondel {
namespace {

TEST(TrayState, LeftPressTogglesAndOtherClicksDoNothing) {
    TrayState tray;
    tray.Load();
    EXPECT_EQ(tray.OnTrayClick(TrayClick::LeftPress), TrayAction::HideWindow);
    EXPECT_EQ(tray.WindowShownState(), 0);
    for (auto ignored : {TrayClick::LeftRelease, TrayClick::DoubleClick, TrayClick::RightPress}) {
        EXPECT_EQ(tray.OnTrayClick(ignored), TrayAction::None);
    }
    EXPECT_EQ(tray.WindowShownState(), 0);
    EXPECT_EQ(tray.OnTrayClick(TrayClick::LeftPress), TrayAction::ShowWindow);
    EXPECT_EQ(tray.OnTrayClick(TrayClick::RightRelease), TrayAction::OpenMainMenu);
}

TEST(TrayState, OpenOptionsDialogSwallowsEveryClick) {
    TrayState tray;
    tray.Load();
    tray.SetProxyDialogOpen(true);
    EXPECT_EQ(tray.OnTrayClick(TrayClick::LeftPress), TrayAction::None);
    EXPECT_EQ(tray.OnTrayClick(TrayClick::RightRelease), TrayAction::None);
    EXPECT_EQ(tray.WindowShownState(), 1);
}

TEST(TrayState, FrameCloseHidesToTrayOrMinimisesWithoutOne) {
    TrayState tray;
    tray.Load();
    EXPECT_EQ(tray.OnFrameClose(false), TrayAction::MinimiseWindow);
    EXPECT_EQ(tray.WindowShownState(), 1);
    EXPECT_EQ(tray.OnFrameClose(true), TrayAction::HideWindow);
    EXPECT_EQ(tray.OnFrameClose(true), TrayAction::ShowWindow) << "a close while hidden shows the window";
}

TEST(TrayState, LoadResetsTheDialogGuard) {
    TrayState tray;
    tray.SetProxyDialogOpen(true);
    tray.Load();
    EXPECT_FALSE(tray.ProxyDialogOpen());
    EXPECT_EQ(tray.WindowShownState(), 1);
}

}  // namespace
}  // namespace tessarondel
