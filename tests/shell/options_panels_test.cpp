// Options, panels, the window's load, the menus, help, the Information menu
// and the Quick Reference pair.
#include "shell/catalogue.h"
#include "shell/panel_layout.h"
#include "shell_fakes.h"
#include "table_file.h"

namespace tessarondel::testing {
namespace {

// List 1000, calculator 2000, input 3000, foot 300 high; the list and the form start at 8.
TEST(ArrangePanels, StacksPanelsWithTheFixedGaps) {
    for (const testing_table::Row& row : testing_table::ReadTable("shell/panel-layouts.tsv")) {
        SCOPED_TRACE(row[0]);
        PanelLayout layout;
        layout.ExpressionList = {500, 1000, row[1] == "yes"};
        layout.Calculator = {0, 2000, true};
        layout.InputPanel = {0, 3000, row[2] == "yes"};
        layout.State = {0, 300, true};
        ArrangePanels(layout);
        const std::int32_t got[] = {layout.ExpressionList.Top, layout.Calculator.Top, layout.InputPanel.Top,
                                    layout.Form.Top,           layout.Form.Height,    layout.State.Top,
                                    layout.WindowHeight};
        for (std::size_t i = 0; i < std::size(got); ++i) EXPECT_EQ(got[i], row.Int(3 + i)) << "column " << 3 + i;
    }
}

using OptionsSession = MainWindowTest;

TEST_F(OptionsSession, FirstRunCentresWithListKeypadQuickReferenceAndAZeroDisplay) {
    EXPECT_EQ(main.WindowLeft(), (19200 - main.Layout().WindowWidth) / 2.0);
    EXPECT_EQ(main.WindowTop(), (14400 - main.Layout().WindowHeight) / 2.0);
    EXPECT_TRUE(main.Option(OptionExpressionList));
    EXPECT_TRUE(main.Option(OptionInputPanel));
    EXPECT_FALSE(main.Option(OptionStayOnTop));
    EXPECT_FALSE(main.VariableWindowVisible());
    EXPECT_FALSE(main.FunctionManagerVisible());
    EXPECT_TRUE(main.QuickRefShown());
    EXPECT_EQ(main.WindowShownState(), 1);
    EXPECT_FALSE(engine.ShowErrorBox);
    EXPECT_EQ(U8(engine.ErrorBoxTitle), "Tessarondel Error Information");
    EXPECT_EQ(Display(), "0");
    EXPECT_EQ(main.Display().Look(), (DisplayLook{0xFFFFC0, 12, true, false}));
    EXPECT_EQ(main.Display().SelectedBase(), 1);
    EXPECT_FALSE(main.Display().FormatNegVisible());
    EXPECT_EQ(QuickReference(), "Quick Reference\r\n");
}

// The stored texts read as numbers: nonsense as zero, and -0.5 rounds down to -1, which is on.
TEST_F(OptionsSession, StoredStateIsRestoredAndWrittenBack) {
    const struct {
        FormInfoTexts stored;
        double top;
        bool input;
        bool writtenBackAsRead;
    } rows[] = {{{u"0", u"120", u"0", u"0", u"0", u"1"}, 120, false, true},
                {{u"left", u"12abc", u"yes", u"2.7", u"", u"-0.5"}, 12, true, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.top);
        MainWindowModel other(engine, ShellPlatform{box, clipboard, saveDialog, opener}, ShellEnvironment{});
        other.Load(row.stored, ScreenSize{19200, 14400});
        EXPECT_EQ(other.WindowLeft(), 0.0);
        EXPECT_EQ(other.WindowTop(), row.top);
        EXPECT_FALSE(other.Layout().ExpressionList.Visible);
        EXPECT_EQ(other.Layout().InputPanel.Visible, row.input);
        EXPECT_FALSE(other.QuickRefShown());
        EXPECT_TRUE(other.Option(OptionStayOnTop));
        if (row.writtenBackAsRead) {
            EXPECT_EQ(other.CurrentFormInfo(), row.stored);
        }
    }
}

TEST_F(OptionsSession, MenuCommandsThatOpenOtherWindowsAreAnnounced) {
    main.ChooseMainMenu(5);
    main.ChooseInformation(9);
    main.ChooseInformation(7);
    main.ChooseMainMenu(8);
    EXPECT_EQ(requests, (std::vector{MainWindowRequest::OptionsDialog, MainWindowRequest::About,
                                     MainWindowRequest::CheckForUpdate, MainWindowRequest::Exit}));
}

// Help itself: help_and_links_test.cpp.
TEST_F(OptionsSession, MissingReadmeAndChangesAreReported) {
    box.ExpectNotice(u"Can not find the Readme file " + ToUtf16(TESSARONDEL_TEST_DATA "/shell/program/ReadMe.txt"),
                     u"Information");
    main.ChooseInformation(0);
    box.ExpectNotice(u"Can not find the file " + ToUtf16(TESSARONDEL_TEST_DATA "/shell/program/ChangesLog.txt"),
                     u"Information");
    main.ChooseInformation(1);
    EXPECT_TRUE(opener.Opened.empty());
}

TEST_F(OptionsSession, MenusHaveTheirCaptions) {
    const CatalogueMenus& menus = main.Menus();
    EXPECT_EQ(U8(menus.FunctionGroups[3].Caption), "Other");
    EXPECT_EQ(U8(menus.ConstantGroups[5].Caption), "Custom");
    EXPECT_EQ(U8(menus.ClearOther[4].Caption), "Clear All");
    EXPECT_EQ(U8(menus.Information[7].Caption), "Check New");
    EXPECT_EQ(U8(menus.Main[0].Caption), "Show/Hide Tessarondel");
    EXPECT_EQ(U8(menus.Main[8].Caption), "Exit");
}

TEST_F(OptionsSession, ConfigureShowsThePlaceholderBox) {
    box.ExpectNotice(u"fdsl", u"Tessarondel", MessageIcon::None);
    main.ChooseConstant(kCustomConstantGroup, 0);
    EXPECT_EQ(InputText(), "");
}

TEST_F(OptionsSession, QuickReferencePairSwapsAndResizesTheInputPanel) {
    EXPECT_TRUE(main.QuickRefShown());
    EXPECT_TRUE(main.QuickReferenceButtonVisible(0));
    const std::int32_t shownHeight = main.Layout().WindowHeight;
    main.ClickQuickReferenceButton(0);
    EXPECT_FALSE(main.QuickRefShown());
    EXPECT_TRUE(main.QuickReferenceButtonVisible(1));
    EXPECT_FALSE(main.QuickReferenceButtonVisible(0));
    EXPECT_EQ(main.Layout().InputPanel.Height, 2528);
    EXPECT_EQ(main.Layout().WindowHeight, shownHeight - (3360 - 2528));
    main.ClickQuickReferenceButton(1);
    EXPECT_EQ(main.Layout().InputPanel.Height, 3360);
    EXPECT_EQ(main.Layout().WindowHeight, shownHeight);
}

}  // namespace
}  // namespace tessarondel::testing
