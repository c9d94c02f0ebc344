#include "numbers/comma_texts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "numbers/number_text.h"
#include "numbers/run_failure.h"

namespace tessarondel {
namespace {

TEST(CommaTexts, ValuesReadAsTheirFifteenDigitTexts) {
    const std::vector<double> values = {1.0 / 3, -2.5, 1e15, 0.0, -0.0};
    CommaTexts list;
    list.AssignValues(values);
    EXPECT_EQ(list.UpperBound(), 4);
    EXPECT_EQ(list.Items(), (std::vector<std::u16string>{u".333333333333333", u"-2.5", u"1E+15", u"0", u"0"}));
    EXPECT_EQ(list[1], u"-2.5");
}

// That a list's value reads what its text reads is drawn in number_text_reference_test.cpp.
TEST(CommaTexts, ValueFailsBeyondTheListAndOverflowsWhereTheTextDoes) {
    CommaTexts list;
    list.AssignValues(std::vector<double>{1.5});
    EXPECT_THROW(list.Value(1), RunFailure);
    list.AssignValues(std::vector<double>{1.7976931348623157e308});  // its text lies beyond the range
    EXPECT_THROW(list.Value(0), OverflowFailure);
    EXPECT_THROW(TextToNumber(list[0]), OverflowFailure);
}

TEST(CommaTexts, ANewListReplacesTheOldOne) {
    CommaTexts list({u"7", u"8", u"9"});
    const std::vector<double> values = {4.0};
    list.AssignValues(values);
    EXPECT_EQ(list.UpperBound(), 0);
    EXPECT_EQ(list.Items(), std::vector<std::u16string>{u"4"});
}

TEST(CommaTexts, BoundAndIndexFailures) {
    const CommaTexts neverSlotted;
    EXPECT_FALSE(neverSlotted.HasSlots());
    EXPECT_THROW(neverSlotted.UpperBound(), RunFailure);
    EXPECT_THROW(neverSlotted[0], RunFailure);
    const CommaTexts list({u"1"});
    EXPECT_EQ(list.UpperBound(), 0);
    EXPECT_THROW(list[1], RunFailure);
    EXPECT_THROW(list[-1], RunFailure);
}

}  // namespace
}  // namespace tessarondel
