#include "cli/json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace tessarondel {
namespace {

TEST(JsonNumbers, ShortestRoundTripTexts) {
    const struct {
        double x;
        const char* text;
    } rows[] = {{0.0, "0"},
                {-0.0, "-0.0"},
                {0.1, "0.1"},
                {9.900000000000001e-14, "9.900000000000001e-14"},
                {1.79769313486231e308, "1.79769313486231e+308"}};
    for (const auto& row : rows) {
        EXPECT_EQ(json::NumberText(row.x), row.text);
        const auto back = json::Parse(json::NumberText(row.x));
        ASSERT_TRUE(back.has_value());
        EXPECT_EQ(back->Number(), row.x);
    }
    EXPECT_TRUE(std::signbit(json::Parse("-0.0")->Number()));
}

TEST(JsonStrings, EscapeAndUnescape) {
    const std::string text = "a\"b\\c\r\n\t\x01\xE2\x80\x99";
    EXPECT_EQ(json::QuoteString(text), "\"a\\\"b\\\\c\\r\\n\\t\\u0001\xE2\x80\x99\"");
    EXPECT_EQ(json::Parse(json::QuoteString(text))->String(), text);
    EXPECT_EQ(json::Parse(R"("\u00e9\ud83d\ude00\/")")->String(), "\xC3\xA9\xF0\x9F\x98\x80/");
}

TEST(JsonDocuments, ParseObjectsArraysAndLiterals) {
    const auto value = json::Parse(R"( {"a": [1, true, null, {"b": "c"}], "d": false} )");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(json::Write(*value), R"({"a":[1,true,null,{"b":"c"}],"d":false})");
    EXPECT_EQ(value->Find("d")->Bool(), false);
    EXPECT_EQ(value->Find("missing"), nullptr);
}

TEST(JsonDocuments, RejectMalformedText) {
    for (const char* text :
         {"", "{", "{\"a\" 1}", "[1,]", "{\"a\":1,}", "tru", "\"open", "1 2", "{'a':1}", "\"\x01\"", "01x",
          "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[]]]]]]]]]]]]"}) {
        EXPECT_FALSE(json::Parse(text).has_value()) << text;
    }
}

}  // namespace
}  // namespace tessarondel
