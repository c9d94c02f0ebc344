// The main window's spine: typing, Enter, the display, the expression list,
// the Result List, the history and the variables, as a user meets them.
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

using EvaluateFlow = MainWindowTest;

// The history keeps the blanks around the input; the row doesn't.
TEST_F(EvaluateFlow, OnePlusTwoFillsDisplayRowResultListAndHistory) {
    Enter(u" 1+2 ");
    EXPECT_EQ(Display(), "3");
    EXPECT_EQ(main.LastValue(), 3.0);
    EXPECT_EQ(U8(main.ResultText()), "3");
    ASSERT_EQ(main.Expressions().Rows().size(), 1u);
    EXPECT_EQ(U8(LastRow().Id), "1");
    EXPECT_EQ(U8(LastRow().Record.Expression), "1+2");
    EXPECT_EQ(U8(LastRow().Record.Result), "3");
    EXPECT_EQ(LastResultItem(), "(1)\t3");
    EXPECT_EQ(U8(main.Results().Items().back().Tag), "3");
    EXPECT_EQ(main.History().Entries(), (std::vector<std::u16string>{u" 1+2 ", u""}));
    EXPECT_EQ(main.History().HistoryPosition(), 1);
    EXPECT_EQ(InputText(), "");
    EXPECT_TRUE(Announced(MainWindowChange::ExpressionRowAdded));
    EXPECT_TRUE(Announced(MainWindowChange::ResultItemAdded));
    EXPECT_TRUE(Announced(MainWindowChange::FocusInputArea));
}

TEST_F(EvaluateFlow, BlankInputAddsNothingAndStays) {
    Enter(u"   ");
    EXPECT_TRUE(main.Expressions().Rows().empty());
    EXPECT_EQ(main.Results().ResultListCount(), 0);
    EXPECT_EQ(main.History().Entries().size(), 1u);
    EXPECT_EQ(InputText(), "   ");
    EXPECT_EQ(Display(), "0");
}

TEST_F(EvaluateFlow, ErrorShowsMessageHidesBasesAndTheNextGoodOneBringsThemBack) {
    Enter(u"1/0");
    EXPECT_EQ(engine.ErrorNumber, 5);
    EXPECT_EQ(Display(), "The parameters of the functions or operators are invalid!");
    EXPECT_EQ(main.Display().Look(), kErrorLook);
    EXPECT_EQ(U8(LastRow().Record.Result), "Error:The parameters of the functions or operators are invalid!");
    EXPECT_EQ(LastResultItem(), "(1)\tError#5");
    EXPECT_FALSE(main.Display().BaseOptionsVisible());
    EXPECT_FALSE(main.Display().FormatNegVisible());
    EXPECT_EQ(InputText(), "");  // the input goes on error too

    Enter(u"2");
    EXPECT_TRUE(main.Display().BaseOptionsVisible());
    EXPECT_EQ(main.Display().Look(), kResultLook);
    EXPECT_EQ(U8(LastRow().Id), "2");  // error rows count
}

TEST_F(EvaluateFlow, HexadecimalResultGoesToRowAndResultListAndBackAsInserted) {
    main.FocusBaseOption(3);
    Enter(u"255");
    EXPECT_EQ(Display(), "$HFF");
    EXPECT_EQ(U8(LastRow().Record.Result), "$HFF");
    EXPECT_EQ(LastResultItem(), "(1)\t$HFF");
    main.ChooseResultListItem(2);
    EXPECT_EQ(InputText(), " $HFF ");
    EXPECT_EQ(QuickReference(), "Insert Object:$HFF\r\n");
}

TEST_F(EvaluateFlow, ClearingTheExpressionListAsksAndRestartsIdsButNotTheResultList) {
    Enter(u"1");
    Enter(u"2");
    box.ExpectQuestion(u"Really clear the expression list?", u"Information", MessageAnswer::Yes);
    main.cmdlvOutput(1);
    EXPECT_TRUE(main.Expressions().Rows().empty());
    EXPECT_EQ(main.Expressions().ExpressionRowCount(), 0);
    EXPECT_EQ(Display(), "0");
    EXPECT_EQ(main.History().Entries().size(), 3u);

    Enter(u"3");
    EXPECT_EQ(U8(LastRow().Id), "1");
    EXPECT_EQ(LastResultItem(), "(3)\t3");
}

