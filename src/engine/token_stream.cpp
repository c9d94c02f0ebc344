#include "engine/token_stream.h"

#include <algorithm>

#include "customfunctions/engine/call_expansion.h"
#include "engine/errors.h"
#include "engine/exponent_scan.h"
#include "engine/name_lists.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// Tabs, and CR LF pairs, become one blank each; a lone CR or LF stays.
std::u16string BlankTabsAndLineEnds(std::u16string_view src) {
    std::u16string out;
    out.reserve(src.size());
    for (std::size_t i = 0; i < src.size(); ++i) {
        if (src[i] == u'\t') {
            out += u' ';
        } else if (src[i] == u'\r' && i + 1 < src.size() && src[i + 1] == u'\n') {
            out += u' ';
            ++i;
        } else {
            out += src[i];
        }
    }
    return out;
}

std::u16string WithoutBlanks(std::u16string_view src) {
    std::u16string out;
    out.reserve(src.size());
    std::copy_if(src.begin(), src.end(), std::back_inserter(out), [](char16_t c) { return c != u' '; });
    return out;
}

// There is no implied multiplication: a non-delimiter right behind ")" is an error.
bool HasNameBehindBracket(std::u16string_view compact) {
    for (std::size_t i = 0; i + 1 < compact.size(); ++i) {
        if (compact[i] == u')' && !IsDelimiterChar(compact[i + 1])) return true;
    }
    return false;
}

constexpr std::u16string_view WordOperatorNames[] = {u"and", u"xor", u"eqv", u"mod", u"div", u"or", u"imp"};
constexpr std::u16string_view WordOperatorTexts[] = {u"&", u"%!", u"%~", u"%%", u"%\\", u"|", u"%>"};

std::u16string_view WordOperatorText(std::u16string_view word) {
    for (std::size_t i = 0; i < std::size(WordOperatorNames); ++i) {
        if (word == WordOperatorNames[i]) return WordOperatorTexts[i];
    }
    return {};
}

// The passes behind the custom expansion; false when one of them stops the build.
bool RewriteAndCheck(EngineState& state, std::u16string& src) {
    ScanExponents(state, src);
    src = ReplaceWordOperators(ReplacePercentSigns(src));
    if (ContainsText(u")(", WithoutBlanks(src))) {
        state.ReportError(SyntaxError);
        return false;
    }
    if (!RunTokenPass(state, src)) return false;
    src = BlankTabsAndLineEnds(src);
    if (CountChar(state, src, u'(') != CountChar(state, src, u')')) {
        state.ReportError(BracketsMismatch);
        return false;
    }
    if (HasNameBehindBracket(WithoutBlanks(src))) {
        state.ReportError(SyntaxError);
        return false;
    }
    src = InsertSignZeros(src);
    return true;
}

}  // namespace

std::u16string ReplacePercentSigns(std::u16string_view src) {
    std::u16string out;
    out.reserve(src.size());
    for (const char16_t c : src) {
        if (c == u'%') {
            out += u"*(0.01)";
        } else {
            out += c;
        }
    }
    return out;
}

// A replacement sends the scan back to the start; the words in front of it are
// no operators (or they would have been replaced) and end where they ended, so
// the scan goes on behind the replacement instead.
std::u16string ReplaceWordOperators(std::u16string_view src) {
    std::u16string out;
    out.reserve(src.size());
    std::size_t i = 0;
    while (i < src.size()) {
        if (!IsLetterChar(src[i])) {
            out += src[i++];
            continue;
        }
        std::size_t end = i;
        while (end < src.size() && IsLetterChar(src[end])) ++end;
        const std::u16string_view word = src.substr(i, end - i);
        const std::u16string_view replacement = WordOperatorText(word);
        out += replacement.empty() ? word : replacement;
        i = end;
    }
    return out;
}

std::u16string InsertSignZeros(std::u16string_view src) {
    std::u16string out;
    out.reserve(src.size() + 8);
    for (std::size_t i = 0; i < src.size(); ++i) {
        if ((src[i] == u'+' || src[i] == u'-') && (i == 0 || src[i - 1] == u'(')) out += u'0';
        out += src[i];
    }
    return out;
}

std::u16string BuildTokenStream(EngineState& state, std::u16string_view source) {
    std::u16string result;
    RunWithFailureHandler(state, [&] {
        std::u16string src = BlankTabsAndLineEnds(AsciiLower(source));
        src = ExpandCustomFunctionCalls(state, std::move(src));
        state.ExpansionScan = false;
        if (RewriteAndCheck(state, src)) result = std::move(src);
    });
    return result;
}

}  // namespace tessarondel
