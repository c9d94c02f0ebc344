// The function and constant menus, the clear commands and Clear All.
#include "shell/catalogue.h"

#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

using Catalogues = MainWindowTest;

constexpr const char16_t* kClearAllQuestion =
    u"Really clear all the information, including Input Area, Expression List, Variable List and Input History?";

TEST_F(Catalogues, MenusHaveTheirCaptions) {
    const CatalogueMenus& menus = main.Menus();
    EXPECT_EQ(U8(menus.FunctionGroups[3].Caption), "Other");
    EXPECT_EQ(U8(menus.ConstantGroups[5].Caption), "Custom");
    EXPECT_EQ(U8(menus.ClearOther[4].Caption), "Clear All");
    EXPECT_EQ(U8(menus.Information[7].Caption), "Check New");
    EXPECT_EQ(U8(menus.Main[0].Caption), "Show/Hide Tessarondel");
    EXPECT_EQ(U8(menus.Main[8].Caption), "Exit");
}

// th's description lacks its full stop.
TEST_F(Catalogues, AFunctionItemInsertsACallAndShowsItsSignature) {
    main.ChooseFunction(0, 11);
    EXPECT_EQ(QuickReference(), "Function:th(N)\r\nDescription:Returns the hyperbolic tangent of a number");
    main.EditInput(u"", 0, 0);
    main.ChooseFunction(1, 8);
    EXPECT_EQ(InputText(), "log()");
    EXPECT_EQ(main.Input().SelectionStart(), 4u);
    EXPECT_EQ(QuickReference(), "Function:log(N,[m=10])\r\nDescription:Returns the logarithm of a number.");
}

// Numbers keep their zeros and exponent as written; named constants go in by name.
TEST_F(Catalogues, ConstantItemsInsertTheTagWithBlanksAndExplainIt) {
    const struct {
        int group, index;
        const char* inserted;
        const char* reference;
    } rows[] = {
        {1, 0, " Pi ", "Mathematical Constant:\r\nPi=Pi"},
        {0, 3, " 0.900000000000000000 ", "Angles Constant:\r\ndegrees / grad=0.900000000000000000"},
        {2, 1, " 2.99792458000000000E+8 ", "Physical Constant:\r\nSpeed of Light (m/s)=2.99792458000000000E+8"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.inserted);
        main.ClickClearInput();
        main.ChooseConstant(row.group, row.index);
        EXPECT_EQ(InputText(), row.inserted);
        EXPECT_EQ(QuickReference(), row.reference);
    }
}

TEST_F(Catalogues, InsertedConstantsEvaluate) {
    main.ChooseConstant(0, 3);
    main.PressEnter();
    EXPECT_EQ(Display(), "0.9");
}

TEST_F(Catalogues, ConfigureShowsThePlaceholderBox) {
    box.ExpectNotice(u"fdsl", u"Tessarondel", MessageIcon::None);
    main.ChooseConstant(kCustomConstantGroup, 0);
    EXPECT_EQ(InputText(), "");
}

TEST_F(Catalogues, SeparatorsCannotBeChosen) {
    main.ChooseFunction(0, 8);
    main.ChooseConstant(2, 2);
    EXPECT_EQ(InputText(), "");
}

TEST_F(Catalogues, ClearAllAnsweredNoOrCancelChangesNothingAndAsksAgainLater) {
    Enter(u"x=1");
    main.EditInput(u"2+", 2, 0);
    for (MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Cancel}) {
        box.ExpectQuestion(kClearAllQuestion, u"Clear All", answer);
        main.mnuCO(4);
        EXPECT_FALSE(main.ClearAllActive());
    }
    EXPECT_EQ(InputText(), "2+");
    EXPECT_EQ(main.Expressions().Rows().size(), 1u);
    EXPECT_EQ(main.Variables().Rows().size(), 1u);
    box.ExpectQuestion(u"Really clear the expression list?", u"Information", MessageAnswer::Cancel);
    main.mnuCO(0);
    EXPECT_EQ(main.Expressions().Rows().size(), 1u);
}

TEST_F(Catalogues, ClearAllEmptiesEverythingButTheResultList) {
    Enter(u"y=2");
    Enter(u"x=1/0");
    main.EditInput(u"3+", 2, 0);
    box.ExpectQuestion(kClearAllQuestion, u"Clear All", MessageAnswer::Yes);
    main.mnuCO(4);
    EXPECT_EQ(InputText(), "");
    EXPECT_TRUE(main.Expressions().Rows().empty());
    EXPECT_EQ(Display(), "0");
    EXPECT_EQ(main.Display().Look(), kResultLook);
    EXPECT_TRUE(main.Display().BaseOptionsVisible());
    EXPECT_EQ(main.History().Entries().size(), 1u);
    EXPECT_TRUE(main.Variables().Rows().empty());
    EXPECT_EQ(engine.VariableNames, u"");
    EXPECT_EQ(main.Results().ResultListCount(), 2);
    Enter(u"1");
    EXPECT_EQ(U8(LastRow().Id), "1");
}

}  // namespace
}  // namespace tessarondel::testing
