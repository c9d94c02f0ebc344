#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "engine/engine_fixture.h"
#include "engine/token_reader.h"
#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

using Token = std::pair<std::string, int>;

// Reads the whole stream; the reader's error number, or -1.
std::vector<Token> ReadAll(EngineState& state, std::u16string_view stream, int& error) {
    state.TokenStream.Assign(std::u16string(stream));
    std::vector<Token> tokens;
    for (int guard = 0; guard < 100; ++guard) {
        ReadToken(state);
        if (state.TokenKind == TokenNone) break;
        tokens.emplace_back(ToUtf8(state.CurrentToken), state.TokenKind);
    }
    error = state.ErrorFlag ? state.ErrorNumber : -1;
    return tokens;
}

struct ReaderRow {
    const char* name;
    const char16_t* stream;
    std::vector<Token> tokens;
    int error = -1;
};

void PrintTo(const ReaderRow& row, std::ostream* out) { *out << ToUtf8(row.stream); }

class Reader : public testing::TestWithParam<ReaderRow> {};

TEST_P(Reader, CutsTokensOffTheFront) {
    const ReaderRow& row = GetParam();
    EngineState state = testing_engine::FreshEngine();
    int error = -1;
    EXPECT_EQ(ReadAll(state, row.stream, error), row.tokens);
    EXPECT_EQ(error, row.error);
}

const ReaderRow kReaderRows[] = {
    {"TwoCharacterOperator", u"a == b", {{"a", 104}, {"==", 101}, {"b", 104}}},
    {"TwoCharacterOperatorNeedsAFollower", u"a==", {{"a", 104}, {"=", 101}, {"=", 101}}},
    {"StreamOperators",
     u"1%%2%\\3%!4",
     {{"1", 103}, {"%%", 101}, {"2", 103}, {"%\\", 101}, {"3", 103}, {"%!", 101}, {"4", 103}}},
    {"FunctionName", u"sin(1)", {{"sin", 102}, {"(", 101}, {"1", 103}, {")", 101}}},
    {"NumberRunsToDelimiter", u"12.5e3+1", {{"12.5e3", 103}, {"+", 101}, {"1", 103}}},
    {"BaseLiteral", u"$HFF+1", {{"$HFF", 103}, {"+", 101}, {"1", 103}}},
    {"TwoBaseLiterals", u"$hff$h10", {{"$hff", 103}, {"$h10", 103}}},
    {"UnreadableNearTheEnd", u"7\\2", {{"7", 103}}, 3},
    {"UnreadableEarlierEndsSilently", u"7\\22", {{"7", 103}}},
    {"BangAtTheEnd", u"5!", {{"5", 103}}, 3},
    {"BangFirstWithRoom", u"!555", {}},
    {"DollarWithoutPrefix", u"$x12", {}},
    {"BlanksAroundAreTrimmed", u"   x   ", {{"x", 104}}},
};
INSTANTIATE_TEST_SUITE_P(Rows, Reader, testing::ValuesIn(kReaderRows),
                         [](const auto& info) { return std::string(info.param.name); });

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
