#include "customfunctions/function_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "customfunctions/cfd_document.h"
#include "engine/text_codec.h"
#include "temporary_folder.h"

namespace tessarondel {
namespace {

namespace fs = std::filesystem;
using testing::DocumentBytes;
using testing::ReadBytes;
using testing::TemporaryFolder;

std::vector<std::string> Names(const FolderReadResult& result) {
    std::vector<std::string> names;
    for (const auto& document : result.documents) names.push_back(ToUtf8(document.Name));
    return names;
}

TEST(ReadFunctionFolder, FileNameDecidesTheOrderNotTheFunctionName) {
    TemporaryFolder folder;
    folder.Write("b.cfd", DocumentBytes("first", "", "1"));
    folder.Write("A.cfd", DocumentBytes("second", "", "2"));
    folder.Write("C.Cfd", DocumentBytes("third", "", "3"));
    folder.Write("d.txt", DocumentBytes("ignored", "", "4"));
    fs::create_directory(folder.Path() / "e.cfd");
    EXPECT_EQ(Names(ReadFunctionFolder(folder.Path())), (std::vector<std::string>{"second", "first", "third"}));
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
    folder.Write("a.cfd", DocumentBytes("before", "", "1"));
    folder.Write("c.cfd", DocumentBytes("after", "", "1"));
    // 100 MB: a valid beginning, then one endless line of zero bytes (sparse on disk).
    const fs::path huge = folder.Path() / "b.cfd";
    folder.Write("b.cfd", DocumentBytes("huge", "", "1+"));
    fs::resize_file(huge, 100u << 20);
    EXPECT_EQ(Names(ReadFunctionFolder(folder.Path())), (std::vector<std::string>{"before", "after"}));
}

TEST(WriteFunctionDocument, WritesTheFormattedBytesUnderTheNamesCaseAndReplacesAnOldDocument) {
    TemporaryFolder folder;
    folder.Write("Hyp.cfd", "old content");
    const CustomFunctionDocument document{u" Hyp ", u"x", u"x+1", u"\u20AC"};
    ASSERT_TRUE(WriteFunctionDocument(folder.Path(), document));
    EXPECT_EQ(ReadBytes(folder.Path() / "Hyp.cfd"), FormatDocument(document));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
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

// "//Custom Function" is what a program in the root folder gives.
TEST(FixPath, HalvesDoubledSeparatorsWithoutRescanning) {
    EXPECT_EQ(FixPath("//Custom Function"), "/Custom Function");
    EXPECT_EQ(FixPath("a///b"), "a//b");
    EXPECT_EQ(FixPath("a////b"), "a//b");
}

// A relative path is glued to the current directory without a separator.
TEST(MakePath, CreatesEveryLevelAndIgnoresWhatExists) {
    TemporaryFolder folder;
    const std::string deep = (folder.Path() / "a" / "b" / "c").string();
    MakePath(deep);
    MakePath(deep + "/");
    EXPECT_TRUE(fs::is_directory(deep));
    const fs::path previous = fs::current_path();
    fs::current_path(folder.Path() / "a");
    MakePath("y/z");
    fs::current_path(previous);
    EXPECT_TRUE(fs::is_directory(folder.Path() / "ay" / "z"));
}

TEST(ChooseFunctionFolder, UsesTheFolderBesideTheProgramOrFallsBackToTheUserDataFolder) {
    TemporaryFolder program, blocked, data;
    EXPECT_EQ(FindFunctionFolder(program.Path().string(), data.Path().string()),
              data.Path() / "Tessarondel" / "Custom Function");
    EXPECT_TRUE(fs::is_empty(program.Path()));
    EXPECT_TRUE(fs::is_empty(data.Path()));
    EXPECT_EQ(ChooseFunctionFolder(program.Path().string(), data.Path().string(), ProgramLayout::Portable),
              program.Path() / "Custom Function");
    EXPECT_TRUE(fs::is_directory(program.Path() / "Custom Function"));
    EXPECT_TRUE(fs::is_empty(data.Path()));
    EXPECT_EQ(FindFunctionFolder(program.Path().string(), data.Path().string()), program.Path() / "Custom Function");
    blocked.Write("Custom Function", "a file stands in the way");
    const fs::path chosen =
        ChooseFunctionFolder(blocked.Path().string() + "/", data.Path().string(), ProgramLayout::Portable);
    EXPECT_EQ(chosen, data.Path() / "Tessarondel" / "Custom Function");
    EXPECT_TRUE(fs::is_directory(chosen));
}

TEST(ChooseFunctionFolder, AnInstalledProgramCreatesNothingBesideItselfButUsesAFolderThatIsThere) {
    TemporaryFolder bin, data;
    EXPECT_EQ(ChooseFunctionFolder(bin.Path().string(), data.Path().string(), ProgramLayout::Installed),
              data.Path() / "Tessarondel" / "Custom Function");
    EXPECT_TRUE(fs::is_empty(bin.Path()));
    fs::create_directory(bin.Path() / "Custom Function");
    EXPECT_EQ(ChooseFunctionFolder(bin.Path().string(), data.Path().string(), ProgramLayout::Installed),
              bin.Path() / "Custom Function");
}

}  // namespace
}  // namespace tessarondel
