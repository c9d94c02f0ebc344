#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <variant>

#include "cli/cli_app.h"
#include "cli/json.h"
#include "cli/json_protocol.h"

namespace tessarondel {
namespace {

json::Value Answer(JsonSession& session, const std::string& request) {
    RequestTable table;
    RegisterAllRequests(table);
    const auto response = json::Parse(HandleJsonLine(session, table, request));
    EXPECT_TRUE(response.has_value());
    return response.value_or(json::Value());
}

TEST(JsonBaseRequests, ToBaseAddsTheTextOrError11) {
    JsonSession session;
    const json::Value written = Answer(session, R"({"tobase":{"value":2.625,"base":2,"decimals":3}})");
    EXPECT_EQ(written.Find("text")->String(), "10.101");
    EXPECT_FALSE(written.Find("error")->Bool());
    const json::Value failed = Answer(session, R"({"tobase":{"value":1,"base":2,"decimals":-1}})");
    EXPECT_EQ(failed.Find("text")->String(), "");
    EXPECT_TRUE(failed.Find("error")->Bool());
    EXPECT_EQ(failed.Find("number")->Number(), 11);
}

TEST(JsonBaseRequests, ArgumentsOfTheWrongShapeAreProtocolErrors) {
    JsonSession session;
    for (const char* line :
         {R"({"tobase":{"value":1,"base":1,"decimals":0}})", R"({"tobase":{"value":1,"base":17,"decimals":0}})",
          R"({"tobase":{"value":1,"base":2,"decimals":5000}})", R"({"tobase":{"value":1,"base":2}})",
          R"({"show":{"index":1.5,"complement":false}})", R"({"show":{"index":1,"complement":0}})"}) {
        SCOPED_TRACE(line);
        EXPECT_NE(Answer(session, line).Find("protocol_error"), nullptr);
    }
}

TEST(JsonBaseRequests, ShowUsesTheLastEvaluation) {
    JsonSession session;
    Answer(session, R"({"eval":"0-1"})");
    const json::Value complement = Answer(session, R"({"show":{"index":3,"complement":true}})");
    EXPECT_EQ(complement.Find("text")->String(), "$HFFFFFFFF");
    EXPECT_TRUE(complement.Find("complement_box")->Bool());
    EXPECT_FALSE(Answer(session, R"({"show":{"index":1,"complement":true}})").Find("complement_box")->Bool());
    const json::Value noBase = Answer(session, R"({"show":{"index":7,"complement":false}})");
    EXPECT_TRUE(std::holds_alternative<std::nullptr_t>(noBase.Find("text")->data));
}

TEST(FunctionRequests, ATableWithoutSlotsAnswersNotOkWithNothingReported) {
    JsonSession session;
    for (const std::string request :
         {R"({"redefine": {"name": "j", "params": "", "body": "1", "description": ""}})", R"({"drop": "j"})"}) {
        SCOPED_TRACE(request);
        const json::Value response = Answer(session, request);
        EXPECT_FALSE(response.Find("ok")->Bool());
        EXPECT_FALSE(response.Find("error")->Bool());
        EXPECT_TRUE(response.Find("boxes")->AsArray().empty());
    }
}

TEST(FunctionRequests, BoxesShowDuringDefineButNotForADocument) {
    JsonSession session;
    const std::string body = R"("params": "", "body": "1", "description": "")";
    EXPECT_TRUE(Answer(session, R"({"define": {"name": "j", )" + body + "}}").Find("ok")->Bool());
    const json::Value again = Answer(session, R"({"define": {"name": "j", )" + body + "}}");
    EXPECT_EQ(again.Find("boxes")->AsArray().size(), 1u);
    const json::Value document = Answer(session, R"({"document": {"name": "j", )" + body + "}}");
    EXPECT_FALSE(document.Find("ok")->Bool());
    EXPECT_EQ(document.Find("number")->Number(), 9);
    EXPECT_TRUE(document.Find("boxes")->AsArray().empty());
    EXPECT_EQ(Answer(session, R"({"functions": true})").Find("names")->String(), "{j}");
}

// The documents of the folder are defined before the expressions; one that cannot be read is reported.
TEST(FunctionFolderOption, DefinesTheDocumentsBeforeTheExpressions) {
    std::string pattern = (std::filesystem::temp_directory_path() / "tessarondel-cli-XXXXXX").string();
    const std::filesystem::path folder = ::mkdtemp(pattern.data());
    std::ofstream(folder / "Twice.cfd", std::ios::binary)
        << "%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\nTwice\r\n[Parameter List]\r\nx\r\n"
           "[Expression List]\r\nx*2 ' doubled\r\n[Description]\r\n\r\n";
    const auto run = [&folder](const std::string& expression, std::string& errors) {
        std::istringstream in;
        std::ostringstream out, err;
        RunCli({"--functions", folder.string(), expression}, StreamLineReader(in), out, err);
        errors = err.str();
        return out.str();
    };
    std::string errors;
    EXPECT_EQ(run("twice(21)", errors), "42\n");
    EXPECT_EQ(errors, "");
    std::filesystem::create_symlink(folder / "missing", folder / "a.cfd");
    EXPECT_EQ(run("1+1", errors), "2\n");
    EXPECT_EQ(errors, "tessarondel-cli: Some errors occurred when Loading the Custom Function!\n");
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tessarondel
