#include "numbers/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

#include "numbers/builtin_call.h"
#include "numbers/run_failure.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing_text::Narrow;
using testing_text::U16;

class NumberTextFormat : public testing::TestWithParam<testing_table::Row> {};

TEST_P(NumberTextFormat, MatchesBothForms) {
    const double value = testing_builtins::ValueOf(GetParam()[1]);
    EXPECT_EQ(Narrow(NumberText(value)), GetParam()[2]);
    EXPECT_EQ(Narrow(DisplayNumberText(value)), GetParam()[3]);
}

INSTANTIATE_TEST_SUITE_P(Rows, NumberTextFormat,
                         testing::ValuesIn(testing_table::ReadTable("numbers/number-texts.tsv")),
                         testing_table::RowName);

TEST(NumberTextFormat, IgnoresCommaDecimalLocale) {
    const char* previous = std::setlocale(LC_ALL, nullptr);
    const std::string saved = previous ? previous : "C";
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) GTEST_SKIP() << "de_DE.UTF-8 locale not installed";
    EXPECT_EQ(Narrow(DisplayNumberText(-1234.5)), "-1234.5");
    EXPECT_EQ(TextToNumber(u"2.5"), 2.5);
    std::setlocale(LC_ALL, saved.c_str());
}

TEST(NumberReading, IsNumericTextTextToNumberAndLeadingNumber) {
    for (const testing_table::Row& row : testing_table::ReadTable("numbers/number-reading.tsv")) {
        SCOPED_TRACE('"' + row[0] + '"');
        const std::u16string text = U16(row[0]);
        if (row[1] != "-") {
            EXPECT_EQ(IsNumericText(text), row[1] == "yes");
        }
        using testing_builtins::Expected;
        using testing_builtins::Outcome;
        if (row[2] != "-") {
            EXPECT_EQ(Outcome([&] { return TextToNumber(text); }), Expected(row[2]));
        }
        if (row[3] != "-") {
            EXPECT_EQ(Outcome([&] { return LeadingNumber(text); }), Expected(row[3]));
        }
    }
}

}  // namespace
}  // namespace tessarondel
