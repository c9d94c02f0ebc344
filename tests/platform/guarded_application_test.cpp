#include "platform/guarded_application.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <system_error>

#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

// A failure thrown out of an event handler ends in a box, and the events after it still run.
TEST(GuardedApplication, AFailureInAHandlerEndsInABoxAndTheProgramGoesOn) {
    GuardedApplication& application = testing::WidgetApplication();
    testing::ScriptedMessageBox box;
    box.ExpectNotice(u"Unknown Error! ErrorNumber:2\nlist: No such file or directory", u"Error");
    application.ReportFailuresTo(&box);
    bool later = false;
    QTimer::singleShot(0, [] { throw std::system_error(ENOENT, std::generic_category(), "list"); });
    QTimer::singleShot(0, [&later] { later = true; });
    QCoreApplication::processEvents();
    application.ReportFailuresTo(nullptr);
    EXPECT_TRUE(box.AllShown());
    EXPECT_TRUE(later);
}

}  // namespace
}  // namespace tessarondel
