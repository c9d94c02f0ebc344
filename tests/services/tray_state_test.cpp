#include <gtest/gtest.h>

#include "services/tray_state.h"

namespace tessarondel {
namespace {

struct TrayRow {
    const char* name;
    TrayClick click;
    bool dialogOpen;
    TrayAction action;
};

class TrayClicks : public ::testing::TestWithParam<TrayRow> {};

TEST_P(TrayClicks, DecideWhatTheWindowDoes) {
    EXPECT_EQ(DecideTrayAction(GetParam().click, GetParam().dialogOpen), GetParam().action);
}

INSTANTIATE_TEST_SUITE_P(
    Tray, TrayClicks,
    ::testing::Values(TrayRow{"LeftPressToggles", TrayClick::LeftPress, false, TrayAction::Toggle},
                      TrayRow{"LeftReleaseNothing", TrayClick::LeftRelease, false, TrayAction::None},
                      TrayRow{"DoubleClickNothing", TrayClick::DoubleClick, false, TrayAction::None},
                      TrayRow{"RightPressNothing", TrayClick::RightPress, false, TrayAction::None},
                      TrayRow{"RightReleaseOpensMenu", TrayClick::RightRelease, false, TrayAction::OpenMainMenu},
                      TrayRow{"DialogBlocksToggle", TrayClick::LeftPress, true, TrayAction::None},
                      TrayRow{"DialogBlocksMenu", TrayClick::RightRelease, true, TrayAction::None}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Tray, FrameCloseHidesToTrayOrMinimisesWithoutOne) {
    EXPECT_EQ(DecideFrameCloseAction(true), TrayAction::Toggle);
    EXPECT_EQ(DecideFrameCloseAction(false), TrayAction::Minimise);
}

}  // namespace
}  // namespace tessarondel
