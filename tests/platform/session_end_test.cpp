#include "platform/session_end.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <csignal>

#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

struct Ending {
    const char* name;
    std::function<void(SessionEnd&)> end;
};

class SessionEnds : public ::testing::TestWithParam<Ending> {};

// Each way the session ends runs the exit once; a signal runs it from the event loop.
TEST_P(SessionEnds, RunTheExitOnce) {
    testing::WidgetApplication();
    int exits = 0;
    SessionEnd session([&exits] { ++exits; });
    GetParam().end(session);
    QCoreApplication::processEvents();
    EXPECT_EQ(exits, 1);
}

const auto Raise = [](int number) { return [number](SessionEnd&) { std::raise(number); }; };
INSTANTIATE_TEST_SUITE_P(Ways, SessionEnds,
                         ::testing::Values(Ending{"SIGTERM", Raise(SIGTERM)}, Ending{"SIGHUP", Raise(SIGHUP)},
                                           Ending{"SIGINT", Raise(SIGINT)},
                                           Ending{"CommitData", [](SessionEnd& s) { s.CommitData(); }}),
                         [](const auto& info) { return std::string(info.param.name); });

// A frame close hides to the tray; once the exit has begun, a close goes through.
TEST(SessionEnd, FrameCloseHidesUntilTheExitBegins) {
    for (const bool exiting : {false, true}) {
        testing::MainWindowHarness h;
        if (exiting) h.window.AllowClose();
        QCloseEvent close;
        QCoreApplication::sendEvent(&h.window, &close);
        EXPECT_EQ(close.isAccepted(), exiting);
        EXPECT_EQ(h.model.WindowShownState(), exiting ? 1 : 0);
    }
}

}  // namespace
}  // namespace tessarondel
