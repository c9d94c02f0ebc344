#include "customfunctions/cfd_document.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "customfunctions/windows1252.h"
#include "engine/text_codec.h"

namespace tessarondel {
namespace {

std::string Crlf(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (std::string_view line : lines) text.append(line).append("\r\n");
    return text;
}

const std::string Magic = "%%Tessarondel Custom Function Document - 1.0";

struct ParseRow {
    const char* name;
    std::string bytes;
    bool kept;
    // Expected fields in UTF-8; checked only when the document is kept.
    std::string functionName = {}, parameters = {}, expression = {}, description = {};
};

class ParseDocumentTest : public ::testing::TestWithParam<ParseRow> {};

TEST_P(ParseDocumentTest, ReadsTheSectionsAsWritten) {
    const ParseRow& row = GetParam();
    const auto document = ParseDocument(row.bytes);
    ASSERT_EQ(document.has_value(), row.kept);
    if (!row.kept) return;
    EXPECT_EQ(ToUtf8(document->Name), row.functionName);
    EXPECT_EQ(ToUtf8(document->ParameterText), row.parameters);
    EXPECT_EQ(ToUtf8(document->Expression), row.expression);
    EXPECT_EQ(ToUtf8(document->Description), row.description);
}

INSTANTIATE_TEST_SUITE_P(
    Sections, ParseDocumentTest,
    ::testing::Values(
        ParseRow{"TextBeforeMagicAndIndentedHeaders",
                 Crlf({"junk", "  " + Magic, "  [Function Name]", "k", " [Parameter List] ", "", "[Expression List]",
                       "3", "[Description]"}),
                 true, "k", "", "3\r\n", ""},
        ParseRow{"NameWithoutExpressionIsDropped", Crlf({Magic, "[Function Name]", "k"}), false},
        ParseRow{"EmptyNameSectionTakesNoHeader",
                 Crlf({Magic, "[Function Name]", "", "[Parameter List]", "[Expression List]", "1"}), false},
        ParseRow{"TabLedHeaderIsNoHeader",
                 Crlf({Magic, "[Function Name]", "k", "\t[Parameter List]", "x", "[Parameter List]", "y",
                       "[Expression List]", "y"}),
                 true, "k", "y", "y\r\n", ""},
        ParseRow{"LowerCaseDescriptionHeaderStaysInExpression",
                 Crlf({Magic, "[Function Name]", "k", "[Parameter List]", "", "[Expression List]", "1", "[description]",
                       "text"}),
                 true, "k", "", "1\r\n[description]\r\ntext\r\n", ""},
        ParseRow{
            "SecondParameterLineIsLost",
            Crlf({Magic, "[Function Name]", "k", "", "kk", "[Parameter List]", "", "a", "b", "[Expression List]", "a"}),
            true, "k", "a", "a\r\n", ""},
        ParseRow{"LineOfSpacesComesBackEmpty",
                 Crlf({Magic, "[Function Name]", "k", "[Parameter List]", "", "[Expression List]", "1", "    ", "2",
                       "[Description]", "  d  "}),
                 true, "k", "", "1\r\n\r\n2\r\n", "d\r\n"},
        ParseRow{"LoneLineFeedStaysInTheLine",
                 Magic + "\r\n[Function Name]\r\nk\r\n[Parameter List]\r\n[Expression List]\r\n1\n2\r\n", true, "k", "",
                 "1\n2\r\n", ""},
        ParseRow{"CarriageReturnAloneEndsALine",
                 Magic + "\r[Function Name]\rk\r[Parameter List]\r\r[Expression List]\r1\r[Description]\rd", true, "k",
                 "", "1\r\n", "d\r\n"},
        ParseRow{"ExpressionOutOfOrderIsSwallowedByTheName",
                 Crlf({Magic, "[Function Name]", "[Expression List]", "1", "[Parameter List]", "x", "[Description]"}),
                 false},
        ParseRow{"DescriptionHeaderInsideExpressionEndsIt",
                 Crlf({Magic, "[Function Name]", "k", "[Parameter List]", "", "[Expression List]", "1", "[Description]",
                       "[Description]", "2"}),
                 true, "k", "", "1\r\n", "[Description]\r\n2\r\n"},
        ParseRow{"Windows1252Bytes",
                 Crlf({Magic, "[Function Name]", "k", "[Parameter List]", "", "[Expression List]",
                       "1 ' \x93quoted\x94 \x80", "[Description]", "\x80"}),
                 true, "k", "", "1 ' \u201Cquoted\u201D \u20AC\r\n", "\u20AC\r\n"},
        ParseRow{"NoMagicIsDropped", Crlf({"[Function Name]", "k", "[Expression List]", "1"}), false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Windows1252, MapsThePunctuationRangeBothWaysAndTheRestToQuestionMarks) {
    const std::string bytes = "\x80\x93\x94\x81\xA0\xFF";
    const std::u16string text = u"\u20AC\u201C\u201D\u0081\u00A0\u00FF";
    EXPECT_EQ(DecodeWindows1252(bytes), text);
    EXPECT_EQ(EncodeWindows1252(text), bytes);
    EXPECT_EQ(EncodeWindows1252(u"a\u4E2D\u0100b"), "a??b");
}

TEST(FormatDocument, WritesTheTenItemsTrimmedWithCrLfInWindows1252) {
    const CustomFunctionDocument hyp{u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)", u"Length of the hypotenuse"};
    EXPECT_EQ(FormatDocument(hyp),
              Crlf({Magic, "[Function Name]", "Hyp", "[Parameter List]", "a, b", "[Expression List]",
                    "s=a^2+b^2 ' squares", "sqrt(s)", "[Description]", "Length of the hypotenuse"}));
    // No description still gets its one empty line.
    const CustomFunctionDocument k{u"  k ", u"", u" 1 ' \u201Cq\u201D ", u""};
    EXPECT_EQ(FormatDocument(k), Crlf({Magic, "[Function Name]", "k", "[Parameter List]", "", "[Expression List]",
                                       "1 ' \x93q\x94", "[Description]", ""}));
}

TEST(RoundTrip, EachCycleAddsOneEmptyLineToExpressionAndDescription) {
    CustomFunctionDocument document{u"Hyp", u"a, b", u"s=a^2+b^2\r\nsqrt(s)", u"Length"};
    for (int cycle = 1; cycle <= 3; ++cycle) {
        SCOPED_TRACE(cycle);
        document = ParseDocument(FormatDocument(document)).value();
        std::u16string endings;
        for (int k = 0; k < cycle; ++k) endings += u"\r\n";
        EXPECT_EQ(document.Expression, u"s=a^2+b^2\r\nsqrt(s)" + endings);
        EXPECT_EQ(document.Description, u"Length" + endings);
        EXPECT_EQ(document.Name, u"Hyp");
        EXPECT_EQ(document.ParameterText, u"a, b");
    }
}

}  // namespace
}  // namespace tessarondel
