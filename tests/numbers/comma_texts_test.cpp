#include "numbers/comma_texts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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
