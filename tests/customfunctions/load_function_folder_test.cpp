#include <gtest/gtest.h>

#include <filesystem>

#include "customfunctions/cfd_document.h"
#include "engine_fixture.h"
#include "temporary_folder.h"

namespace tessarondel {
namespace {

using testing::DocumentBytes;
using testing::EngineFixture;
using testing::TemporaryFolder;

// The callee read first defines both; the caller read first makes the callee's define a recursion,
// refused quietly with error 10, and the caller's call of it an unknown name.
TEST(LoadFunctionFolder, TheReadingOrderDecidesWhichOfTwoRelatedDocumentsIsRefused) {
    const struct {
        const char *callerFile, *calleeFile, *names, *result;  // names afterwards, result of aaa(1)
    } rows[] = {{"b.cfd", "A.cfd", "{bbb}{aaa}", "11"}, {"A.cfd", "b.cfd", "{aaa}", "Error"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.callerFile);
        TemporaryFolder folder;
        folder.Write(row.callerFile, DocumentBytes("aaa", "x", "bbb(x)+1"));
        folder.Write(row.calleeFile, DocumentBytes("bbb", "x", "x*10"));
        EngineFixture engine;
        engine.state.ShowErrorBox = true;
        EXPECT_EQ(LoadFunctionFolder(engine.state, folder.Path()).documents.size(), 2u);
        EXPECT_EQ(ToUtf8(engine.state.CustomFunctionNames), row.names);
        EXPECT_TRUE(engine.boxes.empty());
        EXPECT_EQ(engine.Evaluate(u"aaa(1)"), row.result);
    }
}

TEST(LoadFunctionFolder, AFailedReadShowsItsBoxAndKeepsNothing) {
    TemporaryFolder folder;
    folder.Write("a.cfd", DocumentBytes("aaa", "", "1"));
    std::filesystem::create_symlink(folder.Path() / "missing", folder.Path() / "b.cfd");
    folder.Write("c.cfd", DocumentBytes("ccc", "", "1"));
    EngineFixture engine;
    const FolderReadResult result = LoadFunctionFolder(engine.state, folder.Path());
    EXPECT_TRUE(result.failed);
    EXPECT_TRUE(result.documents.empty());
    EXPECT_EQ(engine.boxes, std::vector<std::u16string>{u"Some errors occurred when Loading the Custom Function!"});
    EXPECT_EQ(engine.state.CustomFunctionNames, u"");
}

// after.cfd, Hyp.cfd, nomagic.cfd (no magic: dropped), price.CFD, in name
// order ignoring case. after.cfd's expression holds a line "[description]",
// so aaa is defined with it and can't evaluate.
TEST(LoadFunctionFolder, DocumentsWrittenOnWindowsDefineTheirFunctions) {
    EngineFixture engine;
    const FolderReadResult result =
        LoadFunctionFolder(engine.state, std::filesystem::path(TESSARONDEL_TEST_DATA) / "cfd" / "windows");
    ASSERT_FALSE(result.failed);
    ASSERT_EQ(result.documents.size(), 3u);
    const CustomFunctionDocument& gross = result.documents[2];
    EXPECT_EQ(gross.Name, u"Gross");
    EXPECT_EQ(gross.ParameterText, u"net");
    EXPECT_EQ(gross.Expression, u"net*1.19 ' VAT \u201Cstandard\u201D rate, \u20AC\r\n\r\n");
    EXPECT_EQ(gross.Description, u"Price with VAT in \u20AC\r\nsecond line\r\n");
    EXPECT_EQ(result.documents[1].Expression, u"s=a^2+b^2 ' squares\r\nsqrt(s)\r\n");
    EXPECT_EQ(engine.state.CustomFunctionNames, u"{aaa}{hyp}{gross}");
    EXPECT_EQ(engine.Evaluate(u"Hyp(3, 2+2)*10"), "50");
    EXPECT_EQ(engine.Evaluate(u"gross(100)"), "119");
}

}  // namespace
}  // namespace tessarondel
