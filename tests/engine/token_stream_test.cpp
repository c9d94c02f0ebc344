#include "engine/token_stream.h"

#include <gtest/gtest.h>

#include "engine/engine_fixture.h"
#include "engine/exponent_scan.h"
#include "engine/name_lists.h"
#include "table_file.h"

namespace tessarondel {
namespace {

// Rows: name, source, the token stream ("" after an error that stops the build), the error number left behind.
class TokenStreamRows : public testing::TestWithParam<testing_table::Row> {};

TEST_P(TokenStreamRows, RewriteAndCheck) {
    const testing_table::Row& row = GetParam();
    EngineState state = testing_engine::FreshEngine();
    EXPECT_EQ(ToUtf8(BuildTokenStream(state, ToUtf16(row[1]))), row[2]);
    EXPECT_EQ(state.ErrorFlag ? state.ErrorNumber : -1, row.Int(3));
}

INSTANTIATE_TEST_SUITE_P(Rows, TokenStreamRows, testing::ValuesIn(testing_table::ReadTable("engine/token-streams.tsv")),
                         testing_table::RowName);

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
