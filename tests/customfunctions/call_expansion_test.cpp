#include "customfunctions/engine/call_expansion.h"

#include <gtest/gtest.h>

#include "engine_fixture.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing::Definition;
using testing::EngineFixture;

const std::vector<Definition> Functions = testing::DefinitionsOf("j(x)=x+1 ; jj(a,b)=a*b ; w()=1+2 ; k(x)=error");

using testing_table::Row;

class ExpandCustomFunctionCallsTest : public ::testing::TestWithParam<Row> {};

TEST_P(ExpandCustomFunctionCallsTest, RewritesTheText) {
    const Row& row = GetParam();
    EngineFixture engine;
    engine.DefineAll(Functions);
    engine.state.ErrorNumber = 4;
    EXPECT_EQ(ToUtf8(ExpandCustomFunctionCalls(engine.state, ToUtf16(row[1]))), row[2]);
    EXPECT_EQ(engine.state.ErrorNumber, row.Int(3));
    EXPECT_EQ(engine.state.ErrorFlag, row[4] == "yes");
    EXPECT_EQ(engine.state.VariableNames, u"");
}

INSTANTIATE_TEST_SUITE_P(Rows, ExpandCustomFunctionCallsTest,
                         ::testing::ValuesIn(testing_table::ReadTable("customfunctions/call-expansions.tsv")),
                         testing_table::RowName);

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

// "{z{}" holds "{}", yet the empty token at the end of a text names no function.
TEST(ExpandCustomFunctionCalls, TheEmptyTokenNamesNoFunction) {
    EngineFixture engine;
    engine.DefineAll({{u"z{", u"x", u"x*2"}});
    EXPECT_EQ(ExpandCustomFunctionCalls(engine.state, u"(1)"), u"(1)");
}

TEST(ExpandCustomFunctionCalls, APositionBeyondSixteenBitsOverflows) {
    EngineFixture engine;
    engine.DefineAll(Functions);
    const std::u16string text = std::u16string(33000, u'1') + u"+j(1)";
    EXPECT_EQ(ExpandCustomFunctionCalls(engine.state, text), u"");
    EXPECT_EQ(engine.state.ErrorNumber, 6);
}

TEST(CustomCallEvaluation, Evaluates) {
    for (const Row& row : testing_table::ReadTable("customfunctions/custom-calls.tsv")) {
        SCOPED_TRACE(row[0]);
        EngineFixture engine;
        engine.DefineAll(testing::DefinitionsOf(row[1]));
        std::string result;
        for (const std::string& expression : testing_table::Split(row[2]))
            result = engine.Evaluate(ToUtf16(expression));
        EXPECT_EQ(result, row[3]);
        if (result == "Error") {
            EXPECT_EQ(engine.state.ErrorNumber, row.Int(4));
        }
    }
}

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
