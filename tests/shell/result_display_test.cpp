// The display: bases, the complement box, its look and tip, the double click,
// the auto-rounding list and the Quick Reference pair.
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

using ResultDisplaySession = MainWindowTest;

// The digits themselves are the base display's own rows (tests/data/numbers/base-display.tsv).
TEST_F(ResultDisplaySession, ShowsTheValueInTheChosenBaseInDisplayAndRow) {
    const struct {
        const char16_t* input;
        int base;
        bool complement;
        const char* shown;
    } rows[] = {{u"-255", 2, true, "$O37777777401"}, {u"0.5", 0, false, "$B1"}};
    for (const auto& row : rows) {
        main.ClickFormatNeg(row.complement);
        main.FocusBaseOption(row.base);
        Enter(row.input);
        EXPECT_EQ(Display(), row.shown);
        EXPECT_EQ(U8(LastRow().Record.Result), row.shown);
        EXPECT_TRUE(main.Display().FormatNegVisible());
    }
}

TEST_F(ResultDisplaySession, ChoosingABaseRewritesTheShownResult) {
    Enter(u"-255");
    main.FocusBaseOption(3);
    EXPECT_EQ(Display(), "-$HFF");
    main.ClickFormatNegLabel();
    EXPECT_TRUE(main.Display().FormatNegChecked());
    EXPECT_EQ(Display(), "$HFFFFFF01");
    main.FocusBaseOption(1);
    EXPECT_EQ(Display(), "-255");
    EXPECT_FALSE(main.Display().FormatNegVisible());
    EXPECT_TRUE(main.Display().FormatNegChecked());  // the tick stays for the next base
}

TEST_F(ResultDisplaySession, ChoosingABaseWhileAnErrorStandsKeepsTheMessage) {
    Enter(u"1/0");
    main.FocusBaseOption(3);
    EXPECT_EQ(Display(), "The parameters of the functions or operators are invalid!");
    EXPECT_EQ(main.Display().SelectedBase(), 3);
}

TEST_F(ResultDisplaySession, ToolTipNamesTheAnswerOrTheError) {
    Enter(u"6*7");
    EXPECT_EQ(U8(main.Display().ToolTip()), "The last answer - [42]");
    Enter(u"1/0");
    EXPECT_EQ(U8(main.Display().ToolTip()),
              "Error occurred! - [The parameters of the functions or operators are invalid!]");
}

TEST_F(ResultDisplaySession, DoubleClickInsertsCopiesAndExplains) {
    main.FocusBaseOption(3);
    Enter(u"255");
    main.DoubleClickDisplay();
    EXPECT_EQ(InputText(), "($HFF)");
    EXPECT_EQ(U8(clipboard.Text), "$HFF");
    EXPECT_EQ(QuickReference(), "Insert Object:($HFF)\r\nThe last answer.");
    main.PressEnter();
    EXPECT_EQ(Display(), "$HFF");
}

TEST_F(ResultDisplaySession, DoubleClickAfterAnErrorDoesNothing) {
    Enter(u"1/0");
    main.DoubleClickDisplay();
    EXPECT_EQ(InputText(), "");
    EXPECT_TRUE(clipboard.Text.empty());
}

TEST_F(ResultDisplaySession, AutoRoundingStartsOffAndSetsTheEngine) {
    EXPECT_EQ(engine.ApproximateBits, -1);
    EXPECT_EQ(ResultDisplay::ApproximateEntries().size(), 24u);
    EXPECT_EQ(U8(main.Display().ApproximateToolTip()), "Auto Round Operation according to the appointed bits - [Off]");
    main.SelectApproximate(3);
    EXPECT_EQ(engine.ApproximateBits, 2);
    EXPECT_EQ(U8(main.Display().ApproximateToolTip()), "Auto Round Operation according to the appointed bits - [2]");
    Enter(u"1/3");
    EXPECT_EQ(Display(), "0.33");
}

TEST_F(ResultDisplaySession, QuickReferencePairSwapsAndResizesTheInputPanel) {
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
