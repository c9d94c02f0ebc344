#include "engine/token_stream.h"

#include <algorithm>
#include <array>

#include "customfunctions/engine/call_expansion.h"
#include "engine/errors.h"
#include "engine/exponent_scan.h"
#include "engine/name_lists.h"
#include "engine/token_reader.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// What the first passes need to know of a source, from one look at each character.
struct SourceSurvey {
    bool upperCase = false;
    bool tabOrReturn = false;
    bool readable = true;  // every character readable once tabs are blanks (a CR counts as unreadable)
};

SourceSurvey Survey(std::u16string_view src) {
    enum : unsigned char { UpperCase = 1, TabOrReturn = 2, Unreadable = 4 };
    constexpr auto Classes = [] {
        std::array<unsigned char, 128> classes{};
        for (char16_t c = 0; c < classes.size(); ++c) {
            if (c >= u'A' && c <= u'Z') classes[c] |= UpperCase;
            if (c == u'\t' || c == u'\r') classes[c] |= TabOrReturn;
            if (!IsReadableChar(c) && c != u'\t') classes[c] |= Unreadable;
        }
        return classes;
    }();
    unsigned found = 0;
    for (const char16_t c : src) found |= c < Classes.size() ? Classes[c] : unsigned{Unreadable};
    return {(found & UpperCase) != 0, (found & TabOrReturn) != 0, (found & Unreadable) == 0};
}

// Tabs, and CR LF pairs, become one blank each; a lone CR or LF stays.
void BlankTabsAndLineEnds(std::u16string& src) {
    if (std::none_of(src.begin(), src.end(), [](char16_t c) { return c == u'\t' || c == u'\r'; })) return;
    std::size_t out = 0;
    for (std::size_t i = 0; i < src.size(); ++i) {
        const bool lineEnd = src[i] == u'\r' && i + 1 < src.size() && src[i + 1] == u'\n';
        src[out++] = (src[i] == u'\t' || lineEnd) ? u' ' : src[i];
        if (lineEnd) ++i;
    }
    src.resize(out);
}

// Whether `test` holds for the character behind any ")" in the text with its
// blanks removed.
template <typename Test>
bool AnyBehindClosingBracket(std::u16string_view src, Test test) {
    for (std::size_t at = FindChar(src, u')'); at != std::u16string_view::npos; at = FindChar(src, u')', at + 1)) {
        const std::size_t behind = src.find_first_not_of(u' ', at + 1);
        if (behind != std::u16string_view::npos && test(src[behind])) return true;
    }
    return false;
}

// ")(" in the text with its blanks removed.
bool HasAdjacentBrackets(std::u16string_view src) {
    return AnyBehindClosingBracket(src, [](char16_t c) { return c == u'('; });
}

// There is no implied multiplication: in the text with its blanks removed, a
// non-delimiter right behind ")" is an error.
bool HasNameBehindBracket(std::u16string_view src) {
    return AnyBehindClosingBracket(src, [](char16_t c) { return !IsDelimiterChar(c); });
}

constexpr std::u16string_view WordOperatorNames[] = {u"and", u"xor", u"eqv", u"mod", u"div", u"or", u"imp"};
constexpr std::u16string_view WordOperatorTexts[] = {u"&", u"%!", u"%~", u"%%", u"%\\", u"|", u"%>"};

std::u16string_view WordOperatorText(std::u16string_view word) {
    if (word.size() < 2 || word.size() > 3) return {};
    for (std::size_t i = 0; i < std::size(WordOperatorNames); ++i) {
        if (word == WordOperatorNames[i]) return WordOperatorTexts[i];
    }
    return {};
}

// Replaces every character for which `replacement(i)` gives a text by that
// text, `grown` characters longer in all. From the back, so that every
// character moves once and the text in front of the one being replaced, which
// `replacement` may look at, is still unmoved.
template <typename Replacement>
void ReplaceCharactersInPlace(std::u16string& src, std::size_t grown, Replacement replacement) {
    std::size_t out = src.size() + grown;
    src.resize(out);
    for (std::size_t i = out - grown; i-- > 0;) {
        const std::u16string_view text = replacement(i);
        if (text.empty()) {
            src[--out] = src[i];
            continue;
        }
        out -= text.size();
        std::copy(text.begin(), text.end(), src.begin() + static_cast<std::ptrdiff_t>(out));
    }
}

