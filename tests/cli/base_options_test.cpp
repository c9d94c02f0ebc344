#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "cli/cli_app.h"
#include "cli/json.h"
#include "cli/json_protocol.h"

namespace tessarondel {
namespace {

std::string RunWithArguments(const std::vector<std::string>& args, int expectedStatus = CliAllGood) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(RunCli(args, StreamLineReader(in), out, err), expectedStatus) << err.str();
    return out.str();
}

TEST(CliBaseOption, ShowsEveryResultAsTheDisplayDoes) {
    EXPECT_EQ(RunWithArguments({"--base", "hex", "255", "0-255", "1/3"}), "$HFF\n-$HFF\n$H0\n");
    EXPECT_EQ(RunWithArguments({"--base", "oct", "--complement", "0-255"}), "$O37777777401\n");
    EXPECT_EQ(RunWithArguments({"--base", "bin", "--complement", "5"}), "$B101\n");
    EXPECT_EQ(RunWithArguments({"--base", "dec", "--complement", "0-255", "1/3"}), "-255\n0.333333333333333\n");
}

TEST(CliBaseOption, ErrorsStayErrors) {
    EXPECT_EQ(RunWithArguments({"--base", "hex", "1/0"}, CliSomeFailed),
              "Error: The parameters of the functions or operators are invalid!\n");
}

TEST(CliBaseOption, UnknownBaseIsBadUsage) {
    RunWithArguments({"--base", "hexadecimal", "1"}, CliBadUsage);
    RunWithArguments({"--base"}, CliBadUsage);
}

std::string Answer(JsonSession& session, const std::string& line) {
    RequestTable table;
    RegisterAllRequests(table);
    return HandleJsonLine(session, table, line);
}

TEST(JsonBaseRequests, ToBaseAddsTheText) {
    JsonSession session;
    const auto response = json::Parse(Answer(session, R"({"tobase":{"value":2.625,"base":2,"decimals":3}})"));
    ASSERT_TRUE(response.has_value());
    EXPECT_EQ(response->Find("text")->String(), "10.101");
    EXPECT_FALSE(response->Find("error")->Bool());
}

TEST(JsonBaseRequests, ToBaseFailureReportsError11) {
    JsonSession session;
    const auto response = json::Parse(Answer(session, R"({"tobase":{"value":1,"base":2,"decimals":-1}})"));
    ASSERT_TRUE(response.has_value());
    EXPECT_EQ(response->Find("text")->String(), "");
    EXPECT_TRUE(response->Find("error")->Bool());
    EXPECT_EQ(response->Find("number")->Number(), 11);
}

TEST(JsonBaseRequests, ArgumentsOfTheWrongShapeAreProtocolErrors) {
    JsonSession session;
    for (const char* line :
         {R"({"tobase":{"value":1,"base":1,"decimals":0}})", R"({"tobase":{"value":1,"base":17,"decimals":0}})",
          R"({"tobase":{"value":1,"base":2,"decimals":5000}})", R"({"tobase":{"value":1,"base":2}})",
          R"({"show":{"index":1.5,"complement":false}})", R"({"show":{"index":1,"complement":0}})"}) {
        SCOPED_TRACE(line);
        const auto response = json::Parse(Answer(session, line));
        ASSERT_TRUE(response.has_value());
        EXPECT_NE(response->Find("protocol_error"), nullptr);
    }
}

TEST(JsonBaseRequests, ShowUsesTheLastEvaluation) {
    JsonSession session;
    Answer(session, R"({"eval":"0-1"})");
    const auto complement = json::Parse(Answer(session, R"({"show":{"index":3,"complement":true}})"));
    ASSERT_TRUE(complement.has_value());
    EXPECT_EQ(complement->Find("text")->String(), "$HFFFFFFFF");
    EXPECT_TRUE(complement->Find("complement_box")->Bool());
    const auto decimal = json::Parse(Answer(session, R"({"show":{"index":1,"complement":true}})"));
    ASSERT_TRUE(decimal.has_value());
    EXPECT_EQ(decimal->Find("text")->String(), "-1");
    EXPECT_FALSE(decimal->Find("complement_box")->Bool());
    const auto noBase = json::Parse(Answer(session, R"({"show":{"index":7,"complement":false}})"));
    ASSERT_TRUE(noBase.has_value());
    EXPECT_TRUE(std::holds_alternative<std::nullptr_t>(noBase->Find("text")->data));
}

}  // namespace
}  // namespace tessarondel
