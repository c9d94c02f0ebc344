#include "customfunctions/engine/call_expansion.h"

#include <gtest/gtest.h>

#include "engine_fixture.h"

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
                      ExpansionRow{"TwoSpellingsTwoScans", u"j(1)+j( 1)", u"((1)+1)+((1)+1)", 99, false},
                      ExpansionRow{"SearchIsTextual", u"gj(1)+j(2)", u"g((1)+1)+((2)+1)", 99, false},
                      ExpansionRow{"NoParameterBodyWithoutBrackets", u"w()*2", u"1+2*2", 4, false},
                      ExpansionRow{"NoParameterWithText", u"w(1)", u"w(1)", 5, true},
                      ExpansionRow{"NoParameterWithBlank", u"w( )", u"w( )", 5, true},
                      ExpansionRow{"EmptyCallFirstInThePass", u"j()", u"j()", 99, true},
                      ExpansionRow{"EmptyCallAfterAGoodOne", u"j(1)+j()", u"((1)+1)+j()", 5, true},
                      ExpansionRow{"EmptyArgument", u"jj(1,,2)", u"jj(1,,2)", 5, true},
                      ExpansionRow{"BlankArgumentOfTheRightCount", u"jj(1, )", u"jj(1, )", 5, true},
                      ExpansionRow{"WrongCount", u"j(1,2)", u"j(1,2)", 5, true},
                      ExpansionRow{"NestedCommasStayTogether", u"jj(max(1,2),3)", u"((max(1,2))*(3))", 99, false},
                      ExpansionRow{"LeftmostFirstThenRestart", u"jj(j(1),2)", u"((((1)+1))*(2))", 99, false},
                      ExpansionRow{"MissingBracket", u"j(1", u"j(1", 1, true},
                      ExpansionRow{"ExtraBracketStays", u"j(1))", u"((1)+1))", 99, false},
                      ExpansionRow{"BlankBeforeBracket", u"j (1)", u"j (1)", 4, true},
                      ExpansionRow{"BlankJoinsTheTokenBefore", u"q j(1)", u"q j(1)", 4, false},
                      ExpansionRow{"BodyBindsToTheWordError", u"k(1)+2", u"+2", 99, true}),
    [](const auto& info) { return std::string(info.param.name); });

// The worked example: the body assigns the global s and yields sqrt(s).
TEST(ExpandCustomFunctionCalls, WorkedExample) {
    EngineFixture engine;
    ASSERT_TRUE(DefineDocument(engine.state, {u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)", u""}));
    EXPECT_EQ(engine.Entry(u"hyp").CompiledBody, u"s={a}^2+{b}^2,sqrt(s)");
    EXPECT_EQ(ExpandCustomFunctionCalls(engine.state, u"hyp(3, 2+2)*10"), u"(s=(3)^2+(2+2)^2,sqrt(s))*10");
    EXPECT_EQ(engine.Evaluate(u"Hyp(3, 2+2)*10"), "50");
    std::vector<VariableRecord> variables;
    ASSERT_EQ(GetVariableSnapshot(engine.state, variables), 1);
    EXPECT_EQ(variables[0].Name, u"s");
    EXPECT_EQ(variables[0].Value, u"25");
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
        EvaluationRow{"BlanksLeaveParametersUnmarked", {{u"k", u"x,y", u"x + y"}}, {u"x=5", u"k(1,2)"}, "5", 0},
        EvaluationRow{"UnusedParameterStillCounts", {{u"k", u"x,y,z", u"x+y"}}, {u"k(1,2)"}, "Error", 5},
        EvaluationRow{"NameWithABlank", {{u"my fn", u"x", u"x+1"}}, {u"2*My fn(2)"}, "6", 0},
        EvaluationRow{"NinetyNineLeftBehind", {{u"j", u"x", u"x+1"}}, {u"j(1)", u"j+1"}, "Error", 99}),
    [](const auto& info) { return std::string(info.param.name); });

// Dropping a name the engine doesn't hold shifts every entry one slot down:
// j then reaches k's body, whatever that holds.
TEST(CustomCallEvaluation, AfterDroppingAnUnknownNameEachNameReachesTheBodyBehindIt) {
    const struct {
        const char16_t* body;  // of k
        const char* result;    // of j()
        int errorNumber;       // 0: no error
    } rows[] = {{u"2", "2", 0}, {u"j()", "Error", 99}, {u"j()+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1", "Error", 6}};
    for (const auto& row : rows) {
        SCOPED_TRACE(ToUtf8(row.body));
        EngineFixture engine;
        engine.DefineAll({{u"j", u"", u"1"}, {u"k", u"", row.body}});
        ASSERT_TRUE(DropCustomFunction(engine.state, u"zz"));
        EXPECT_EQ(engine.state.CustomFunctionNames, u"{j}{k}");
        EXPECT_EQ(engine.Evaluate(u"j()"), row.result);
        if (row.errorNumber != 0) {
            EXPECT_EQ(engine.state.ErrorNumber, row.errorNumber);
        }
    }
}

// The trimmed, lower-cased token in braces must stand in the braced name list,
// odd tokens with braces included.
TEST(IsCustomFunctionName, LooksTheBracedTokenUpInTheNameList) {
    const struct {
        const char16_t* token;
        bool expected;
    } rows[] = {{u"hyp", true}, {u" AREA ", true}, {u"ar", false}, {u"hyp}{area", true}, {u"{hyp}", false}};
    EngineState state;
    for (const char16_t* names : {u"{hyp}{area}", u""}) {
        state.CustomFunctionNames = names;
        for (const auto& row : rows) {
            SCOPED_TRACE(ToUtf8(names) + " / " + ToUtf8(row.token));
            EXPECT_EQ(IsCustomFunctionName(state, row.token), row.expected && *names != u'\0');
        }
    }
}

}  // namespace
}  // namespace tessarondel
