#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "cli/json.h"
#include "cli/json_protocol.h"

namespace tessarondel {
namespace {

struct GoldenCase {
    std::string id;
    std::string why;
    json::Value steps;
    json::Value expect;
};

void PrintTo(const GoldenCase& golden, std::ostream* out) { *out << golden.id; }

std::vector<GoldenCase> LoadCases(const std::string& name) {
    std::ifstream file(TESSARONDEL_TEST_DATA "/" + name);
    std::vector<GoldenCase> cases;
    std::string line;
    while (std::getline(file, line)) {
        if (line.empty()) continue;
        const auto value = json::Parse(line);
        if (!value) continue;
        cases.push_back(
            {value->Find("id")->String(), value->Find("why")->String(), *value->Find("steps"), *value->Find("expect")});
    }
    return cases;
}

class GoldenCases : public testing::TestWithParam<GoldenCase> {};

void ExpectFields(const json::Value& expected, const json::Value& response) {
    for (const auto& [key, want] : expected.AsObject()) {
        SCOPED_TRACE(key);
        const json::Value* got = response.Find(key);
        ASSERT_NE(got, nullptr) << "the response has no " << key;
        if (key == "answer") {
            ASSERT_TRUE(got->IsNumber());
            EXPECT_EQ(got->Number(), want.Number());
        } else {
            EXPECT_TRUE(*got == want);
        }
    }
}

TEST_P(GoldenCases, ResponsesMatchTheTracedFields) {
    const GoldenCase& golden = GetParam();
    SCOPED_TRACE(golden.why);
    JsonSession session;
    RequestTable table;
    RegisterAllRequests(table);
    const auto& steps = golden.steps.AsArray();
    const auto& expects = golden.expect.AsArray();
    ASSERT_EQ(steps.size(), expects.size());
    for (std::size_t i = 0; i < steps.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "step " << i);
        const std::string line = HandleJsonLine(session, table, json::Write(steps[i]));
        const auto response = json::Parse(line);
        ASSERT_TRUE(response.has_value()) << line;
        SCOPED_TRACE(line);
        if (expects[i].IsObject()) ExpectFields(expects[i], *response);
    }
}

TEST(GoldenCaseFile, EveryLineIsACase) {
    std::ifstream file(TESSARONDEL_TEST_DATA "/golden/engine-cases.jsonl");
    std::size_t lines = 0;
    for (std::string line; std::getline(file, line);) lines += line.empty() ? 0 : 1;
    EXPECT_EQ(lines, 115u);
    EXPECT_EQ(LoadCases("golden/engine-cases.jsonl").size(), lines);
}

std::string CaseName(const testing::TestParamInfo<GoldenCase>& info) {
    std::string name = info.param.id;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(EngineCases, GoldenCases, testing::ValuesIn(LoadCases("golden/engine-cases.jsonl")), CaseName);
// The same form for the requests beside eval.
INSTANTIATE_TEST_SUITE_P(ProtocolRuns, GoldenCases, testing::ValuesIn(LoadCases("cli/protocol-runs.jsonl")), CaseName);

}  // namespace
}  // namespace tessarondel
