#include <gtest/gtest.h>

#include <string>

#include "engine/engine_fixture.h"
#include "engine/operators.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing_engine::Evaluate;

// The last answer, auto-rounding and the list of a function without a bracket are runs of the JSON
// protocol: tests/data/cli/protocol-runs.jsonl.

// Rows: name, expression, the result text, the error number when the flag is set.
class Evaluation : public testing::TestWithParam<testing_table::Row> {};

TEST_P(Evaluation, GivesTheResultText) {
    const testing_table::Row& row = GetParam();
    const testing_engine::Outcome outcome = testing_engine::EvaluateFresh(row[1]);
    EXPECT_EQ(outcome.result, row[2]);
    EXPECT_EQ(outcome.error, row.Int(3));
}

INSTANTIATE_TEST_SUITE_P(Rows, Evaluation, testing::ValuesIn(testing_table::ReadTable("engine/evaluations.tsv")),
                         testing_table::RowName);

TEST(Driver, LeavesTheArgumentFoldedAndCutAtTheNote) {
    EngineState state = testing_engine::FreshEngine();
    std::u16string expression = u"\uFF11+1 'note";
    EvaluateExpression(state, expression);
    EXPECT_EQ(ToUtf8(expression), "1+1 ");
    std::u16string noteOnly = u"\u2019note";
    EvaluateExpression(state, noteOnly);
    EXPECT_EQ(ToUtf8(noteOnly), "'note");
}

TEST(ErrorBox, ShowsTheFirstErrorOfAnEvaluationOnly) {
    EngineState state = testing_engine::FreshEngine();
    std::vector<std::pair<std::u16string, std::u16string>> boxes;
    state.ShowMessageBox = [&](const std::u16string& text, const std::u16string& title) {
        boxes.emplace_back(text, title);
    };
    state.ErrorBoxTitle = u"Tessarondel Error Information";
    state.ShowErrorBox = true;
    Evaluate(state, "1/0+2/0");
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(ToUtf8(boxes[0].first),
              "ErrNum:5\r\nErrInformation:The parameters of the functions or operators are invalid!");
    EXPECT_EQ(ToUtf8(boxes[0].second), "Tessarondel Error Information");
    Evaluate(state, "2.5.1e3");
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(ToUtf8(boxes[1].first),
              "ErrNum:5\r\nErrInformation:The parameters of the functions or operators are invalid!");
    EXPECT_EQ(state.ErrorNumber, 8);
    state.ShowErrorBox = false;
    Evaluate(state, "1/0");
    EXPECT_EQ(boxes.size(), 2u);
}

TEST(ErrorMessages, TwelveIsTheLastEntryBefore99) {
    EXPECT_EQ(ToUtf8(std::u16string(ErrorMessage(12))), "Can not set value to functions!");
    for (int unused : {13, 50, 98}) EXPECT_TRUE(ErrorMessage(unused).empty());
}

TEST(ErrorMessages, NumbersOutsideTheTableFailTheCaller) {
    EngineState state;
    EXPECT_THROW(state.ReportError(100), RunFailure);
    EXPECT_THROW(state.ReportError(-1), RunFailure);
    EXPECT_FALSE(state.ErrorFlag);
}

std::string Nested(int depth) { return std::string(depth, '(') + "1" + std::string(depth, ')'); }

// Deep nesting works within the bound, ends in the driver's handler beyond it, and beyond 32,767
// characters the bracket count overflows before the ladder runs.
TEST(DeepNesting, HasThreeBounds) {
    EXPECT_EQ(testing_engine::EvaluateFresh(Nested(900)).result, "1");
    EngineState state = testing_engine::FreshEngine();
    Evaluate(state, "42");
    const auto outcome = Evaluate(state, Nested(16000));
    EXPECT_EQ(outcome.result, "");
    EXPECT_EQ(outcome.error, 99);
    EXPECT_EQ(state.LastAnswer, 42);
    const auto overlong = testing_engine::EvaluateFresh(std::string(100000, '('));
    EXPECT_EQ(overlong.result, "Error");
    EXPECT_EQ(overlong.error, 6);
}

TEST(CommaList, HoldsFifteenDigitTextsOfTheOutermostList) {
    EngineState state = testing_engine::FreshEngine();
    testing_engine::Evaluate(state, "1/3,(4,5),2");
    EXPECT_EQ(state.CommaList.Items(), (std::vector<std::u16string>{u".333333333333333", u"5", u"2"}));
}

// Texts the reader can hand over where an operator may stand.
TEST(BinaryOperators, OtherTextsAreNone) {
    for (const char16_t* text : {u"=<", u"+-", u"===", u"%", u"=", u""}) {
        EXPECT_EQ(BinaryOperatorOf(text), BinaryOperator::None) << ToUtf8(text);
    }
}

}  // namespace
}  // namespace tessarondel
