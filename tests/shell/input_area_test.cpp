// The keypad, the two insertion routines and the Quick Reference they write.
#include <map>

#include "shell/token_explanations.h"
#include "shell_fakes.h"
#include "table_file.h"

namespace tessarondel::testing {
namespace {

using InputAreaSession = MainWindowTest;

TEST_F(InputAreaSession, KeypadButtonsInsertTheirTextAndExplainIt) {
    const std::map<std::string, KeypadGroup> groups = {
        {"Number", KeypadGroup::Number}, {"Operator", KeypadGroup::Operator}, {"Constant", KeypadGroup::Constant}};
    for (const testing_table::Row& row : testing_table::ReadTable("shell/keypad.tsv")) {
        SCOPED_TRACE(row[0]);
        main.ClickClearInput();
        changes.clear();
        main.ClickKeypad(groups.at(row[1]), row.Int(2));
        EXPECT_EQ(InputText(), row[3]);
        const std::size_t first = row[3].find_first_not_of(' '), last = row[3].find_last_not_of(' ');
        EXPECT_EQ(QuickReference(), "Insert Object:" + row[3].substr(first, last - first + 1) + "\r\n" + row[4]);
        EXPECT_TRUE(Announced(MainWindowChange::FocusInputArea));
    }
}

TEST(TokenExplanations, LookupIsExactAndCaseSensitive) {
    EXPECT_EQ(U8(TokenExplanation(u"e")), "Scientific notation character.");
    EXPECT_EQ(U8(TokenExplanation(u"E")), "System Constants.");
    EXPECT_TRUE(TokenExplanation(u"pi").empty());
    EXPECT_TRUE(TokenExplanation(u"DIV").empty());
}

TEST_F(InputAreaSession, FunctionButtonReplacesTheSelectionAndPutsTheCaretInside) {
    main.EditInput(u"1+12*2", 6, 0);
    main.SetInputSelection(2, 2);
    main.ClickKeypad(KeypadGroup::Function, 0);
    EXPECT_EQ(InputText(), "1+sin()*2");
    EXPECT_EQ(main.Input().SelectionStart(), 6u);
    EXPECT_EQ(main.Input().SelectionLength(), 0u);
    EXPECT_EQ(QuickReference(), "Insert Object:sin\r\nTessarondel Built-In Functions.");
}

TEST_F(InputAreaSession, BracketsReplaceASelectionInsteadOfWrappingIt) {
    main.EditInput(u"abc", 3, 0);
    main.SetInputSelection(0, 3);
    main.ClickKeypad(KeypadGroup::Bracket, 1);
    EXPECT_EQ(InputText(), ")");
    EXPECT_EQ(main.Input().SelectionStart(), 1u);
}

TEST_F(InputAreaSession, InsertFunctionWithoutBracketLeavesTheCaretAtTheStart) {
    main.EditInput(u"xy", 1, 0);
    main.InsertFunction(u"pi");
    EXPECT_EQ(InputText(), "xpiy");
    EXPECT_EQ(main.Input().SelectionStart(), 1u);
}

TEST_F(InputAreaSession, InsertionFollowsTheScratchLineOnlyAtTheEnd) {
    Enter(u"1");
    main.InsertToken(u"7");
    EXPECT_EQ(U8(main.History().ScratchLine()), "7");
    main.PressUp();
    main.InsertToken(u"+");
    EXPECT_EQ(U8(main.History().Entries()[0]), "1");
    EXPECT_EQ(U8(main.History().ScratchLine()), "7");
}

TEST_F(InputAreaSession, ClearInputEmptiesTheScratchLineButKeepsTheHistory) {
    Enter(u"1");
    main.EditInput(u"2+", 2, 0);
    main.ClickClearInput();
    EXPECT_EQ(InputText(), "");
    EXPECT_EQ(U8(main.History().ScratchLine()), "");
    EXPECT_EQ(main.History().Entries().size(), 2u);
}

TEST_F(InputAreaSession, ClipboardPastesTheWholeInputAndCopiesTheDisplay) {
    main.EditInput(u"old", 1, 1);
    clipboard.Text = u"4*4";
    main.PasteFromClipboard();
    EXPECT_EQ(InputText(), "4*4");
    main.PressEnter();
    main.CopyResultToClipboard();
    EXPECT_EQ(U8(clipboard.Text), "16");
}

TEST_F(InputAreaSession, ToolTipShowsTheTextOrAskForInput) {
    EXPECT_EQ(U8(main.Input().ToolTip()), "Input Area - Please input expression here");
    main.EditInput(u"  ", 2, 0);
    EXPECT_EQ(U8(main.Input().ToolTip()), "Input Area - Please input expression here");
    main.EditInput(u"1+2", 3, 0);
    EXPECT_EQ(U8(main.Input().ToolTip()), "1+2");
    EXPECT_EQ(U8(main.History().ScratchLine()), "1+2");
}

}  // namespace
}  // namespace tessarondel::testing
