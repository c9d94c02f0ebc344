#include "engine/text_codec.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarondel {
namespace {

struct CodecRow {
    const char* name;
    std::string utf8;
    std::u16string utf16;
};

// The ASCII front is widened eight bytes at a time, so the rows put the first
// other byte before, at and behind the eighth and sixteenth.
TEST(TextCodec, DecodesUtf8WithOneReplacementPerBadByte) {
    const std::string ascii = "x=2*(3+sin(pi/2))%";
    const std::u16string ascii16 = u"x=2*(3+sin(pi/2))%";
    const CodecRow rows[] = {
        {"empty", "", u""},
        {"ascii", ascii, ascii16},
        {"two-byte first", "\xC3\xA9" + ascii, u"\u00E9" + ascii16},
        {"two-byte at 7", ascii.substr(0, 7) + "\xC3\xA9" + ascii.substr(7), ascii16.substr(0, 7) + u"\u00E9" + ascii16.substr(7)},
        {"three-byte at 8", ascii.substr(0, 8) + "\xEF\xBC\x90", ascii16.substr(0, 8) + u"\uFF10"},
        {"four-byte at 16", ascii.substr(0, 16) + "\xF0\x9F\x98\x80" + "1", ascii16.substr(0, 16) + u"\U0001F600" u"1"},
        {"lone continuation", "12345678\x80", u"12345678\uFFFD"},
        {"cut sequence", "1\xE2\x82", u"1\uFFFD\uFFFD"},
        {"overlong", "\xC0\xAF", u"\uFFFD\uFFFD"},
        {"surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
    };
    std::u16string reused = u"left over from the last line";
    for (const CodecRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ToUtf16(row.utf8), row.utf16);
        AssignUtf16(reused, row.utf8);
        EXPECT_EQ(reused, row.utf16);
    }
}

TEST(TextCodec, EncodesUtf16WithLoneSurrogatesReplaced) {
    EXPECT_EQ(ToUtf8(u"x=2*(3+sin(pi/2))%"), "x=2*(3+sin(pi/2))%");
    EXPECT_EQ(ToUtf8(u"\u00E9\uFF10\U0001F600"), "\xC3\xA9\xEF\xBC\x90\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8(u"a\xD800" u"b"), "a\xEF\xBF\xBD" "b");
    std::string out = "Error: ";
    AppendUtf8(out, u"Syntax \u00E9");
    EXPECT_EQ(out, "Error: Syntax \xC3\xA9");
}

}  // namespace
}  // namespace tessarondel
