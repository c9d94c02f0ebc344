#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "engine/engine_fixture.h"
#include "engine/exponent_scan.h"
#include "engine/literal_passes.h"
#include "engine/source_folding.h"
#include "engine/token_stream.h"

namespace tessarondel {
namespace {

// Random texts glued from pieces that exercise the passes: constants, aliases,
// word operators, exponent forms, base literals, names, brackets and blanks.
std::u16string RandomText(std::mt19937& random, const std::vector<std::u16string>& pieces, int count) {
    std::uniform_int_distribution<std::size_t> pick(0, pieces.size() - 1);
    std::u16string text;
    for (int i = 0; i < count; ++i) text += pieces[pick(random)];
    return text;
}

const std::vector<std::u16string> kPieces = {
    u"pi",  u"e",   u"eps", u"inf", u"true", u"false", u"tg",  u"hsin", u"permutation", u"factorial", u"sin",
    u"mod", u"and", u"or",  u"xor", u"div",  u"imp",   u"eqv", u"sand", u"_and",        u"x",         u"a1",
    u"x2",  u"1",   u"25",  u"2.5", u".",    u"e3",    u"e+",  u"e-",   u"1e5",         u"$h1e",      u"$",
    u"d",   u"_",   u"(",   u")",   u"+",    u"-",     u"*",   u"/",    u"^",           u"=",         u"==",
    u",",   u"%",   u"!",   u"\\",  u" ",    u"  ",    u"'",
};

constexpr int kRounds = 4000;

struct PassResult {
    std::u16string text;
    bool completed = true;
    bool flag = false;
    int number = 0;
    bool operator==(const PassResult&) const = default;
};

TEST(LinearPasses, ExponentScanMatchesTheLiteralScan) {
    std::mt19937 random(20261122);
    int rewritten = 0;
    for (int round = 0; round < kRounds; ++round) {
        const std::u16string text = RandomText(random, kPieces, 1 + round % 24);
        SCOPED_TRACE(ToUtf8(text));
        EngineState linear;
        EngineState literal;
        std::u16string linearText = text;
        ScanExponents(linear, linearText);
        const std::u16string literalText = literal::ScanExponents(literal, text);
        ASSERT_EQ(ToUtf8(linearText), ToUtf8(literalText));
        ASSERT_EQ(linear.ErrorFlag, literal.ErrorFlag);
        rewritten += linearText.find(u"*(10^") != std::u16string::npos ? 1 : 0;
    }
    EXPECT_GT(rewritten, kRounds / 10);
}

TEST(LinearPasses, WordOperatorPassMatchesTheRestartingPass) {
    std::mt19937 random(7);
    for (int round = 0; round < kRounds; ++round) {
        const std::u16string text = RandomText(random, kPieces, 1 + round % 24);
        SCOPED_TRACE(ToUtf8(text));
        std::u16string linear = text;
        ReplaceWordOperators(linear);
        ASSERT_EQ(ToUtf8(linear), ToUtf8(literal::ReplaceWordOperators(text)));
    }
}

TEST(LinearPasses, TokenPassMatchesTheRestartingPass) {
    std::mt19937 random(11);
    int completed = 0;
    for (int round = 0; round < kRounds; ++round) {
        const std::u16string text = RandomText(random, kPieces, 1 + round % 12);
        SCOPED_TRACE(ToUtf8(text));
        EngineState linear;
        EngineState literal;
        PassResult linearResult{text};
        PassResult literalResult{text};
        linearResult.completed = RunTokenPass(linear, linearResult.text);
        literalResult.completed = literal::RunTokenPass(literal, literalResult.text);
        linearResult.flag = linear.ErrorFlag;
        linearResult.number = linear.ErrorNumber;
        literalResult.flag = literal.ErrorFlag;
        literalResult.number = literal.ErrorNumber;
        if (!linearResult.completed) linearResult.text.clear();
        if (!literalResult.completed) literalResult.text.clear();
        ASSERT_EQ(ToUtf8(linearResult.text), ToUtf8(literalResult.text));
        ASSERT_TRUE(linearResult == literalResult);
        completed += linearResult.completed ? 1 : 0;
    }
    EXPECT_GT(completed, kRounds / 10);  // the comparison covers texts that pass as well
}

TEST(LinearPasses, FoldingMatchesTheNinetyEightReplacements) {
    std::u16string every;
    for (char16_t c = 0x2000; c < 0x2100; ++c) every += c;
    for (char16_t c = 0x3000; c < 0x3010; ++c) every += c;
    for (char16_t c = 0xFF00; c < 0xFF70; ++c) every += c;
    every += u"abcXYZ09 '~";
    std::u16string folded = every;
    FoldSource(folded);
    EXPECT_EQ(ToUtf8(folded), ToUtf8(literal::FoldSource(every)));
}

}  // namespace
}  // namespace tessarondel
