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

// Rows: the pass, the text, the text afterwards ("" when the pass stopped), the error number or "-".
TEST(TextPasses, RewriteInPlace) {
    for (const testing_table::Row& row : testing_table::ReadTable("engine/text-passes.tsv")) {
        SCOPED_TRACE(row[0] + ": " + row[1]);
        EngineState state;
        std::u16string text = ToUtf16(row[1]), room;
        if (row[0] == "custom names") {
            state.CustomFunctionNames = u"{e}{pi}{tg}{true}";
            if (!RunTokenPass(state, text)) text.clear();
        } else if (row[0] == "exponents") {
            ScanExponents(state, text);
        } else if (row[0] == "percent") {
            ReplacePercentSignsAndWordOperators(text, room);
        } else {
            ASSERT_EQ(row[0], "signs");
            InsertSignZeros(text);
        }
        EXPECT_EQ(ToUtf8(text), row[2]);
        if (row[3] != "-") {
            EXPECT_EQ(state.ErrorFlag ? state.ErrorNumber : -1, row.Int(3));
        }
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
