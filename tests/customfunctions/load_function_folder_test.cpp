#include <gtest/gtest.h>

#include <filesystem>

#include "customfunctions/cfd_document.h"
#include "engine_fixture.h"
#include "temporary_folder.h"

namespace tessarondel {
namespace {

using testing::EngineFixture;
using testing::TemporaryFolder;

std::string DocumentBytes(std::string_view name, std::string_view parameters, std::string_view body) {
    return "%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\n" + std::string(name) +
           "\r\n[Parameter List]\r\n" + std::string(parameters) + "\r\n[Expression List]\r\n" + std::string(body) +
           "\r\n[Description]\r\n\r\n";
}

struct OrderRow {
    const char* name;
    const char* callerFile;
    const char* calleeFile;
    const char* names;   // CustomFunctionNames afterwards
    const char* result;  // of aaa(1)
};

class ReadingOrderTest : public ::testing::TestWithParam<OrderRow> {};

TEST_P(ReadingOrderTest, DecidesWhichOfTwoRelatedDocumentsIsRefused) {
    const OrderRow& row = GetParam();
    TemporaryFolder folder;
    folder.Write(row.callerFile, DocumentBytes("aaa", "x", "bbb(x)+1"));
    folder.Write(row.calleeFile, DocumentBytes("bbb", "x", "x*10"));
    EngineFixture engine;
    engine.state.ShowErrorBox = true;
    const FolderReadResult result = LoadFunctionFolder(engine.state, folder.Path());
    EXPECT_EQ(result.documents.size(), 2u);
    EXPECT_EQ(ToUtf8(engine.state.CustomFunctionNames), row.names);
    EXPECT_TRUE(engine.boxes.empty());
    EXPECT_EQ(engine.Evaluate(u"aaa(1)"), row.result);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ReadingOrderTest,
    ::testing::Values(OrderRow{"CalleeFirst", "b.cfd", "A.cfd", "{bbb}{aaa}", "11"},
                      // bbb is refused with error 10, quietly; aaa's call of it is an unknown name.
                      OrderRow{"CallerFirst", "A.cfd", "b.cfd", "{aaa}", "Error"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LoadFunctionFolder, AFailedReadShowsItsBoxAndDefinesNothing) {
    TemporaryFolder folder;
    folder.Write("a.cfd", DocumentBytes("aaa", "", "1"));
    std::filesystem::create_symlink(folder.Path() / "missing", folder.Path() / "b.cfd");
    EngineFixture engine;
    EXPECT_TRUE(LoadFunctionFolder(engine.state, folder.Path()).failed);
    EXPECT_EQ(engine.boxes, std::vector<std::u16string>{u"Some errors occurred when Loading the Custom Function!"});
    EXPECT_EQ(engine.state.CustomFunctionNames, u"");
}

TEST(LoadFunctionFolder, DocumentsWrittenOnWindowsDefineTheirFunctions) {
    EngineFixture engine;
    LoadFunctionFolder(engine.state, std::filesystem::path(TESSARONDEL_TEST_DATA) / "cfd" / "windows");
    // after.cfd's expression holds a line "[description]", so aaa is defined with it and can't evaluate.
    EXPECT_EQ(engine.state.CustomFunctionNames, u"{aaa}{hyp}{gross}");
    EXPECT_EQ(engine.Evaluate(u"Hyp(3, 2+2)*10"), "50");
    EXPECT_EQ(engine.Evaluate(u"gross(100)"), "119");
}

}  // namespace
}  // namespace tessarondel
