// The linear-time passes against the literal ones in literal_passes.cpp, on
// generated texts: same text, same completion, same error.
#include <gtest/gtest.h>

#include <functional>
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

// Pieces that exercise the passes: constants, aliases, word operators,
// exponent forms, base literals, names, brackets and blanks.
const std::vector<std::u16string> kPieces = {
    u"pi",  u"e",   u"eps", u"inf", u"true", u"false", u"tg",  u"hsin", u"permutation", u"factorial", u"sin",
    u"mod", u"and", u"or",  u"xor", u"div",  u"imp",   u"eqv", u"sand", u"_and",        u"x",         u"a1",
    u"x2",  u"1",   u"25",  u"2.5", u".",    u"e3",    u"e+",  u"e-",   u"1e5",         u"$h1e",      u"$",
    u"d",   u"_",   u"(",   u")",   u"+",    u"-",     u"*",   u"/",    u"^",           u"=",         u"==",
    u",",   u"%",   u"!",   u"\\",  u" ",    u"  ",    u"'",
};

constexpr int kRounds = 4000;

// kRounds texts of 1 to maxPieces random pieces.
std::vector<std::u16string> RandomTexts(unsigned seed, const std::vector<std::u16string>& pieces, int maxPieces) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::size_t> pick(0, pieces.size() - 1);
    std::vector<std::u16string> texts(kRounds);
    for (int round = 0; round < kRounds; ++round) {
        for (int i = 0; i <= round % maxPieces; ++i) texts[static_cast<std::size_t>(round)] += pieces[pick(random)];
    }
    return texts;
}

struct PassOutcome {
    std::string text;  // "" when the pass stopped at an error
    bool completed = true;
    bool flag = false;
    int number = 0;
    bool operator==(const PassOutcome&) const = default;
};

using Pass = std::function<bool(EngineState&, std::u16string&)>;

PassOutcome Run(const Pass& pass, std::u16string text, std::u16string_view customNames) {
    EngineState state;
    state.CustomFunctionNames = customNames;
    const bool completed = pass(state, text);
    return {completed ? ToUtf8(text) : "", completed, state.ErrorFlag, state.ErrorNumber};
}

// Runs both passes on every text; returns how many linear outcomes satisfy `counted`.
int Compare(const Pass& linear, const Pass& reference, const std::vector<std::u16string>& texts,
            std::u16string_view customNames, const std::function<bool(const PassOutcome&)>& counted) {
    int count = 0;
    for (const std::u16string& text : texts) {
        SCOPED_TRACE(ToUtf8(text));
        const PassOutcome actual = Run(linear, text, customNames);
        const PassOutcome expected = Run(reference, text, customNames);
        EXPECT_EQ(actual.text, expected.text);
        EXPECT_TRUE(actual == expected);
        if (testing::Test::HasFailure()) break;
        count += counted(actual) ? 1 : 0;
    }
    return count;
}

bool Completed(const PassOutcome& outcome) { return outcome.completed; }

TEST(LinearPasses, ExponentScanMatchesTheLiteralScan) {
    const Pass linear = [](EngineState& state, std::u16string& text) { return ScanExponents(state, text), true; };
    const Pass literal = [](EngineState& state, std::u16string& text) {
        return text = literal::ScanExponents(state, text), true;
    };
    const auto rewritten = [](const PassOutcome& outcome) { return outcome.text.find("*(10^") != std::string::npos; };
    EXPECT_GT(Compare(linear, literal, RandomTexts(20261122, kPieces, 24), u"", rewritten), kRounds / 10);
}

TEST(LinearPasses, PercentAndWordOperatorPassMatchesTheRestartingPasses) {
    std::u16string room;  // kept from text to text, as the engine keeps it
    const Pass linear = [&room](EngineState&, std::u16string& text) {
        return ReplacePercentSignsAndWordOperators(text, room), true;
    };
    // Percent signs one by one, then the restarting word operator pass.
    const Pass literal = [](EngineState&, std::u16string& text) {
        for (std::size_t at = text.find(u'%'); at != std::u16string::npos; at = text.find(u'%', at)) {
            text.replace(at, 1, u"*(0.01)");
        }
        return text = literal::ReplaceWordOperators(text), true;
    };
    EXPECT_EQ(Compare(linear, literal, RandomTexts(7, kPieces, 24), u"", Completed), kRounds);
}

// The comparisons cover texts that pass as well as texts that fail.
TEST(LinearPasses, TokenPassMatchesTheRestartingPass) {
    EXPECT_GT(Compare(RunTokenPass, literal::RunTokenPass, RandomTexts(11, kPieces, 12), u"", Completed), kRounds / 10);
    // Every replaced name, custom function names, and tokens with braces; then names that no custom
    // function can take, but that the lookups must still serve.
    std::vector<std::u16string> pieces = {
        u"area",    u"f",       u"sin},{cos", u"pi},{e",  u"{",       u"}",    u"combination", u"hcos", u"htan",
        u"harcsin", u"harccos", u"harctan",   u"average", u"product", u"ator", u"rtoa",        u"max",  u"2",
    };
    pieces.insert(pieces.end(), kPieces.begin(), kPieces.end());
    EXPECT_GT(Compare(RunTokenPass, literal::RunTokenPass, RandomTexts(13, pieces, 10), u"{area},{f}", Completed),
              kRounds / 10);
    EXPECT_GT(
        Compare(RunTokenPass, literal::RunTokenPass, RandomTexts(14, pieces, 10), u"{pi}{e}{tg}{true}{eps}", Completed),
        kRounds / 10);
}

// Long texts dense with replacements, in which the text grows and shrinks
// many times over as the pass goes along.
TEST(LinearPasses, TokenPassMatchesOnLongTextsOfReplacements) {
    const std::u16string names[] = {u"pi", u"e", u"eps", u"inf",  u"true",       u"false",
                                    u"tg", u"x", u"2.5", u"$h1f", u"permutation"};
    const std::u16string delimiters = u"*+/^,-";
    std::mt19937 random(17);
    std::vector<std::u16string> texts(6);
    for (std::size_t round = 0; round < texts.size(); ++round) {
        for (std::size_t piece = 0; piece < 100 + 40 * round; ++piece) {
            texts[round] += names[random() % std::size(names)] + delimiters[random() % delimiters.size()];
        }
        texts[round] += u"e";
    }
    EXPECT_EQ(Compare(RunTokenPass, literal::RunTokenPass, texts, u"", Completed), 6);
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
                names.insert(names.end(), {piece, AsciiUpper(piece), piece + u" "});
            }
        }
        names.emplace_back(list.substr(1, list.size() - 2));
    }
    const std::vector<std::u16string> letters = {u"a", u"e", u"i", u"n", u"p", u"s", u"t",
                                                 u"{", u"}", u",", u"_", u" ", u"S"};
    for (const std::u16string& name : RandomTexts(19, letters, 7)) names.push_back(name);
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
