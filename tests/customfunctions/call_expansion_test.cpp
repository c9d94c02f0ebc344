#include "customfunctions/engine/call_expansion.h"

#include <gtest/gtest.h>

#include "engine/name_lists.h"
#include "engine_fixture.h"
#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

using testing::Definition;
using testing::EngineFixture;

// j(x) = x+1, jj(a,b) = a*b, w() = 1+2, k(x) = error
const std::vector<Definition> Functions = {
    {u"j", u"x", u"x+1"}, {u"jj", u"a,b", u"a*b"}, {u"w", u"", u"1+2"}, {u"k", u"x", u"error"}};

struct ExpansionRow {
    const char* name;
    const char16_t* text;
    const char16_t* expanded;
    int errorNumber;  // afterwards; 4 stood before
    bool reported;
};

class ExpandCustomFunctionCallsTest : public ::testing::TestWithParam<ExpansionRow> {};

TEST_P(ExpandCustomFunctionCallsTest, RewritesTheText) {
    const ExpansionRow& row = GetParam();
    EngineFixture engine;
    engine.DefineAll(Functions);
    engine.state.ErrorNumber = 4;
    EXPECT_EQ(ToUtf8(ExpandCustomFunctionCalls(engine.state, row.text)), ToUtf8(row.expanded));
    EXPECT_EQ(engine.state.ErrorNumber, row.errorNumber);
    EXPECT_EQ(engine.state.ErrorFlag, row.reported);
    EXPECT_EQ(engine.state.VariableNames, u"");
}

