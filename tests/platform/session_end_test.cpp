#include "platform/session_end.h"

#include <gtest/gtest.h>

#include <QCloseEvent>

#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

// A frame close hides to the tray, unless the session manager's commit-data request has run the exit.
TEST(SessionEnd, CommitDataRunsTheExitAfterWhichACloseGoesThrough) {
    for (const bool sessionEnded : {false, true}) {
        testing::MainWindowHarness h;
        SessionEnd session([&h] { h.window.AllowClose(); });
        if (sessionEnded) session.CommitData();
        QCloseEvent close;
        QCoreApplication::sendEvent(&h.window, &close);
        EXPECT_EQ(close.isAccepted(), sessionEnded);
        EXPECT_EQ(h.model.WindowShownState(), sessionEnded ? 1 : 0);
    }
}

}  // namespace
}  // namespace tessarondel
