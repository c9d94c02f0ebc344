// The kept session: its text reads back what was written, and a restored
// window goes on where the last run stopped.
#include "shell/session_history.h"

#include "numbers/text_rules.h"
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

using namespace std::string_literals;

TEST(SessionHistoryText, ReadsBackEveryTextAndExactValues) {
    const SessionHistory history{7,
                                 {{u"a=6*7", u"42"}, {u"x\t\\y\r\n'\u00fc\0z"s, u"Error:Syntax error"}},
                                 3,
                                 {u"42", u"Error#4"},
                                 {u" a=6*7 ", u"\\"},
                                 {{u"a", 0.1 + 0.2, u".3"}, {u"b_2", -1e-300, u"-1E-300"}},
                                 SavedAnswer{1.0 / 3, u"0.333333333333333"}};
    EXPECT_EQ(ParseSessionHistory(FormatSessionHistory(history)), history);
}

TEST(SessionHistoryText, KeepsTheNewestThousandRowsAndInputs) {
    SessionHistory history;
    for (int i = 1; i <= 1001; ++i) {
        history.Rows.push_back({AsciiToU16(std::to_string(i)), u"1"});
        history.Inputs.push_back(AsciiToU16(std::to_string(i)));
    }
    history.ExpressionRowCount = 1001;
    const auto read = ParseSessionHistory(FormatSessionHistory(history));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->ExpressionRowCount, 1001);
    ASSERT_EQ(read->Rows.size(), 1000u);
    EXPECT_EQ(U8(read->Rows.front().Expression), "2");
    ASSERT_EQ(read->Inputs.size(), 1000u);
    EXPECT_EQ(U8(read->Inputs.front()), "2");
}

using RestoredSession = MainWindowTest;

TEST_F(RestoredSession, GoesOnWhereTheLastRunStoppedWithoutEvaluating) {
    Enter(u"a=6*7");
    Enter(u"a+1");
    const auto saved = ParseSessionHistory(FormatSessionHistory(main.SaveHistory()));
    ASSERT_TRUE(saved);
    EngineState nextEngine;
    MainWindowModel next{nextEngine, ShellPlatform{box, clipboard, saveDialog, opener}, ShellEnvironment{}};
    next.Load(FormInfoTexts{}, ScreenSize{19200, 14400});
    next.RestoreHistory(*saved);
    ASSERT_EQ(next.Expressions().Rows().size(), 2u);
    EXPECT_EQ(U8(next.Expressions().Rows()[1].Record.Result), "43");
    ASSERT_EQ(next.Variables().Rows().size(), 1u);
    EXPECT_EQ(U8(next.Variables().Rows()[0].Value), "42");
    EXPECT_EQ(next.LastValue(), 43.0);
    EXPECT_EQ(U8(next.Display().Text()), "43");
    next.PressUp();
    EXPECT_EQ(U8(next.Input().Text()), "a+1");
    next.EditInput(u"a*2", 3, 0);
    next.PressEnter();
    EXPECT_EQ(U8(next.Expressions().Rows().back().Id), "3");
    EXPECT_EQ(U8(next.Display().Text()), "84");
    EXPECT_EQ(U8(next.Results().Items().back().Caption), "(3)\t84");
}

}  // namespace
}  // namespace tessarondel::testing
