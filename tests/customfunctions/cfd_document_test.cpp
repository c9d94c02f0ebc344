#include "customfunctions/cfd_document.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "customfunctions/windows1252.h"
#include "engine/text_codec.h"
#include "table_file.h"

namespace tessarondel {
namespace {

std::string Crlf(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (std::string_view line : lines) text.append(line).append("\r\n");
    return text;
}

const std::string Magic = "%%Tessarondel Custom Function Document - 1.0";

class ParseDocumentTest : public ::testing::TestWithParam<testing_table::Row> {};

// Rows: name, bytes, whether the document is kept, then its four texts in UTF-8.
TEST_P(ParseDocumentTest, ReadsTheSectionsAsWritten) {
    const testing_table::Row& row = GetParam();
    const auto document = ParseDocument(row[1]);
    ASSERT_EQ(document.has_value(), row[2] == "yes");
    if (!document) return;
    EXPECT_EQ(ToUtf8(document->Name), row[3]);
    EXPECT_EQ(ToUtf8(document->ParameterText), row[4]);
    EXPECT_EQ(ToUtf8(document->Expression), row[5]);
    EXPECT_EQ(ToUtf8(document->Description), row[6]);
}

INSTANTIATE_TEST_SUITE_P(Rows, ParseDocumentTest,
                         ::testing::ValuesIn(testing_table::ReadTable("customfunctions/documents.tsv")),
                         testing_table::RowName);

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
