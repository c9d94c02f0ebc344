#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "numbers/ascii_text.h"
#include "numbers/base_conversion.h"

namespace tessarondel {
namespace {

using testing_text::Narrow;
using testing_text::U16;

struct RecordingSink final : ErrorSink {
    std::vector<int> reported;
    void ReportError(int number) override { reported.push_back(number); }
};

struct LiteralRow {
    const char* token;
    const char* decimal;
    std::vector<int> errors;
};

TEST(BaseLiteralToDecimal, ConvertsLiteralsToFifteenDigitText) {
    const LiteralRow rows[] = {
        {"123", "123", {}},   {"$hff", "255", {}},  {"$HFF", "255", {}},
        {"$b101", "5", {}},   {"$o17", "15", {}},   {"$b1.1", "1.5", {}},
        {"$h.8", ".5", {}},   {"$h1e5", "485", {}}, {"$hffffffffffffffff", "1.84467440737096E+19", {}},
        {"$h 1f ", "31", {}}, {"$b2", "0", {0}},    {"$b102", "4", {0}},
        {"$hg", "0", {0}},    {"$h", "", {0}},      {"$x12", "", {0}},
        {"1$h5", "", {0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.token);
        RecordingSink sink;
        EXPECT_EQ(Narrow(BaseLiteralToDecimal(U16(row.token), sink)), row.decimal);
        EXPECT_EQ(sink.reported, row.errors);
    }
}

TEST(BaseTextToDecimal, HonoursASignForDirectCalls) {
    RecordingSink sink;
    EXPECT_EQ(Narrow(BaseTextToDecimal(u"-ff", 16, sink)), "-255");
    EXPECT_EQ(Narrow(BaseTextToDecimal(u"-0", 16, sink)), "0");
    EXPECT_EQ(Narrow(BaseTextToDecimal(u"-", 16, sink)), "0");
    EXPECT_EQ(sink.reported, std::vector<int>{0});
}

TEST(BaseTextToDecimal, OverflowIsAConvertingError) {
    RecordingSink sink;
    EXPECT_EQ(BaseTextToDecimal(std::u16string(1025, u'1'), 2, sink), u"");
    EXPECT_EQ(sink.reported, std::vector<int>{11});
    RecordingSink full;
    EXPECT_EQ(Narrow(BaseTextToDecimal(std::u16string(1024, u'0'), 2, full)), "0");
    EXPECT_TRUE(full.reported.empty());
}

}  // namespace
}  // namespace tessarondel
