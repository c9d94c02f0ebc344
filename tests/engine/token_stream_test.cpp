#include "engine/token_stream.h"

#include <gtest/gtest.h>

#include "engine/engine_fixture.h"
#include "engine/exponent_scan.h"
#include "engine/name_lists.h"

namespace tessarondel {
namespace {

struct StreamRow {
    const char* name;
    const char* source;
    const char* stream;  // the token stream; "" after an error that stops the build
    int error = -1;      // the error number left behind, -1 for none
};

void PrintTo(const StreamRow& row, std::ostream* out) { *out << row.source; }

class TokenStreamRows : public testing::TestWithParam<StreamRow> {};

TEST_P(TokenStreamRows, RewriteAndCheck) {
    const StreamRow& row = GetParam();
    EngineState state = testing_engine::FreshEngine();
    const std::u16string stream = BuildTokenStream(state, ToUtf16(row.source));
    EXPECT_EQ(ToUtf8(stream), row.stream);
    EXPECT_EQ(state.ErrorFlag ? state.ErrorNumber : -1, row.error);
}

const StreamRow kStreamRows[] = {
    // Lower case, word operators, constants, aliases.
    {"WordOperatorsAndCase", "A>=1 AND b MOD 2", "a>=1 & b %% 2"},
    {"SignPassAndConstants", "-pi/2+e", "0-3.14159265358979/2+2.71828182845905"},
    {"AllWordOperators", "1xor2 eqv3imp4div5or6", "1%!2 %~3%>4%\\5|6"},
    {"ExponentErrorLetsThePassesGoOn", "1xor2eqv3", "1%!2%~3", 5},
    {"DigitsEndWords", "x1and2", "x1&2"},
    {"TrailingWordOperator", "a1or", "a1|"},
    {"UnderscoreJoinsAWord", "_and", "_and"},
    {"WordInsideAWordStays", "sand", "sand"},
    {"AliasesRewritten", "hsin(1)+ator(2)+product(3)", "sh(1)+angtorad(2)+prod(3)"},
    {"TrueAndFalse", "true+false", "(0-1)+(0)"},
    {"EpsAndInf", "eps+inf", "(9.88131291682493*(10^(0-14)))+(1.79769313486231*(10^308))"},
    {"ComparedConstantPasses", "pi==3", "3.14159265358979==3"},
    {"EqualsLastPasses", "pi=", "3.14159265358979="},
    // Percent, exponents and signs.
    {"Percent", "50%", "50*(0.01)"},
    {"PercentBeforeNumber", "5%3", "", 0},
    {"Exponent", "1.5e-3", "1.5*(10^-3)"},
    {"ExponentInName", "x2e3", "x2*(10^3)"},
    {"ExponentTakesBlanks", "1e5 + 3", "1*(10^5 )+ 3"},
    {"SignsAtStartAndAfterBracket", "--3+(-3)", "0--3+(0-3)"},
    {"TabsAndCrLfBecomeBlanks", "1\t+\r\n2", "1 + 2"},
    // Errors that stop the build.
    {"ImpliedMultiplication", "(1)(2)", "", 0},
    {"NumberBeforeBracket", "2(3)", "", 0},
    {"ConstantBeforeBracket", "pi(2)", "", 0},
    {"TokenBehindBracket", ")1(", "", 0},
    {"FunctionBehindBracket", "(2)sin(3)", "", 0},
    {"NameBehindBracket", "(2)3", "", 0},
    {"BlankInsideToken", "a b", "", 8},
    {"PointInName", "a.b", "", 8},
    {"UnderscoreOnly", "_", "", 8},
    {"OtherCharacter", "a#", "", 8},
    {"NonAsciiLetter", "\xC3\xA9", "", 8},
    {"KelvinSignIsNoLetter", "\xE2\x84\xAA", "", 8},
    {"DigitThenLetters", "2x", "", 4},
    {"DigitThenFunction", "2sin", "", 4},
    {"DigitThenFunctionCall", "2sin(1)", "", 0},
    {"AssignToConstant", "pi=3", "", 7},
    {"AssignToFunction", "sin=3", "", 12},
    // Errors that let the passes go on: the last number stands.
    {"ExponentBlank", "1e 5", "", 8},
    {"ExponentPoint", "1e2.5", "", 8},
    {"EmptyTextIsFine", "", ""},
};
INSTANTIATE_TEST_SUITE_P(Rows, TokenStreamRows, testing::ValuesIn(kStreamRows),
                         [](const auto& info) { return std::string(info.param.name); });

// Constants and aliases that are also custom function names, which only the
// name list of the state can make them: the replacement is checked where it
// stands, so a number in the place of a constant still faces the brackets.
struct CustomNamedRow {
    const char* name;
    const char* text;
    const char* rewritten;  // "" after an error that stops the pass
    int error = -1;
};

TEST(TokenPass, ReplacementsOfCustomNamesAreCheckedInPlace) {
    const CustomNamedRow rows[] = {
        {"NumberBehindBracket", ")e", "", 0},
        {"NumberBeforeBracket", "e(2)", "", 0},
        {"TrueInBrackets", "2*true", "2*(-1)"},
    };
    for (const CustomNamedRow& row : rows) {
        SCOPED_TRACE(row.name);
        EngineState state;
        state.CustomFunctionNames = u"{e}{pi}{tg}{true}";
        std::u16string text = ToUtf16(row.text);
        const bool completed = RunTokenPass(state, text);
        EXPECT_EQ(completed ? ToUtf8(text) : "", row.rewritten);
        EXPECT_EQ(state.ErrorFlag ? state.ErrorNumber : -1, row.error);
    }
}

TEST(ExponentScan, StopsAtTheFirstBadLiteralWithEarlierRewritesKept) {
    EngineState state;
    std::u16string src = u" 1e2+3e+x ";
    ScanExponents(state, src);
    EXPECT_EQ(ToUtf8(src), "1*(10^2)+3*(10^+)x");
    src = u"1e2+.e5+1e3";
    ScanExponents(state, src);
    EXPECT_EQ(ToUtf8(src), "1*(10^2)+.e5+1e3");
    EXPECT_EQ(state.ErrorNumber, 5);
}

TEST(ExponentScan, PassesOverWordsAndLastPlaceE) {
    EngineState state;
    for (const char* text : {"sec", "exp(1)", "e", "2e", "$h1e5", "x=e"}) {
        std::u16string src = ToUtf16(text);
        ScanExponents(state, src);
        EXPECT_EQ(ToUtf8(src), text);
    }
    EXPECT_FALSE(state.ErrorFlag);
}

// Both rewrite in place from the back; every sign and every character moves once.
TEST(TextRewrites, PercentSignsAndSignZeros) {
    struct Row {
        const char16_t* text;
        const char16_t* percent;
        const char16_t* signs;
    };
    const Row rows[] = {
        {u"", u"", u""},
        {u"%%", u"*(0.01)*(0.01)", u"%%"},
        {u"-2%+(-3)", u"-2*(0.01)+(-3)", u"0-2%+(0-3)"},
        {u"(+(-1))", u"(+(-1))", u"(0+(0-1))"},
        {u"1-2", u"1-2", u"1-2"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(ToUtf8(row.text));
        std::u16string percent = row.text;
        std::u16string room;
        ReplacePercentSignsAndWordOperators(percent, room);
        EXPECT_EQ(ToUtf8(percent), ToUtf8(row.percent));
        std::u16string signs = row.text;
        InsertSignZeros(signs);
        EXPECT_EQ(ToUtf8(signs), ToUtf8(row.signs));
    }
}

TEST(CountChar, OverLimitReportsOverflowAndCountsNothing) {
    EngineState state;
    EXPECT_EQ(CountChar(state, std::u16string(32767, u'('), u'('), 32767);
    EXPECT_FALSE(state.ErrorFlag);
    EXPECT_EQ(CountChar(state, std::u16string(32768, u'x'), u'('), 0);
    EXPECT_EQ(state.ErrorNumber, 6);
}

// The delimiters themselves are proven against their list with the name lookups.
TEST(CharacterClasses, UnderscoreIsALetterAndThePointADigit) {
    EXPECT_TRUE(IsLetterChar(u'_'));
    EXPECT_FALSE(IsLetterChar(u'1'));
    EXPECT_TRUE(IsDigitChar(u'.'));
}

}  // namespace
}  // namespace tessarondel
