// The variable window: Insert, Clear, Close and its height.
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

using VariableWindow = MainWindowTest;

TEST_F(VariableWindow, InsertPutsTheNameInBrackets) {
    Enter(u"x=3");
    main.EditInput(u"2*", 2, 0);
    main.Variables().cmdBtn(0);
    EXPECT_EQ(InputText(), "2*(x)");
    main.Variables().DoubleClickList();
    EXPECT_EQ(InputText(), "2*(x)(x)");
}

TEST_F(VariableWindow, InsertOnAnEmptyListDoesNothing) {
    main.Variables().cmdBtn(0);
    EXPECT_EQ(InputText(), "");
}

TEST_F(VariableWindow, ClearOnAnEmptyListNeitherAsksNorTouchesTheEngine) {
    EvaluateText(engine, u"q=1");  // a variable the list hasn't been refilled with
    main.Variables().cmdBtn(1);    // no box: the script would fail on it
    EXPECT_EQ(engine.VariableNames, u"{q}");
}

TEST_F(VariableWindow, ClearAnsweredNoOrCancelKeepsRowsAndVariables) {
    Enter(u"x=3");
    for (MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Cancel}) {
        box.ExpectQuestion(u"Really clear the variable list?", u"Information", answer);
        main.mnuCO(1);
    }
    EXPECT_EQ(main.Variables().Rows().size(), 1u);
    Enter(u"x+1");
    EXPECT_EQ(Display(), "4");
}

TEST_F(VariableWindow, ClearForgetsTheVariablesEvenWhileHidden) {
    Enter(u"x=3");
    Enter(u"y=4");
    EXPECT_FALSE(main.VariableWindowVisible());
    box.ExpectQuestion(u"Really clear the variable list?", u"Information", MessageAnswer::Yes);
    main.mnuCO(1);
    EXPECT_TRUE(main.Variables().Rows().empty());
    Enter(u"z+x");
    EXPECT_EQ(Display(), "0");
    ASSERT_EQ(main.Variables().Rows().size(), 2u);
    EXPECT_EQ(U8(main.Variables().Rows()[0].Name), "z");
}

// The width is fixed; the height has a floor of 4410.
TEST_F(VariableWindow, ResizeKeepsTheWidthAndSnapsBackToTheMinimumHeight) {
    const struct {
        std::int32_t asked, height, listHeight, panelTop;
    } rows[] = {{3000, 4410, 3315, 3360}, {6000, 6000, 4905, 4950}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.asked);
        main.Variables().Resize(row.asked);
        const VariableWindowGeometry& geometry = main.Variables().Geometry();
        EXPECT_EQ(geometry.Width, 2775);
        EXPECT_EQ(geometry.ListWidth, 2655);
        EXPECT_EQ(geometry.Height, row.height);
        EXPECT_EQ(geometry.ListHeight, row.listHeight);
        EXPECT_EQ(geometry.PanelTop, row.panelTop);
    }
}

}  // namespace
}  // namespace tessarondel::testing
