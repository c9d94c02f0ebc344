#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "engine/engine_fixture.h"
#include "engine/exponent_scan.h"
#include "engine/literal_passes.h"
#include "engine/name_lists.h"
#include "engine/source_folding.h"
#include "engine/token_stream.h"
#include "numbers/text_rules.h"

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

// Runs the token pass and the restarting pass on each text and compares text,
// completion and error; returns how many texts went through without error.
int CompareTokenPasses(const std::vector<std::u16string>& texts, std::u16string_view customNames) {
    int completed = 0;
    for (const std::u16string& text : texts) {
        SCOPED_TRACE(ToUtf8(text));
        EngineState linear;
        EngineState literal;
        linear.CustomFunctionNames = customNames;
        literal.CustomFunctionNames = customNames;
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
        EXPECT_EQ(ToUtf8(linearResult.text), ToUtf8(literalResult.text));
        EXPECT_TRUE(linearResult == literalResult);
        if (testing::Test::HasFailure()) break;
        completed += linearResult.completed ? 1 : 0;
    }
    return completed;
}

std::vector<std::u16string> RandomTexts(std::mt19937& random, const std::vector<std::u16string>& pieces,
                                        int maxPieces) {
    std::vector<std::u16string> texts;
    for (int round = 0; round < kRounds; ++round) texts.push_back(RandomText(random, pieces, 1 + round % maxPieces));
    return texts;
}

TEST(LinearPasses, TokenPassMatchesTheRestartingPass) {
    std::mt19937 random(11);
    const int completed = CompareTokenPasses(RandomTexts(random, kPieces, 12), u"");
    EXPECT_GT(completed, kRounds / 10);  // the comparison covers texts that pass as well
}

// Every replaced name, custom function names, and tokens with braces.
TEST(LinearPasses, TokenPassMatchesWithCustomNamesAndBracedTokens) {
    std::vector<std::u16string> pieces = {
        u"area",    u"f",       u"sin},{cos", u"pi},{e",  u"{",       u"}",    u"combination", u"hcos", u"htan",
        u"harcsin", u"harccos", u"harctan",   u"average", u"product", u"ator", u"rtoa",        u"max",  u"2",
    };
    pieces.insert(pieces.end(), kPieces.begin(), kPieces.end());
    std::mt19937 random(13);
    EXPECT_GT(CompareTokenPasses(RandomTexts(random, pieces, 10), u"{area},{f}"), kRounds / 10);
    // Names that no custom function can take, but that the lookups must still serve.
    EXPECT_GT(CompareTokenPasses(RandomTexts(random, pieces, 10), u"{pi}{e}{tg}{true}{eps}"), kRounds / 10);
}

// Long texts dense with replacements, in which the text grows and shrinks
// many times over as the pass goes along.
TEST(LinearPasses, TokenPassMatchesOnLongTextsOfReplacements) {
    const std::vector<std::u16string> names = {u"pi", u"e", u"eps", u"inf",  u"true",       u"false",
                                               u"tg", u"x", u"2.5", u"$h1f", u"permutation"};
    const std::vector<std::u16string> delimiters = {u"*", u"+", u"/", u"^", u",", u"-"};
    std::mt19937 random(17);
    std::vector<std::u16string> texts;
    for (int round = 0; round < 6; ++round) {
        std::u16string text;
        for (int piece = 0; piece < 100 + 40 * round; ++piece) {
            text += RandomText(random, names, 1) + RandomText(random, delimiters, 1);
        }
        texts.push_back(text + u"e");
    }
    EXPECT_EQ(CompareTokenPasses(texts, u""), 6);
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

// Names to look up: every short piece of the list texts (whole entries, their
// prefixes and suffixes, pieces across braces and commas), the lists without
// their outer braces, the same in upper case and with blanks, and random names
// over a small alphabet.
std::vector<std::u16string> NamesToLookUp() {
    std::vector<std::u16string> names = {u"", u" ", u"{}", u"sin ", u" sin", u"Sin", u"PI"};
    for (const std::u16string_view list : {BuiltinFunctionList, AliasList, WordOperatorList, ConstantList}) {
        for (std::size_t from = 0; from < list.size(); ++from) {
            for (std::size_t length = 0; length <= 14 && from + length <= list.size(); ++length) {
                const std::u16string piece(list.substr(from, length));
                names.push_back(piece);
                names.push_back(AsciiUpper(piece));
                names.push_back(piece + u" ");
            }
        }
        names.emplace_back(list.substr(1, list.size() - 2));
    }
    std::mt19937 random(19);
    const std::u16string alphabet = u"aeinpst{},_ S";
    std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
    for (int round = 0; round < 10000; ++round) {
        std::u16string name;
        for (int i = 0; i < round % 7; ++i) name += alphabet[letter(random)];
        names.push_back(name);
    }
    return names;
}

TEST(NameLookups, MatchTheBracedSubstringRule) {
    const std::vector<std::u16string> names = NamesToLookUp();
    int functions = 0;
    int bracedMembers = 0;
    for (const std::u16string_view customNames : {std::u16string_view(), std::u16string_view(u"{area},{f},{sin2}")}) {
        EngineState state;
        state.CustomFunctionNames = customNames;
        for (const std::u16string& name : names) {
            SCOPED_TRACE(ToUtf8(name) + " with custom names " + ToUtf8(customNames));
            const bool function = literal::IsFunctionName(state, name);
            ASSERT_EQ(IsFunctionName(state, name), function);
            ASSERT_EQ(IsKnownName(state, name), literal::IsKnownName(state, name));
            ASSERT_EQ(IsConstantName(name), literal::InList(name, ConstantList));
            for (const std::u16string_view list : {BuiltinFunctionList, AliasList, WordOperatorList, ConstantList}) {
                ASSERT_EQ(InBracedList(name, list), literal::InList(name, list));
            }
            functions += function ? 1 : 0;
            bracedMembers += (function && name.find(u'}') != std::u16string::npos) ? 1 : 0;
        }
    }
    EXPECT_GT(functions, 200);     // every entry, several times over
    EXPECT_GT(bracedMembers, 50);  // names that are members only by the substring rule
}

TEST(NameLookups, DelimitersAreTheListedCharactersAndFourControls) {
    int delimiters = 0;
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const auto c = static_cast<char16_t>(code);
        ASSERT_EQ(IsDelimiterChar(c), literal::IsListedDelimiter(c)) << code;
        delimiters += IsDelimiterChar(c) ? 1 : 0;
    }
    EXPECT_EQ(delimiters, 21);  // 17 one-character entries, tab, NUL, LF, CR
}

}  // namespace
}  // namespace tessarondel
