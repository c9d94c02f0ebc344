#include "engine/variables.h"

#include <gtest/gtest.h>

#include "engine/engine_fixture.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using Vars = std::vector<std::pair<std::string, std::string>>;
using testing_engine::Evaluate;
using testing_engine::Variables;

// Rows: name, expressions separated by " ; ", the last result and its error number, the variables as name=value.
class Assignment : public testing::TestWithParam<testing_table::Row> {};

TEST_P(Assignment, LeavesTheseVariables) {
    const testing_table::Row& row = GetParam();
    EngineState state = testing_engine::FreshEngine();
    testing_engine::Outcome outcome;
    for (const std::string& expression : testing_table::Split(row[1])) outcome = Evaluate(state, expression);
    EXPECT_EQ(outcome.result, row[2]);
    EXPECT_EQ(outcome.error, row.Int(3));
    std::string variables;
    for (const auto& [name, value] : Variables(state)) variables += (variables.empty() ? "" : " ") + name + "=" + value;
    EXPECT_EQ(variables, row[4]);
}

INSTANTIATE_TEST_SUITE_P(Rows, Assignment, testing::ValuesIn(testing_table::ReadTable("engine/assignments.tsv")),
                         testing_table::RowName);

TEST(ClearVariables, EmptiesTheTableAndRestartsAtSlotOne) {
    EngineState state = testing_engine::FreshEngine();
    Evaluate(state, "a=1,b=2");
    ClearVariables(state);
    std::vector<VariableRecord> records{{u"keep", u"me"}};
    EXPECT_EQ(GetVariableSnapshot(state, records), 0);
    EXPECT_EQ(records.size(), 1u);  // left alone
    Evaluate(state, "c=5");
    EXPECT_EQ(VariableIndex(state, u"c"), 1);
    EXPECT_EQ(Variables(state), (Vars{{"c", "5"}}));
}

TEST(VariableIndex, CountsClosingBracesInFront) {
    EngineState state = testing_engine::FreshEngine();
    Evaluate(state, "x+rate+y");
    EXPECT_EQ(VariableIndex(state, u" rate "), 2);
    EXPECT_EQ(VariableIndex(state, u"y"), 3);
    EXPECT_EQ(VariableIndex(state, u"missing"), 1);
    EXPECT_TRUE(VariableExists(state, u" RATE "));
}

// The listing follows the table only at the end of an evaluation that reached the ladder.
TEST(VariableListing, ShowsTheTableOfTheLastEvaluationThatReachedTheLadder) {
    struct Step {
        const char* action;  // an expression, or "clear"
        const char* listing;
    };
    const Step steps[] = {
        {"a=1", "a\t=\t 1\r\n"},
        {"a=a+1", "a\t=\t 2\r\n"},
        {"clear", "a\t=\t 2\r\n"},
        {"foo(2)", "a\t=\t 2\r\n"},
        {"b=-0", "b\t=\t 0\r\n"},
        {"c=1/0", "b\t=\t 0\r\nc\t=\t 1\r\n"},  // error 5 leaves the left operand
        {"b=0-2", "b\t=\t-2\r\nc\t=\t 1\r\n"},
    };
    EngineState state = testing_engine::FreshEngine();
    for (const Step& step : steps) {
        SCOPED_TRACE(step.action);
        if (std::string_view(step.action) == "clear") {
            ClearVariables(state);
        } else {
            Evaluate(state, step.action);
        }
        EXPECT_EQ(ToUtf8(state.VariableListing.Text()), step.listing);
    }
}

}  // namespace
}  // namespace tessarondel
