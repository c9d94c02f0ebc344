#include "services/failure_report.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <system_error>

#include "engine/text_codec.h"

namespace tessarondel {
namespace {

struct Row {
    const char* name;
    std::exception_ptr failure;
    const char* text;
};

class UnknownError : public ::testing::TestWithParam<Row> {};

// The box names the failure's own number and description.
TEST_P(UnknownError, TellsTheNumberAndDescription) {
    try {
        std::rethrow_exception(GetParam().failure);
    } catch (const std::exception& failure) {
        EXPECT_EQ(ToUtf8(UnknownErrorText(DescribeFailure(failure))), GetParam().text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UnknownError,
    ::testing::Values(
        Row{"SystemError", std::make_exception_ptr(std::system_error(EACCES, std::generic_category(), "open")),
            "Unknown Error! ErrorNumber:13\nopen: Permission denied"},
        Row{"FileSystem",
            std::make_exception_ptr(std::filesystem::filesystem_error(
                "list", "/x", std::make_error_code(std::errc::no_such_file_or_directory))),
            "Unknown Error! ErrorNumber:2\nfilesystem error: list: No such file or directory [/x]"},
        Row{"OutOfMemory", std::make_exception_ptr(std::bad_alloc()),
            "Unknown Error! ErrorNumber:12\nCannot allocate memory"},
        Row{"NoNumber", std::make_exception_ptr(std::out_of_range("vector")), "Unknown Error! ErrorNumber:0\nvector"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarondel
