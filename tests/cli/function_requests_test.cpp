#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

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

class FunctionFolderOption : public ::testing::Test {
protected:
    FunctionFolderOption() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tessarondel-cli-XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
    }
    ~FunctionFolderOption() override { std::filesystem::remove_all(folder_); }

    std::string Run(const std::vector<std::string>& args, std::string& errors) {
        std::istringstream in;
        std::ostringstream out, err;
        RunCli(args, StreamLineReader(in), out, err);
        errors = err.str();
        return out.str();
    }

    std::filesystem::path folder_;
};

TEST_F(FunctionFolderOption, DefinesTheDocumentsBeforeTheExpressions) {
    std::ofstream(folder_ / "Twice.cfd", std::ios::binary)
        << "%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\nTwice\r\n[Parameter List]\r\nx\r\n"
           "[Expression List]\r\nx*2 ' doubled\r\n[Description]\r\n\r\n";
    std::string errors;
    EXPECT_EQ(Run({"--functions", folder_.string(), "twice(21)"}, errors), "42\n");
    EXPECT_EQ(errors, "");
}

TEST_F(FunctionFolderOption, AnUnreadableDocumentIsReported) {
    std::filesystem::create_symlink(folder_ / "missing", folder_ / "a.cfd");
    std::string errors;
    EXPECT_EQ(Run({"--functions", folder_.string(), "1+1"}, errors), "2\n");
    EXPECT_EQ(errors, "tessarondel-cli: Some errors occurred when Loading the Custom Function!\n");
}

}  // namespace
}  // namespace tessarondel
