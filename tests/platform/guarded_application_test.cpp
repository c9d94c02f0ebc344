#include "platform/guarded_application.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <filesystem>
#include <system_error>

#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

using std::make_exception_ptr;

struct Failure {
    const char* name;
    std::exception_ptr thrown;
    std::u16string box;
};

class HandlerFailures : public ::testing::TestWithParam<Failure> {};

// A failure thrown out of an event handler ends in a box with its own number and
// description, and the events after it still run.
TEST_P(HandlerFailures, EndInABoxAndTheProgramGoesOn) {
    GuardedApplication& application = testing::WidgetApplication();
    testing::ScriptedMessageBox box;
    box.ExpectNotice(GetParam().box, u"Error");
    application.ReportFailuresTo(&box);
    bool later = false;
    QTimer::singleShot(0, [] { std::rethrow_exception(GetParam().thrown); });
    QTimer::singleShot(0, [&later] { later = true; });
    QCoreApplication::processEvents();
    application.ReportFailuresTo(nullptr);
    EXPECT_TRUE(later);
}

const std::error_code NoFile = std::make_error_code(std::errc::no_such_file_or_directory);
INSTANTIATE_TEST_SUITE_P(
    Rows, HandlerFailures,
    ::testing::Values(
        Failure{"SystemError", make_exception_ptr(std::system_error(EACCES, std::generic_category(), "open")),
                u"Unknown Error! ErrorNumber:13\nopen: Permission denied"},
        Failure{"FileSystem", make_exception_ptr(std::filesystem::filesystem_error("list", "/x", NoFile)),
                u"Unknown Error! ErrorNumber:2\nfilesystem error: list: No such file or directory [/x]"},
        Failure{"OutOfMemory", make_exception_ptr(std::bad_alloc()),
                u"Unknown Error! ErrorNumber:12\nCannot allocate memory"},
        Failure{"NoNumber", make_exception_ptr(std::out_of_range("vector")), u"Unknown Error! ErrorNumber:0\nvector"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarondel
