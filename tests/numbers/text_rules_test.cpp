#include "numbers/text_rules.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace tessarondel {
namespace {

// FindChar reads four characters at a time; it must find what the plain search finds,
// at every offset, in texts whose characters differ from the sought one in one bit
// or in the high byte only, where a word-wise test could go wrong.
TEST(FindChar, FindsWhatThePlainSearchFinds) {
    const char16_t sought[] = {u'(', u')', u'e', u'\'', u'\0', 0x8000, 0xFFFF, 0x0101};
    std::mt19937 random(5);
    for (const char16_t c : sought) {
        const char16_t neighbours[] = {static_cast<char16_t>(c ^ 1), static_cast<char16_t>(c ^ 0x8000),
                                       static_cast<char16_t>(c ^ 0x0100), static_cast<char16_t>(c + 1), u' ', c};
        for (int round = 0; round < 400; ++round) {
            std::u16string text(static_cast<std::size_t>(round % 23), u' ');
            for (char16_t& t : text) t = neighbours[random() % std::size(neighbours)];
            const std::u16string_view view = text;
            for (std::size_t from = 0; from <= text.size() + 1; ++from) {
                ASSERT_EQ(FindChar(view, c, from), view.find(c, from)) << "round " << round << " from " << from;
            }
        }
    }
}

}  // namespace
}  // namespace tessarondel