// The passes behind the custom expansion; false when one of them stops the build.
bool RewriteAndCheck(EngineState& state, std::u16string& src, bool expanded) {
    // The source was lowered; only an expanded body can bring upper case back.
    if (expanded) LowerAsciiInPlace(src);
    ScanExponents(state, src);
    ReplacePercentSignsAndWordOperators(src, state.SpareText);
    if (HasAdjacentBrackets(src)) {
        state.ReportError(SyntaxError);
        return false;
    }
    if (!RunTokenPass(state, src)) return false;
    // The passes since the first blanking insert only ASCII symbols and digits;
    // only an expanded body can bring tabs or CR LF pairs back.
    if (expanded) BlankTabsAndLineEnds(src);
    if (CountChar(state, src, u'(') != CountChar(state, src, u')')) {
        state.ReportError(BracketsMismatch);
        return false;
    }
    if (HasNameBehindBracket(src)) {
        state.ReportError(SyntaxError);
        return false;
    }
    InsertSignZeros(src);
    return true;
}

}  // namespace

// Percent signs become "*(0.01)", then the word operators their symbols. The
// replacement of a percent sign holds no letter, so the words are the same
// before and after it, and the symbols come after the percent signs are gone;
// one pass from the front therefore does both. A word replacement sends the
// scan back to the start; the words in front of it are no operators (or they
// would have been replaced) and end where they ended, so the scan goes on
// behind the replacement instead.
void ReplacePercentSignsAndWordOperators(std::u16string& src, std::u16string& room) {
    constexpr std::u16string_view Hundredth = u"*(0.01)";
    const std::u16string_view text = src;
    std::size_t copied = 0;  // text up to here is in room
    const auto replace = [&](std::size_t from, std::size_t to, std::u16string_view replacement) {
        if (copied == 0) room.clear();
        room.append(text.substr(copied, from - copied)).append(replacement);
        copied = to;
    };
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] == u'%') {
            replace(i, i + 1, Hundredth);
            ++i;
            continue;
        }
        if (!IsLetterChar(text[i])) {
            ++i;
            continue;
        }
        std::size_t end = i + 1;
        while (end < text.size() && IsLetterChar(text[end])) ++end;
        const std::u16string_view replacement = WordOperatorText(text.substr(i, end - i));
        if (!replacement.empty()) replace(i, end, replacement);
        i = end;
    }
    if (copied == 0) return;
    room.append(text.substr(copied));
    src.swap(room);
}

void InsertSignZeros(std::u16string& src) {
    const auto isSign = [](char16_t c) { return c == u'+' || c == u'-'; };
    const auto needsZero = [&](std::size_t i) { return isSign(src[i]) && (i == 0 || src[i - 1] == u'('); };
    // A sign needs a zero at the start or behind "(", so only those places are looked at.
    std::size_t zeros = !src.empty() && isSign(src[0]) ? 1 : 0;
    for (std::size_t at = FindChar(src, u'('); at != std::u16string::npos; at = FindChar(src, u'(', at + 1)) {
        zeros += at + 1 < src.size() && isSign(src[at + 1]) ? 1 : 0;
    }
    if (zeros == 0) return;
    ReplaceCharactersInPlace(src, zeros, [&](std::size_t i) {
        if (!needsZero(i)) return std::u16string_view();
        return src[i] == u'+' ? std::u16string_view(u"0+") : std::u16string_view(u"0-");
    });
}

std::u16string BuildTokenStream(EngineState& state, std::u16string_view source, std::u16string storage) {
    std::u16string result;
    RunWithFailureHandler(state, [&] {
        // Room for the usual growth (percent signs, constants, sign zeros) up front.
        std::u16string src = std::move(storage);
        src.reserve(2 * source.size() + 16);
        src.assign(source);
        const SourceSurvey survey = Survey(src);
        if (survey.upperCase) LowerAsciiInPlace(src);
        if (survey.tabOrReturn) BlankTabsAndLineEnds(src);
        // Without custom functions the expansion walk finds nothing, and it
        // reports only where a token starts with a character the reader cannot read.
        const bool expands = !state.CustomFunctionNames.empty();
        if (expands || !survey.readable) src = ExpandCustomFunctionCalls(state, std::move(src));
        if (RewriteAndCheck(state, src, expands)) result = std::move(src);
    });
    return result;
}

}  // namespace tessarondel
