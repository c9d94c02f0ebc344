#include "engine/source_folding.h"

#include <algorithm>
#include <array>

namespace tessarondel {

namespace {

struct Fold {
    char16_t from;
    char16_t to;
};

// The 36 single replacements after the three ranges of letters and digits.
constexpr std::array<Fold, 36> SingleFolds = {{
    {0xFF5E, u'~'}, {0xFF01, u'!'}, {0xFF20, u'@'},  {0xFF03, u'#'},  {0xFF04, u'$'},  {0xFF05, u'%'},
    {0xFF3E, u'^'}, {0xFF06, u'&'}, {0xFF0A, u'*'},  {0xFF08, u'('},  {0xFF09, u')'},  {0xFF3F, u'_'},
    {0xFF0B, u'+'}, {0xFF5C, u'|'}, {0xFF0D, u'-'},  {0xFF1D, u'='},  {0xFF3C, u'\\'}, {0xFF1C, u'<'},
    {0xFF1E, u'>'}, {0xFF1F, u'?'}, {0xFF0C, u','},  {0x3002, u'.'},  {0xFF0E, u'.'},  {0xFF0F, u'/'},
    {0xFF1A, u':'}, {0xFF1B, u';'}, {0xFF07, u'\''}, {0x2019, u'\''}, {0x2018, u'\''}, {0x201C, u'"'},
    {0x201D, u'"'}, {0xFF5B, u'{'}, {0xFF5D, u'}'},  {0xFF3B, u'['},  {0xFF3D, u']'},  {0x3000, u' '},
}};

char16_t FoldChar(char16_t c) {
    if (c < 0x2018) return c;
    if (c >= 0xFF21 && c <= 0xFF3A) return static_cast<char16_t>(u'A' + (c - 0xFF21));
    if (c >= 0xFF41 && c <= 0xFF5A) return static_cast<char16_t>(u'a' + (c - 0xFF41));
    if (c >= 0xFF10 && c <= 0xFF19) return static_cast<char16_t>(u'0' + (c - 0xFF10));
    for (const Fold& fold : SingleFolds) {
        if (fold.from == c) return fold.to;
    }
    return c;
}

}  // namespace

// Every replacement maps one non-ASCII character to one ASCII character, and no
// target is the source of another, so one pass over the characters gives what
// the 98 whole-text replacements in their order give.
void FoldSource(std::u16string& text) {
    // Nearly every text is plain: only characters from U+2018 on fold.
    const auto first = std::find_if(text.begin(), text.end(), [](char16_t c) { return c >= 0x2018; });
    for (auto c = first; c != text.end(); ++c) *c = FoldChar(*c);
}

}  // namespace tessarondel
