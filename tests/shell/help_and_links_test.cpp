#include <gtest/gtest.h>

#include <set>

#include "customfunctions/temporary_folder.h"
#include "shell/installed_documents.h"
#include "shell/shell_fakes.h"

namespace tessarondel::testing {
namespace {

using std::filesystem::path;

TEST(InstalledDocumentLookup, BesideTheProgramFirstThenTheDataFolderAndNowhereElse) {
    const struct {
        std::set<path> present;
        path relative;
        path found;
    } rows[] = {
        {{"/usr/bin/ReadMe.txt", "/usr/share/tessarondel/ReadMe.txt"}, "ReadMe.txt", "/usr/bin/ReadMe.txt"},
        {{"/usr/share/tessarondel/manual/index.html"}, kManualIndex, "/usr/share/tessarondel/manual/index.html"},
        {{"/usr/share/ChangesLog.txt", "/usr/ChangesLog.txt"}, "ChangesLog.txt", ""},
    };
    for (const auto& row : rows) {
        const auto exists = [&row](const path& file) { return row.present.contains(file); };
        EXPECT_EQ(FindInstalledDocument("/usr/bin", row.relative, exists).value_or(path()), row.found) << row.relative;
    }
}

// Help with help.chm and the manual each present or not, and a desktop that
// opens the file or can't.
struct HelpRow {
    const char* name;
    bool chm;
    bool desktopOpens;
    const char* manualFolder;  // under the temporary prefix; empty: no manual
    bool helpWindow;
    const char* notice;  // before the path of help.chm; empty: none
};

class HelpChoice : public ::testing::TestWithParam<HelpRow> {};

TEST_P(HelpChoice, OpensWhatIsThere) {
    const HelpRow& row = GetParam();
    TemporaryFolder prefix;
    const path program = prefix.Path() / "bin";
    std::filesystem::create_directories(program);
    if (row.chm) std::ofstream(program / "help.chm") << "chm";
    if (*row.manualFolder != '\0') {
        std::filesystem::create_directories(prefix.Path() / row.manualFolder / "manual");
        std::ofstream(prefix.Path() / row.manualFolder / kManualIndex) << "<html></html>";
    }
    EngineState engine;
    ScriptedMessageBox box;
    FakeClipboard clipboard;
    FakeSaveDialog saveDialog;
    FakeShellOpener opener;
    opener.Refuses = !row.desktopOpens;
    MainWindowModel main{engine, {box, clipboard, saveDialog, opener}, {program, {}}};
    bool helpWindow = false;
    main.SetRequestHandler([&](MainWindowRequest request) { helpWindow |= request == MainWindowRequest::HelpWindow; });
    const std::u16string chm = (program / "help.chm").u16string();
    if (*row.notice != '\0') box.ExpectNotice(ToUtf16(row.notice) + chm, u"Information");

    main.ClickHelp();

    EXPECT_EQ(opener.Opened, row.chm ? std::vector<std::u16string>{chm} : std::vector<std::u16string>{});
    EXPECT_EQ(helpWindow, row.helpWindow);
    EXPECT_EQ(std::filesystem::exists(main.ManualPage()), row.helpWindow);
}

INSTANTIATE_TEST_SUITE_P(Rows, HelpChoice,
                         ::testing::Values(HelpRow{"TheDesktopOpensHelpChm", true, true, "bin", false, ""},
                                           HelpRow{"ChmUnopenedFallsBackToTheManual", true, false, "bin", true, ""},
                                           HelpRow{"NoChmShowsTheInstalledManual", false, true, "share/tessarondel",
                                                   true, ""},
                                           HelpRow{"ChmUnopenedAndNoManual", true, false, "", false, "Can not open "},
                                           HelpRow{"NeitherIsThere", false, true, "", false, "Can not find the file "}),
                         [](const auto& info) { return std::string(info.param.name); });

using LinkSession = MainWindowTest;

TEST_F(LinkSession, ALinkTheDesktopCanNotOpenIsNamedInANotice) {
    opener.Refuses = true;
    box.ExpectNotice(u"Can not open mailto:support@example.org?subject=Tessarondel Bug Report", u"Information");
    main.ChooseInformation(3);
    box.ExpectNotice(u"Can not open http://www.example.org/tq/index.htm", u"Information");
    main.ClickLogo();
}

}  // namespace
}  // namespace tessarondel::testing
