#include "customfunctions/function_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "customfunctions/cfd_document.h"
#include "engine/text_codec.h"
#include "temporary_folder.h"

namespace tessarondel {
namespace {

namespace fs = std::filesystem;
using testing::ReadBytes;
using testing::TemporaryFolder;

std::string DocumentBytes(std::string_view name, std::string_view body) {
    return "%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\n" + std::string(name) +
           "\r\n[Parameter List]\r\n\r\n[Expression List]\r\n" + std::string(body) + "\r\n[Description]\r\n\r\n";
}

std::vector<std::string> Names(const FolderReadResult& result) {
    std::vector<std::string> names;
    for (const auto& document : result.documents) names.push_back(ToUtf8(document.Name));
    return names;
}

TEST(ReadFunctionFolder, ReadsDocumentsWrittenOnWindowsInNameOrderIgnoringCase) {
    const FolderReadResult result = ReadFunctionFolder(fs::path(TESSARONDEL_TEST_DATA) / "cfd" / "windows");
    ASSERT_FALSE(result.failed);
    // after.cfd, Hyp.cfd, nomagic.cfd (no magic: dropped), price.CFD
    ASSERT_EQ(Names(result), (std::vector<std::string>{"aaa", "Hyp", "Gross"}));
    const CustomFunctionDocument& gross = result.documents[2];
    EXPECT_EQ(gross.ParameterText, u"net");
    EXPECT_EQ(gross.Expression, u"net*1.19 ' VAT \u201Cstandard\u201D rate, \u20AC\r\n\r\n");
    EXPECT_EQ(gross.Description, u"Price with VAT in \u20AC\r\nsecond line\r\n");
    EXPECT_EQ(result.documents[1].Expression, u"s=a^2+b^2 ' squares\r\nsqrt(s)\r\n");
}

TEST(ReadFunctionFolder, FileNameDecidesTheOrderNotTheFunctionName) {
    TemporaryFolder folder;
    folder.Write("b.cfd", DocumentBytes("first", "1"));
    folder.Write("A.cfd", DocumentBytes("second", "2"));
    folder.Write("C.Cfd", DocumentBytes("third", "3"));
    folder.Write("d.txt", DocumentBytes("ignored", "4"));
    fs::create_directory(folder.Path() / "e.cfd");
    EXPECT_EQ(Names(ReadFunctionFolder(folder.Path())), (std::vector<std::string>{"second", "first", "third"}));
}

TEST(ReadFunctionFolder, AnUnreadableFileStopsReadingAndKeepsNothing) {
    TemporaryFolder folder;
    folder.Write("a.cfd", DocumentBytes("a1", "1"));
    fs::create_symlink(folder.Path() / "missing", folder.Path() / "b.cfd");
    folder.Write("c.cfd", DocumentBytes("c1", "1"));
    const FolderReadResult result = ReadFunctionFolder(folder.Path());
    EXPECT_TRUE(result.failed);
    EXPECT_TRUE(result.documents.empty());
}

TEST(ReadFunctionFolder, AFolderThatIsAFileOrMissingListsNothing) {
    TemporaryFolder folder;
    folder.Write("plain", "not a folder");
    for (const fs::path& path : {folder.Path() / "plain", folder.Path() / "absent"}) {
        SCOPED_TRACE(path.string());
        const FolderReadResult result = ReadFunctionFolder(path);
        EXPECT_FALSE(result.failed);
        EXPECT_TRUE(result.documents.empty());
    }
}

TEST(ReadFunctionFolder, AHugeFileIsPassedOverWithoutReadingIt) {
    TemporaryFolder folder;
    folder.Write("a.cfd", DocumentBytes("before", "1"));
    folder.Write("c.cfd", DocumentBytes("after", "1"));
    // 100 MB: a valid beginning, then one endless line of zero bytes (sparse on disk).
    const fs::path huge = folder.Path() / "b.cfd";
    folder.Write("b.cfd", DocumentBytes("huge", "1+"));
    fs::resize_file(huge, 100u << 20);
    EXPECT_EQ(Names(ReadFunctionFolder(folder.Path())), (std::vector<std::string>{"before", "after"}));
}

TEST(ParseDocument, BinaryGarbageNeverCrashes) {
    std::mt19937 random(20261122);
    std::uniform_int_distribution<int> byte(0, 255);
    const std::string headers[] = {"%%Tessarondel Custom Function Document - 1.0",
                                   "[Function Name]",
                                   "[Parameter List]",
                                   "[Expression List]",
                                   "[Description]",
                                   "\r",
                                   "\n",
                                   "\r\n"};
    for (int sample = 0; sample < 50; ++sample) {
        std::string bytes;
        while (bytes.size() < 20000) {
            if (byte(random) < 16) bytes += headers[static_cast<std::size_t>(byte(random)) % std::size(headers)];
            bytes += static_cast<char>(byte(random));
        }
        const auto document = ParseDocument(bytes);
        if (document) {
            EXPECT_FALSE(document->Name.empty());
            EXPECT_FALSE(document->Expression.empty());
        }
    }
}

TEST(WriteFunctionDocument, WritesTheFormattedBytesAndReplacesAnOldDocument) {
    TemporaryFolder folder;
    folder.Write("k.cfd", "old content");
    const CustomFunctionDocument document{u" k ", u"x", u"x+1", u"\u20AC"};
    ASSERT_TRUE(WriteFunctionDocument(folder.Path(), document));
    EXPECT_EQ(ReadBytes(folder.Path() / "k.cfd"), FormatDocument(document));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(WriteFunctionDocument, KeepsTheCaseOfTheNameInTheFileName) {
    TemporaryFolder folder;
    ASSERT_TRUE(WriteFunctionDocument(folder.Path(), {u"Hyp", u"", u"1", u""}));
    EXPECT_TRUE(fs::exists(folder.Path() / "Hyp.cfd"));
}

TEST(WriteFunctionDocument, RefusesNamesThatAreNoPlainFileName) {
    TemporaryFolder outer;
    const fs::path folder = outer.Path() / "Custom Function";
    fs::create_directory(folder);
    fs::create_directory(outer.Path() / "sub");
    const std::u16string names[] = {u"",          u"   ",       u".",        u"..",
                                    u"../escape", u"sub/inner", u"/tmp/abs", std::u16string(u"nul\0byte", 8)};
    for (const std::u16string& name : names) {
        SCOPED_TRACE(ToUtf8(name));
        EXPECT_FALSE(WriteFunctionDocument(folder, {name, u"", u"1", u""}));
        EXPECT_FALSE(DeleteFunctionDocument(folder, name));
    }
    EXPECT_TRUE(fs::is_empty(folder));
    EXPECT_TRUE(fs::is_empty(outer.Path() / "sub"));
    EXPECT_EQ(std::distance(fs::directory_iterator(outer.Path()), fs::directory_iterator()), 2);
}

TEST(WriteFunctionDocument, AFailedSaveLeavesTheOldDocumentAndNoTemporaryFile) {
    TemporaryFolder folder;
    fs::create_directory(folder.Path() / "k.cfd");  // can't be replaced by a file
    EXPECT_FALSE(WriteFunctionDocument(folder.Path(), {u"k", u"", u"1", u""}));
    EXPECT_FALSE(WriteFunctionDocument(folder.Path() / "absent", {u"k", u"", u"1", u""}));
    EXPECT_FALSE(WriteFunctionDocument(folder.Path(), {std::u16string(300, u'n'), u"", u"1", u""}));
    EXPECT_TRUE(fs::is_directory(folder.Path() / "k.cfd"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(DeleteFunctionDocument, RemovesOnlyAnExistingDocumentFile) {
    TemporaryFolder folder;
    folder.Write("k.cfd", "x");
    fs::create_directory(folder.Path() / "dir.cfd");
    EXPECT_TRUE(DeleteFunctionDocument(folder.Path(), u"k"));
    EXPECT_FALSE(fs::exists(folder.Path() / "k.cfd"));
    EXPECT_FALSE(DeleteFunctionDocument(folder.Path(), u"k"));
    EXPECT_FALSE(DeleteFunctionDocument(folder.Path(), u"dir"));
    EXPECT_TRUE(fs::is_directory(folder.Path() / "dir.cfd"));
}

struct FixPathRow {
    const char* name;
    const char* path;
    const char* fixed;
};

class FixPathTest : public ::testing::TestWithParam<FixPathRow> {};

TEST_P(FixPathTest, HalvesDoubledSeparatorsWithoutRescanning) { EXPECT_EQ(FixPath(GetParam().path), GetParam().fixed); }

INSTANTIATE_TEST_SUITE_P(Separators, FixPathTest,
                         ::testing::Values(FixPathRow{"ProgramInRoot", "//Custom Function", "/Custom Function"},
                                           FixPathRow{"Single", "/opt/t/Custom Function", "/opt/t/Custom Function"},
                                           FixPathRow{"ThreeGiveTwo", "a///b", "a//b"},
                                           FixPathRow{"FourGiveTwo", "a////b", "a//b"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(MakePath, CreatesEveryLevelAndIgnoresWhatExists) {
    TemporaryFolder folder;
    const std::string deep = (folder.Path() / "a" / "b" / "c").string();
    MakePath(deep);
    EXPECT_TRUE(fs::is_directory(deep));
    MakePath(deep + "/");
    MakePath(deep);
    EXPECT_TRUE(fs::is_directory(deep));
}

TEST(MakePath, GluesARelativePathToTheCurrentDirectory) {
    TemporaryFolder folder;
    const fs::path previous = fs::current_path();
    fs::current_path(folder.Path() / "");
    fs::create_directory("x");
    fs::current_path("x");
    MakePath("y/z");
    fs::current_path(previous);
    EXPECT_TRUE(fs::is_directory(folder.Path() / "xy" / "z"));
}

TEST(ChooseFunctionFolder, UsesTheFolderBesideTheProgramWhenItCanBeWritten) {
    TemporaryFolder program, data;
    EXPECT_EQ(ChooseFunctionFolder(program.Path().string(), data.Path().string()), program.Path() / "Custom Function");
    EXPECT_TRUE(fs::is_directory(program.Path() / "Custom Function"));
    EXPECT_TRUE(fs::is_empty(data.Path()));
}

TEST(ChooseFunctionFolder, FallsBackToTheUserDataFolder) {
    TemporaryFolder program, data;
    program.Write("Custom Function", "a file stands in the way");
    const fs::path chosen = ChooseFunctionFolder(program.Path().string() + "/", data.Path().string());
    EXPECT_EQ(chosen, data.Path() / "Tessarondel" / "Custom Function");
    EXPECT_TRUE(fs::is_directory(chosen));
}

}  // namespace
}  // namespace tessarondel
