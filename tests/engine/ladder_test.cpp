#include "engine/engine_fixture.h"
#include "engine/operators.h"

namespace tessarondel {
namespace {

using testing_engine::EvaluationRow;

class Precedence : public testing::TestWithParam<EvaluationRow> {};
TEST_P(Precedence, EvaluatesLevelByLevel) { testing_engine::ExpectRow(GetParam()); }

// Levels from loosest to tightest: , = logic compare sum product power unary call bracket primary.
const EvaluationRow kPrecedenceRows[] = {
    {"ProductBeforeSum", "2+3*4", "14"},
    {"BracketFirst", "(2+3)*4", "20"},
    {"PowerIsLeftAssociative", "2^3^2", "64"},
    {"SubtractionIsLeftAssociative", "10-3-2", "5"},
    {"PercentOnlyNextToIt", "2+10%", "2.1"},
    {"LeadingMinusIsSubtraction", "-3^2", "-9"},
    {"UnaryMinusBindsTighterThanPower", "2*-3^2", "18"},
    {"BlankBeforeSignKeepsUnary", "( -2^2)", "4"},
    {"PlusSignsAreIgnored", "2*+-+3", "-6"},
    {"ComparisonsChain", "3>2>1", "0"},
    {"LogicLooserThanComparison", "1 or 2 == 2", "-1"},
    {"CommaGivesLastValue", "1,2,3", "3"},
    {"RestIgnoredBehindClosedExpression", "3)+(4", "3"},
    {"UnreadableCharacterEndsTheExpression", "7\\22", "7"},
    // Operators and their numeric rules.
    {"DivRoundsOperandsToEven", "7.5 div 2", "4"},
    {"DivTruncatesQuotient", "7 div 2", "3"},
    {"ModHasDividendSign", "(0-7) mod 3", "-1"},
    {"AndBits", "5 and 3", "1"},
    {"OrBits", "5 or 3", "7"},
    {"XorBits", "5 xor 3", "6"},
    {"EqvBits", "5 eqv 3", "-7"},
    {"ImpBits", "5 imp 3", "-5"},
    {"LessThan", "1<2", "-1"},
    {"GreaterEqual", "2>=2", "-1"},
    {"NotEqual", "2<>2", "0"},
    {"ZeroToZero", "0^0", "1"},
    {"UnderflowIsZero", "1e-400", "0"},
    {"DivByZero", "5 div 0", "Error", 5},
    {"ModByRoundedZero", "5 mod 0.4", "Error", 99},
    {"Int32OutOfRange", "2147483648 and 1", "Error", 6},
    {"MinModMinusOne", "(0-2147483648) mod -1", "Error", 6},
    {"ProductOverflow", "1e308*10", "Error", 6},
    {"SumOverflow", "9e307+9e307", "Error", 6},
    {"NegativeRootHasNoValue", "(0-8)^(1/3)", "Error", 99},
    {"ZeroToNegativePower", "0^(0-1)", "Error", 99},
    // Errors inside the ladder report and carry on.
    {"MissingOperand", "1+", "Error", 0},
    {"MissingLeftOperand", "*2", "Error", 0},
    {"LaterDivisionErrorWins", "(1/)", "Error", 5},
    {"ComparisonIsNoAssignment", "2=3", "Error", 0},
    {"ExpressionIsNoAssignmentTarget", "x+1=3", "Error", 0},
    {"FunctionWithoutBracket", "pi=", "Error", 0},
};
INSTANTIATE_TEST_SUITE_P(Rows, Precedence, testing::ValuesIn(kPrecedenceRows), testing_engine::RowName);

TEST(CommaList, HoldsFifteenDigitTextsOfTheOutermostList) {
    EngineState state = testing_engine::FreshEngine();
    testing_engine::Evaluate(state, "1/3,(4,5),2");
    EXPECT_EQ(state.CommaList.Items(), (std::vector<std::u16string>{u".333333333333333", u"5", u"2"}));
}

TEST(AutoRounding, RoundsEveryOperatorResult) {
    EngineState state = testing_engine::FreshEngine();
    state.ApproximateBits = 2;
    EXPECT_EQ(testing_engine::Evaluate(state, "1/3*3").result, "0.99");
    EXPECT_EQ(testing_engine::Evaluate(state, "0.125,0").result, "0");
    EXPECT_EQ(testing_engine::Evaluate(state, "0.125+0").result, "0.12");
    state.ApproximateBits = 0;
    EXPECT_EQ(testing_engine::Evaluate(state, "2.5+0").result, "2");
    state.ApproximateBits = 23;
    EXPECT_EQ(testing_engine::Evaluate(state, "1/4").result, "0.25");
    state.ApproximateBits = 0;  // even after a division by zero
    EXPECT_EQ(testing_engine::Evaluate(state, "x=2.5/0").error, 5);
    EXPECT_EQ(testing_engine::Variables(state), (std::vector<std::pair<std::string, std::string>>{{"x", "2"}}));
}

// Texts the reader can hand over where an operator may stand.
TEST(BinaryOperators, OtherTextsAreNone) {
    for (const char16_t* text : {u"=<", u"+-", u"===", u"%", u"=", u""}) {
        EXPECT_EQ(BinaryOperatorOf(text), BinaryOperator::None) << ToUtf8(text);
    }
}

}  // namespace
}  // namespace tessarondel