TEST_F(EvaluateFlow, ClearingTheResultListRestartsItsNumbersButNotTheIds) {
    Enter(u"1");
    Enter(u"2");
    main.ChooseResultListItem(0);
    EXPECT_EQ(main.Results().ResultListCount(), 0);
    EXPECT_EQ(main.Results().Items().size(), 2u);
    Enter(u"3");
    EXPECT_EQ(LastResultItem(), "(1)\t3");
    EXPECT_EQ(U8(LastRow().Id), "3");
}

TEST_F(EvaluateFlow, VariablesRefillTheVariableWindowButAnEmptySnapshotLeavesIt) {
    Enter(u"y=5 mod 3");
    EXPECT_EQ(Display(), "2");
    EXPECT_TRUE(main.HasVariables());
    ASSERT_EQ(main.Variables().Rows().size(), 1u);
    EXPECT_EQ(U8(main.Variables().Rows()[0].Name), "y");
    EXPECT_EQ(U8(main.Variables().Rows()[0].Value), "2");

    Enter(u"x=.5");
    ASSERT_EQ(main.Variables().Rows().size(), 2u);
    EXPECT_EQ(U8(main.Variables().Rows()[1].Value), ".5");

    ClearVariables(engine);
    Enter(u"1+1");
    EXPECT_FALSE(main.HasVariables());
    EXPECT_EQ(main.Variables().Rows().size(), 2u);  // not cleared by an empty snapshot
}

TEST_F(EvaluateFlow, UpAndDownBrowseTheHistoryAndKeepTheLineBeingTyped) {
    Enter(u"1+1");
    Enter(u"2+2");
    main.EditInput(u"3+", 2, 0);
    main.PressUp();
    EXPECT_EQ(InputText(), "2+2");
    main.PressUp();
    EXPECT_EQ(InputText(), "1+1");
    main.PressUp();
    EXPECT_EQ(InputText(), "1+1");
    main.PressDown();
    main.PressDown();
    EXPECT_EQ(InputText(), "3+");
    main.PressDown();
    EXPECT_EQ(InputText(), "3+");
}

TEST_F(EvaluateFlow, AnEditedHistoryEntryIsEvaluatedAsNewAndTheOldOneStays) {
    Enter(u"2+2");
    main.PressUp();
    main.EditInput(u"2+20", 4, 0);
    EXPECT_EQ(U8(main.History().Entries()[0]), "2+2");
    main.PressEnter();
    EXPECT_EQ(Display(), "22");
    EXPECT_EQ(main.History().Entries(), (std::vector<std::u16string>{u"2+2", u"2+20", u""}));
}

TEST_F(EvaluateFlow, ClearHistoryEmptiesItWithoutAQuestionAndTheArrowsRest) {
    Enter(u"1");
    main.mnuCO(2);
    EXPECT_EQ(main.History().Entries().size(), 1u);
    EXPECT_EQ(main.History().HistoryPosition(), 0);
    main.EditInput(u"9", 1, 0);
    main.PressUp();
    EXPECT_EQ(InputText(), "9");
}

TEST_F(EvaluateFlow, InsertDoubleClickAndCopyOfARow) {
    Enter(u"1+2");
    main.EditInput(u"5*", 2, 0);
    main.SelectExpressionRow(0);
    main.cmdlvOutput(0);
    EXPECT_EQ(InputText(), "5*(1+2)");
    EXPECT_EQ(QuickReference(), "Insert Object:(1+2)\r\nExpression list item.");

    main.DoubleClickExpressionList();
    EXPECT_EQ(InputText(), "1+2");
    EXPECT_EQ(QuickReference(), "Insert Object:1+2\r\nExpression list item.");
    EXPECT_EQ(main.Expressions().Rows().size(), 1u);  // nothing evaluated

    main.cmdlvOutput(2);
    EXPECT_EQ(U8(clipboard.Text), "1+2\t3");
}

TEST_F(EvaluateFlow, RowCommandsDoNothingOnAnEmptyListAndReportWithoutASelection) {
    main.cmdlvOutput(0);
    main.cmdlvOutput(2);
    main.DoubleClickExpressionList();
    EXPECT_EQ(InputText(), "");
    EXPECT_TRUE(clipboard.Text.empty());

    Enter(u"1");
    for (int index : {0, 2}) {
        SCOPED_TRACE(index);
        box.ExpectNotice(u"Unknown error occurred!", u"Error");
        main.cmdlvOutput(index);
        EXPECT_TRUE(box.AllShown());
    }
    EXPECT_EQ(InputText(), "");
}

}  // namespace
}  // namespace tessarondel::testing
