#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "engine/engine_fixture.h"
#include "engine/token_reader.h"
#include "numbers/text_rules.h"
#include "table_file.h"

namespace tessarondel {
namespace {

// Reads the whole stream: the tokens as "text:kind" separated by blanks; the reader's error number, or -1.
std::string ReadAll(EngineState& state, std::u16string_view stream, int& error) {
    state.TokenStream.Assign(std::u16string(stream));
    std::string tokens;
    for (int guard = 0; guard < 100; ++guard) {
        ReadToken(state);
        if (state.TokenKind == TokenNone) break;
        tokens += (tokens.empty() ? "" : " ") + ToUtf8(state.CurrentToken) + ":" + std::to_string(state.TokenKind);
    }
    error = state.ErrorFlag ? state.ErrorNumber : -1;
    return tokens;
}

class Reader : public testing::TestWithParam<testing_table::Row> {};

TEST_P(Reader, CutsTokensOffTheFront) {
    const testing_table::Row& row = GetParam();
    EngineState state = testing_engine::FreshEngine();
    int error = -1;
    EXPECT_EQ(ReadAll(state, ToUtf16(row[1]), error), row[2]);
    EXPECT_EQ(error, row.Int(3));
}

INSTANTIATE_TEST_SUITE_P(Rows, Reader, testing::ValuesIn(testing_table::ReadTable("engine/reader.tsv")),
                         testing_table::RowName);

// A text of readable characters is read whole, without error; the token
// stream skips the walk for custom calls on such texts, which it cannot stop in.
TEST(Reader, ATextOfReadableCharactersIsReadToTheEnd) {
    const std::u16string pieces[] = {u"a", u"7", u".", u"_", u" ", u"+",  u"==", u"<>", u"(",  u")",  u",",
                                     u"%", u"^", u"&", u"|", u"!", u"\\", u"~",  u"#",  u"$h", u"\t", u"\n"};
    std::mt19937 random(5);
    std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
    int accepted = 0;
    for (int round = 0; round < 3000; ++round) {
        std::u16string text;
        for (int i = 0; i < 1 + round % 9; ++i) text += pieces[pick(random)];
        if (!std::all_of(text.begin(), text.end(), IsReadableChar)) continue;
        ++accepted;
        SCOPED_TRACE(ToUtf8(text));
        EngineState state = testing_engine::FreshEngine();
        int error = -1;
        ReadAll(state, text, error);
        EXPECT_EQ(error, -1);
        EXPECT_TRUE(TrimBlanks(state.TokenStream.Rest()).empty());
    }
    EXPECT_GT(accepted, 300);
    EXPECT_FALSE(IsReadableChar(u'!'));
    EXPECT_FALSE(IsReadableChar(u'\t'));
}

}  // namespace
}  // namespace tessarondel