INSTANTIATE_TEST_SUITE_P(
    Calls, ExpandCustomFunctionCallsTest,
    ::testing::Values(ExpansionRow{"OneCallLeavesNinetyNine", u"j(1)*2", u"((1)+1)*2", 99, false},
                      ExpansionRow{"IdenticalCallsAtOnce", u"j(1)+j(1)", u"((1)+1)+((1)+1)", 99, false},
                      ExpansionRow{"TwoSpellingsTwoScans", u"j(1)+j( 1)", u"((1)+1)+((1)+1)", 99, false},
                      ExpansionRow{"SearchIsTextual", u"gj(1)+j(2)", u"g((1)+1)+((2)+1)", 99, false},
                      ExpansionRow{"NoParameterBodyWithoutBrackets", u"w()*2", u"1+2*2", 4, false},
                      ExpansionRow{"NoParameterWithText", u"w(1)", u"w(1)", 5, true},
                      ExpansionRow{"NoParameterWithBlank", u"w( )", u"w( )", 5, true},
                      ExpansionRow{"EmptyCallFirstInThePass", u"j()", u"j()", 99, true},
                      ExpansionRow{"EmptyCallAfterAGoodOne", u"j(1)+j()", u"((1)+1)+j()", 5, true},
                      ExpansionRow{"EmptyArgument", u"jj(1,,2)", u"jj(1,,2)", 5, true},
                      ExpansionRow{"BlankArgument", u"j( )", u"j( )", 5, true},
                      ExpansionRow{"WrongCount", u"j(1,2)", u"j(1,2)", 5, true},
                      ExpansionRow{"NestedCommasStayTogether", u"jj(max(1,2),3)", u"((max(1,2))*(3))", 99, false},
                      ExpansionRow{"BracketedArgument", u"jj((1),2)", u"(((1))*(2))", 99, false},
                      ExpansionRow{"LeftmostFirstThenRestart", u"jj(j(1),2)", u"((((1)+1))*(2))", 99, false},
                      ExpansionRow{"MissingBracket", u"j(1", u"j(1", 1, true},
                      ExpansionRow{"ExtraBracketStays", u"j(1))", u"((1)+1))", 99, false},
                      ExpansionRow{"BlankBeforeBracket", u"j (1)", u"j (1)", 4, true},
                      ExpansionRow{"UsedLikeAVariable", u"j+1", u"j+1", 4, true},
                      ExpansionRow{"BlankJoinsTheTokenBefore", u"q j(1)", u"q j(1)", 4, false},
                      ExpansionRow{"NoCustomName", u"q+sin(1)", u"q+sin(1)", 4, false},
                      ExpansionRow{"BodyBindsToTheWordError", u"k(1)+2", u"+2", 99, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ExpandCustomFunctionCalls, WorkedExample) {
    EngineFixture engine;
    ASSERT_TRUE(DefineDocument(engine.state, {u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)", u""}));
    EXPECT_EQ(engine.Entry(u"hyp").CompiledBody, u"s={a}^2+{b}^2,sqrt(s)");
    EXPECT_EQ(ExpandCustomFunctionCalls(engine.state, u"hyp(3, 2+2)*10"), u"(s=(3)^2+(2+2)^2,sqrt(s))*10");
}

TEST(ExpandCustomFunctionCalls, APositionBeyondSixteenBitsOverflows) {
    EngineFixture engine;
    engine.DefineAll(Functions);
    const std::u16string text = std::u16string(33000, u'1') + u"+j(1)";
    EXPECT_EQ(ExpandCustomFunctionCalls(engine.state, text), u"");
    EXPECT_EQ(engine.state.ErrorNumber, 6);
}

struct EvaluationRow {
    const char* name;
    std::vector<Definition> definitions;
    std::vector<const char16_t*> expressions;  // evaluated in turn; the last one's result is checked
    const char* result;
    int errorNumber;  // checked when the result is "Error"
};

class CustomCallEvaluationTest : public ::testing::TestWithParam<EvaluationRow> {};

TEST_P(CustomCallEvaluationTest, Evaluates) {
    const EvaluationRow& row = GetParam();
    EngineFixture engine;
    engine.DefineAll(row.definitions);
    std::string result;
    for (const char16_t* expression : row.expressions) result = engine.Evaluate(expression);
    EXPECT_EQ(result, row.result);
    if (std::string(row.result) == "Error") {
        EXPECT_EQ(engine.state.ErrorNumber, row.errorNumber);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Expressions, CustomCallEvaluationTest,
    ::testing::Values(
        EvaluationRow{"UpperCaseCall", {{u"j", u"x", u"x+1"}}, {u"J(1)"}, "2", 0},
        EvaluationRow{"NestedCalls", {{u"jj", u"x", u"x*2"}, {u"zz", u"x", u"x+1"}}, {u"jj(zz(1))"}, "4", 0},
        EvaluationRow{"CalleeInABody", {{u"j", u"x", u"x+1"}, {u"k", u"x", u"j(x)*2"}}, {u"k(3)"}, "8", 0},
        EvaluationRow{"ArgumentKeepsPrecedence", {{u"j", u"x", u"x*2"}}, {u"j(1+2)"}, "6", 0},
        EvaluationRow{"BlanksLeaveParametersUnmarked", {{u"k", u"x,y", u"x + y"}}, {u"x=5", u"k(1,2)"}, "5", 0},
        EvaluationRow{"MarkedParameters", {{u"k", u"x,y", u"x+y"}}, {u"x=5", u"k(1,2)"}, "3", 0},
        EvaluationRow{"OnlyTheLastOfXxPlusX", {{u"k", u"x", u"xx+x"}}, {u"xx=10", u"k(2)"}, "12", 0},
        EvaluationRow{"BodyShorterThanTheName", {{u"k", u"ab", u"7"}}, {u"k(5)"}, "5", 0},
        EvaluationRow{"UnusedParameterStillCounts", {{u"k", u"x,y,z", u"x+y"}}, {u"k(1,2)"}, "Error", 5},
        EvaluationRow{"NoParameterPrecedence", {{u"w", u"", u"1+2"}}, {u"w()*2"}, "5", 0},
        EvaluationRow{"LastValueOfTheList", {{u"k", u"a", u"a+1,a*10"}}, {u"k(2)"}, "20", 0},
        EvaluationRow{"NameWithABlank", {{u"my fn", u"x", u"x+1"}}, {u"2*my fn(2)"}, "6", 0},
        EvaluationRow{"DigitLedName", {{u"2k", u"x", u"x*3"}}, {u"2k(5)"}, "15", 0},
        EvaluationRow{"EmptyCallAfterAGoodOne", {{u"j", u"x", u"x+1"}}, {u"j(1)+j()"}, "Error", 5},
        EvaluationRow{"NinetyNineLeftBehind", {{u"j", u"x", u"x+1"}}, {u"j(1)", u"j+1"}, "Error", 99}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(CustomCallEvaluation, WorkedExampleAssignsTheGlobalS) {
    EngineFixture engine;
    ASSERT_TRUE(DefineDocument(engine.state, {u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)", u""}));
    EXPECT_EQ(engine.Evaluate(u"Hyp(3, 2+2)*10"), "50");
    std::vector<VariableRecord> variables;
    ASSERT_EQ(GetVariableSnapshot(engine.state, variables), 1);
    EXPECT_EQ(variables[0].Name, u"s");
    EXPECT_EQ(variables[0].Value, u"25");
}

TEST(CustomCallEvaluation, AfterDroppingACalleeItsNameIsAnUnknownFunction) {
    EngineFixture engine;
    engine.DefineAll({{u"j", u"x", u"x+1"}, {u"k", u"x", u"j(x)*2"}});
    ASSERT_TRUE(DropCustomFunction(engine.state, u"j"));
    EXPECT_EQ(engine.Evaluate(u"k(1)"), "Error");
    EXPECT_EQ(engine.state.ErrorNumber, 0);
}

TEST(CustomCallEvaluation, DroppingAnUnknownNameShiftsTheFunctions) {
    EngineFixture engine;
    engine.DefineAll({{u"j", u"", u"1"}, {u"k", u"", u"2"}});
    ASSERT_TRUE(DropCustomFunction(engine.state, u"zz"));
    EXPECT_EQ(engine.Evaluate(u"j()"), "2");
}

TEST(CustomCallEvaluation, ANameThatReachesItsOwnCallFailsInsteadOfHanging) {
    EngineFixture engine;
    engine.DefineAll({{u"j", u"", u"1"}, {u"k", u"", u"j()"}});
    ASSERT_TRUE(DropCustomFunction(engine.state, u"zz"));
    EXPECT_EQ(engine.Evaluate(u"j()"), "Error");
    EXPECT_EQ(engine.state.ErrorNumber, 99);
}

TEST(CustomCallEvaluation, ANameThatReachesAGrowingCallOverflows) {
    EngineFixture engine;
    engine.DefineAll({{u"j", u"", u"1"}, {u"k", u"", u"j()+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1"}});
    ASSERT_TRUE(DropCustomFunction(engine.state, u"zz"));
    EXPECT_EQ(engine.Evaluate(u"j()"), "Error");
    EXPECT_EQ(engine.state.ErrorNumber, 6);
}

// The name test looks the trimmed, lower-cased token up in the braced name
// list without building "{token}"; it must agree with that substring search,
// odd tokens with braces included.
TEST(IsCustomFunctionName, AgreesWithTheBracedSubstringSearch) {
    struct Row {
        const char16_t* token;
        bool expected;  // against "{hyp}{area}{f_1}"
    };
    const Row rows[] = {{u"hyp", true}, {u"HYP", true}, {u" area ", true}, {u"f_1", true},
                        {u"ar", false}, {u"yp", false}, {u"area}", false}, {u"hyp}{area", true},
                        {u"}{", false}, {u"", false},   {u"{hyp}", false}, {u"x", false}};
    EngineState state;
    for (const std::u16string_view names : {std::u16string_view(u"{hyp}{area}{f_1}"), std::u16string_view()}) {
        state.CustomFunctionNames = names;
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(names.begin(), names.end()) + " / " +
                         std::string(row.token, row.token + std::char_traits<char16_t>::length(row.token)));
            const std::u16string braced = u"{" + AsciiLower(TrimBlanks(row.token)) + u"}";
            EXPECT_EQ(IsCustomFunctionName(state, row.token), ContainsText(braced, names));
            EXPECT_EQ(IsCustomFunctionName(state, row.token), row.expected && !names.empty());
        }
    }
}

}  // namespace
}  // namespace tessarondel
