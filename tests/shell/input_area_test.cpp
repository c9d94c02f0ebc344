// The keypad and the Quick Reference it writes.
#include <map>

#include "shell/token_explanations.h"
#include "shell_fakes.h"
#include "table_file.h"

namespace tessarondel::testing {
namespace {

using InputAreaSession = MainWindowTest;

TEST_F(InputAreaSession, KeypadButtonsInsertTheirTextAndExplainIt) {
    const std::map<std::string, KeypadGroup> groups = {
        {"Number", KeypadGroup::Number}, {"Operator", KeypadGroup::Operator}, {"Constant", KeypadGroup::Constant}};
    for (const testing_table::Row& row : testing_table::ReadTable("shell/keypad.tsv")) {
        SCOPED_TRACE(row[0]);
        main.ClickClearInput();
        changes.clear();
        main.ClickKeypad(groups.at(row[1]), row.Int(2));
        EXPECT_EQ(InputText(), row[3]);
        const std::size_t first = row[3].find_first_not_of(' '), last = row[3].find_last_not_of(' ');
        EXPECT_EQ(QuickReference(), "Insert Object:" + row[3].substr(first, last - first + 1) + "\r\n" + row[4]);
        EXPECT_TRUE(Announced(MainWindowChange::FocusInputArea));
    }
}

TEST(TokenExplanations, LookupIsExactAndCaseSensitive) {
    EXPECT_EQ(U8(TokenExplanation(u"e")), "Scientific notation character.");
    EXPECT_EQ(U8(TokenExplanation(u"E")), "System Constants.");
    EXPECT_TRUE(TokenExplanation(u"pi").empty());
    EXPECT_TRUE(TokenExplanation(u"DIV").empty());
}

}  // namespace
}  // namespace tessarondel::testing
