#include "engine/variables.h"

#include <gtest/gtest.h>

#include "engine/engine_fixture.h"

namespace tessarondel {
namespace {

using Vars = std::vector<std::pair<std::string, std::string>>;
using testing_engine::Evaluate;
using testing_engine::Variables;

struct AssignmentRow {
    const char* name;
    std::vector<const char*> expressions;
    const char* lastResult;
    int lastError;
    Vars variables;
};

void PrintTo(const AssignmentRow& row, std::ostream* out) { *out << row.name; }

class Assignment : public testing::TestWithParam<AssignmentRow> {};

TEST_P(Assignment, LeavesTheseVariables) {
    const AssignmentRow& row = GetParam();
    EngineState state = testing_engine::FreshEngine();
    testing_engine::Outcome outcome;
    for (const char* expression : row.expressions) outcome = Evaluate(state, expression);
    EXPECT_EQ(outcome.result, row.lastResult);
    EXPECT_EQ(outcome.error, row.lastError);
    EXPECT_EQ(Variables(state), row.variables);
}

const AssignmentRow kAssignmentRows[] = {
    {"NamesAreLowerCased", {"X=2", "x+1"}, "3", -1, {{"x", "2"}}},
    {"ValueTextHasNoLeadingZero", {"x=0.5"}, "0.5", -1, {{"x", ".5"}}},
    {"NoChainOfAssignments", {"a=b=3"}, "0", -1, {{"a", "0"}, {"b", "0"}}},
    {"BracketAllowsNestedAssignment", {"a=(b=3)"}, "3", -1, {{"a", "3"}, {"b", "3"}}},
    {"OldValueReadFirst", {"x=1", "x=x+1"}, "2", -1, {{"x", "2"}}},
    {"TinyValueKept", {"a=1e-20"}, "0", -1, {{"a", "1E-20"}}},
    {"BuildErrorCreatesNothing", {"a b2"}, "Error", 8, {}},
    {"BlankNameAfterFunction", {"sin (1)"}, "0", -1, {{"sin", "0"}}},
    {"ValidNames", {"a1=3", "x_1=2", "_a=1"}, "1", -1, {{"a1", "3"}, {"x_1", "2"}, {"_a", "1"}}},
};
INSTANTIATE_TEST_SUITE_P(Rows, Assignment, testing::ValuesIn(kAssignmentRows),
                         [](const auto& info) { return std::string(info.param.name); });

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
