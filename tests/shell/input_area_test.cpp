// The keypad, the two insertion routines and the Quick Reference they write.
#include "shell/token_explanations.h"
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

using InputAreaSession = MainWindowTest;

struct KeypadRow {
    const char* name;
    KeypadGroup group;
    int index;
    const char* inserted;
    const char* explanation;  // second line of the Quick Reference
};

const KeypadRow kKeypadRows[] = {
    {"SmallE", KeypadGroup::Number, 11, "e", "Scientific notation character."},
    {"Comma", KeypadGroup::Operator, 0, ",",
     "The comma operator is like the C language comma operator.It returns the last value of list, i.e. Nm."},
    {"Times", KeypadGroup::Operator, 3, "*",
     "The multiplication perator perform the standard arithmetical multiplication."},
    {"NotEqual", KeypadGroup::Operator, 13, "<>",
     "These operators compare their first argument to their second argument to test the validity of the specified "
     "relationship."},
    {"Div", KeypadGroup::Operator, 14, " div ", "Return the integer part of (N1/N2)."},
    {"ModRunsOn", KeypadGroup::Operator, 15, " mod ",
     "Return the modulus of (N1/N2).1. The addition operator performs the standard arithmetical addition. 2. The "
     "unar plus always results to its argument and it is supplied only for symmetry."},
    {"NoteMarkKeepsTrailingBlank", KeypadGroup::Operator, 20, "'",
     "Single quotation marks, give the note-line of the expression. The part after it will be see as the note. "},
    {"EqvIsAWord", KeypadGroup::Operator, 21, " eqv ", "This operator performs logical Equivalence on its arguments."},
    {"Pi", KeypadGroup::Constant, 0, " Pi ", "System Constants."},
};

class KeypadButtons : public MainWindowTest, public ::testing::WithParamInterface<KeypadRow> {};

TEST_P(KeypadButtons, InsertsItsTextAndExplainsIt) {
    const KeypadRow& row = GetParam();
    main.ClickKeypad(row.group, row.index);
    EXPECT_EQ(InputText(), row.inserted);
    std::string trimmed = row.inserted;
    trimmed.erase(0, trimmed.find_first_not_of(' '));
    trimmed.erase(trimmed.find_last_not_of(' ') + 1);
    EXPECT_EQ(QuickReference(), "Insert Object:" + trimmed + "\r\n" + row.explanation);
    EXPECT_TRUE(Announced(MainWindowChange::FocusInputArea));
}

INSTANTIATE_TEST_SUITE_P(Keypad, KeypadButtons, ::testing::ValuesIn(kKeypadRows),
                         [](const auto& info) { return std::string(info.param.name); });

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
