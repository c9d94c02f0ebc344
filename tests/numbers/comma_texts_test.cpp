#include "numbers/comma_texts.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
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

// Value skips the text of a list of values; it must read what the text reads.
TEST(CommaTexts, ValueReadsWhatTheTextReads) {
    const std::vector<double> values = {1.0 / 3, -2.5, 1e15, -0.0, 0.1 + 0.2, 123456789012345678.0, 5e-324,
                                        -1.7976931348623e308, 2.5e-7, 999999999999999.9};
    CommaTexts list;
    list.AssignValues(values);
    for (long i = 0; i <= list.UpperBound(); ++i) {
        SCOPED_TRACE(i);
        const double read = TextToNumber(list[i]);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(list.Value(i)), std::bit_cast<std::uint64_t>(read));
    }
    EXPECT_THROW(list.Value(static_cast<long>(values.size())), RunFailure);
    const std::vector<double> largest = {1.7976931348623157e308};  // its text lies beyond the range
    list.AssignValues(largest);
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
