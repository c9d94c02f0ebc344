#include "customfunctions/engine/function_table.h"

#include <gtest/gtest.h>

#include "engine_fixture.h"
#include "numbers/run_failure.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing::Definition;
using testing::EngineFixture;

using testing_table::Row;

class AddCustomFunctionTest : public ::testing::TestWithParam<Row> {};

TEST_P(AddCustomFunctionTest, ChecksInOrder) {
    const Row& row = GetParam();
    EngineFixture engine;
    engine.DefineAll(testing::DefinitionsOf(row[1]));
    const std::u16string namesBefore = engine.state.CustomFunctionNames;
    engine.state.ErrorNumber = 4;
    engine.state.ShowErrorBox = true;
    const Definition added = testing::DefinitionsOf(row[2]).at(0);
    EXPECT_EQ(DefineCustomFunction(engine.state, added.name, added.parameters, added.body, u""), row[3] == "yes");
    EXPECT_EQ(engine.state.ErrorNumber, row.Int(4));
    if (row[3] == "yes") {
        EXPECT_TRUE(engine.boxes.empty());
        return;
    }
    EXPECT_EQ(engine.state.CustomFunctionNames, namesBefore);
    EXPECT_TRUE(engine.state.ErrorFlag);
    ASSERT_EQ(engine.boxes.size(), 1u);
    EXPECT_EQ(ToUtf8(engine.boxes[0]).substr(0, 9 + row[4].size()), "ErrNum:" + row[4] + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(Rows, AddCustomFunctionTest,
                         ::testing::ValuesIn(testing_table::ReadTable("customfunctions/additions.tsv")),
                         testing_table::RowName);

TEST(AddCustomFunction, StoresLowerCaseTrimmedFieldsAndTheParameters) {
    EngineFixture engine;
    ASSERT_TRUE(DefineCustomFunction(engine.state, u" Hyp ", u" A , B ", u" S=A^2+B^2,SQRT(S) ", u" Long "));
    EXPECT_EQ(engine.state.CustomFunctionNames, u"{hyp}");
    const CustomFunctionEntry& hyp = engine.Entry(u"HYP");
    EXPECT_EQ(hyp.Name, u"hyp");
    EXPECT_EQ(hyp.ParameterText, u"a , b");
    EXPECT_EQ(hyp.Expression, u"s=a^2+b^2,sqrt(s)");
    EXPECT_EQ(hyp.Description, u"long");
    EXPECT_FALSE(hyp.NoParameters);
    ASSERT_EQ(hyp.Parameters.UpperBound(), 1);
    EXPECT_EQ(hyp.Parameters[0].Name, u"a");
    EXPECT_EQ(hyp.Parameters[1].Name, u"b");
    EXPECT_EQ(hyp.Parameters[1].Value, u"0");
    EXPECT_EQ(hyp.CompiledBody, u"s={a}^2+{b}^2,sqrt(s)");
}

// A success leaves ErrorFlag as it found it; a refusal clears it first, so
// its box comes even after an earlier error.
TEST(AddCustomFunction, ErrorFlagIsOnlyClearedForTheRefusalsOwnReport) {
    EngineFixture engine;
    engine.state.ShowErrorBox = true;
    engine.state.ErrorFlag = true;
    EXPECT_TRUE(DefineCustomFunction(engine.state, u"j", u"", u"1", u""));
    EXPECT_TRUE(engine.state.ErrorFlag);
    EXPECT_FALSE(DefineCustomFunction(engine.state, u"pi", u"", u"1", u""));
    EXPECT_EQ(engine.boxes, std::vector<std::u16string>{u"ErrNum:9\r\nErrInformation:Redefine the custom functions!"});
}

TEST(CompileBody, MarksWholeNamesBetweenDelimiters) {
    for (const Row& row : testing_table::ReadTable("customfunctions/compiled-bodies.tsv")) {
        SCOPED_TRACE(row[0]);
        EngineFixture engine;
        ASSERT_TRUE(DefineCustomFunction(engine.state, u"j", ToUtf16(row[1]), ToUtf16(row[2]), u""));
        EXPECT_EQ(ToUtf8(engine.Entry(u"j").CompiledBody), row[3]);
    }
}

TEST(FindCustomFunctionIndex, CountsTheClosingBracesBeforeTheName) {
    EngineFixture engine;
    engine.DefineAll({{u"j", u"", u"1"}, {u"area", u"", u"2"}, {u"w", u"", u"3"}});
    EXPECT_EQ(FindCustomFunctionIndex(engine.state, u" W "), 3);
    EXPECT_EQ(FindCustomFunctionIndex(engine.state, u"area"), 2);
    EXPECT_EQ(FindCustomFunctionIndex(engine.state, u"j"), 1);
    EXPECT_EQ(FindCustomFunctionIndex(engine.state, u"are"), 0);
}

TEST(UpdateCustomFunction, RefusesAndKeepsTheOldSlot) {
    for (const Row& row : testing_table::ReadTable("customfunctions/redefinition-refusals.tsv")) {
        SCOPED_TRACE(row[0]);
        EngineFixture engine;
        engine.DefineAll(testing::DefinitionsOf("j(a,b)=a+b ; w()=1 ; k(x)=w(x)"));
        engine.state.ErrorNumber = 4;
        const Definition redefined = testing::DefinitionsOf(row[1]).at(0);
        EXPECT_FALSE(RedefineCustomFunction(engine.state, redefined.name, redefined.parameters, redefined.body, u""));
        EXPECT_EQ(engine.state.ErrorNumber, row.Int(2));
        EXPECT_TRUE(engine.state.ErrorFlag);
        const CustomFunctionEntry& j = engine.Entry(u"j");
        EXPECT_EQ(j.Expression, u"a+b");
        EXPECT_EQ(j.CompiledBody, u"{a}+{b}");
        EXPECT_EQ(j.Parameters.UpperBound(), 1);
    }
}

TEST(UpdateCustomFunction, ABlankParameterListKeepsTheOldParameters) {
    EngineFixture engine;
    engine.DefineAll({{u"k", u"a,b", u"a+b"}});
    ASSERT_TRUE(RedefineCustomFunction(engine.state, u"K", u"  ", u"5", u"New"));
    const CustomFunctionEntry& k = engine.Entry(u"k");
    EXPECT_TRUE(k.NoParameters);
    EXPECT_EQ(k.Parameters.UpperBound(), 1);
    EXPECT_EQ(k.CompiledBody, u"5");
    EXPECT_EQ(k.Description, u"new");
}

// Drops, and the table before its first add, are runs of the JSON protocol: tests/data/cli/protocol-runs.jsonl.
TEST(PrepareExpressionList, StripsNotesAndJoinsLinesButFailsOnNothingButNotes) {
    const struct {
        const char16_t* lines;
        const char16_t* body;  // nullptr: the run-time fault
    } rows[] = {{u"a+b\r\n'note\r\n\r\n\t\r\n  \r\na*b\r\n", u"a+b,a*b"},
                {u"1\r\n\t\t", u"1,\t\t"},
                {u"1\n2", u"1\n2"},
                {u"", nullptr},
                {u"\r\n  \r\n'x\r\n\t", nullptr}};
    for (const auto& row : rows) {
        SCOPED_TRACE(ToUtf8(row.lines));
        if (row.body == nullptr) {
            EXPECT_THROW(PrepareExpressionList(row.lines), RunFailure);
        } else {
            EXPECT_EQ(PrepareExpressionList(row.lines), row.body);
        }
    }
}

TEST(DefineDocument, JoinsTheLinesAndTurnsTheBoxOff) {
    EngineFixture engine;
    engine.state.ShowErrorBox = true;
    const CustomFunctionDocument hyp{u"my\r\nHyp", u"a,\r\nb", u"s=a^2+b^2 ' squares\r\nsqrt(s)\r\n", u"Length\r\n"};
    EXPECT_TRUE(DefineDocument(engine.state, hyp));
    EXPECT_FALSE(engine.state.ShowErrorBox);
    EXPECT_EQ(engine.state.CustomFunctionNames, u"{my hyp}");
    EXPECT_EQ(engine.Entry(u"my hyp").Expression, u"s=a^2+b^2,sqrt(s)");
    EXPECT_EQ(engine.Entry(u"my hyp").Parameters[1].Name, u"b");
    // The same name again is refused silently.
    EXPECT_FALSE(DefineDocument(engine.state, hyp));
    EXPECT_EQ(engine.state.ErrorNumber, 9);
    EXPECT_TRUE(engine.boxes.empty());
}

TEST(DefineDocument, NotesOnlyEndQuietly) {
    EngineFixture engine;
    engine.state.ErrorNumber = 3;
    EXPECT_FALSE(DefineDocument(engine.state, {u"j", u"", u"' nothing\r\n\r\n", u""}));
    EXPECT_EQ(engine.state.ErrorNumber, 3);
    EXPECT_FALSE(engine.state.ErrorFlag);
    EXPECT_EQ(engine.state.CustomFunctionNames, u"");
}

}  // namespace
}  // namespace tessarondel
