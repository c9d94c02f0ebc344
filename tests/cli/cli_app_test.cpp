#include "cli/cli_app.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "cli/completion_names.h"
#include "cli/json_protocol.h"
#include "customfunctions/temporary_folder.h"
#include "engine/engine.h"
#include "table_file.h"

namespace tessarondel {
namespace {

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

CliRun RunWith(const std::vector<std::string>& args, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    CliRun run;
    run.status = RunCli(args, StreamLineReader(in), out, err);
    run.out = out.str();
    run.err = err.str();
    return run;
}

TEST(Cli, PrintsOneLinePerExpression) {
    for (const testing_table::Row& row : testing_table::ReadTable("cli/runs.tsv")) {
        SCOPED_TRACE(row[0]);
        const CliRun run = RunWith(testing_table::Split(row[1]), row[2]);
        EXPECT_EQ(run.out, row[3]);
        EXPECT_EQ(run.status, row.Int(4));
    }
}

TEST(Cli, HelpAndBadUsage) {
    const CliRun help = RunWith({"--help"});
    EXPECT_EQ(help.status, CliAllGood);
    EXPECT_NE(help.out.find("Usage: tessarondel-cli"), std::string::npos);
    const std::vector<std::vector<std::string>> badUsages = {
        {"--frobnicate"},        {"--round"}, {"--round", "x", "1"},
        {"--round", "2.5", "1"}, {"--base"},  {"--base", "hexadecimal", "1"},
        {"--json", "1+1"}};
    for (const auto& args : badUsages) {
        SCOPED_TRACE(args[0]);
        const CliRun run = RunWith(args);
        EXPECT_EQ(run.status, CliBadUsage);
        EXPECT_TRUE(run.out.empty());
        EXPECT_NE(run.err.find("Usage:"), std::string::npos);
    }
}

TEST(CliJson, AnswersEveryRequestOnItsOwnLine) {
    const CliRun run = RunWith({"--json"},
                               "{\"eval\": \"x=1/0\"}\n"
                               "\n"
                               "{\"eval\": \"0-0\"}\n"
                               "[1]\n"
                               "{\"nonsense\": 1}\n"
                               "{\"eval\": 5}\n"
                               "{\"round\": 2}\n"
                               "{\"eval\": \"1/3\"}\n"
                               "{\"clear\": true}\n"
                               "{\"eval\": \"0*(0-1)\"}\n"
                               "{\"define\": {\"name\": \"f\"}}\n");
    EXPECT_EQ(run.status, CliAllGood);
    std::istringstream lines(run.out);
    std::vector<std::string> responses;
    for (std::string line; std::getline(lines, line);) responses.push_back(line);
    ASSERT_EQ(responses.size(), 10u);
    EXPECT_EQ(responses[0],
              R"({"error": true, "number": 5, "message": "The parameters of the functions or operators are invalid!", )"
              R"("boxes": [], "result": "Error", "answer": 0, "vars": [["x", "1"]]})");
    EXPECT_EQ(
        responses[1],
        R"({"error": false, "number": 5, "message": "The parameters of the functions or operators are invalid!", )"
        R"("boxes": [], "result": "0", "answer": 0, "vars": [["x", "1"]]})");
    EXPECT_EQ(responses[2].rfind(R"({"protocol_error": )", 0), 0u);
    EXPECT_EQ(responses[3], R"({"protocol_error": "unknown request: nonsense"})");
    EXPECT_EQ(responses[4], R"({"protocol_error": "eval must be a string"})");
    EXPECT_NE(responses[6].find(R"("result": "0.33", "answer": 0.33)"), std::string::npos);
    EXPECT_NE(responses[8].find(R"("vars": [])"), std::string::npos);
    EXPECT_EQ(responses[9], R"({"protocol_error": "missing member: params"})");
}

TEST(Cli, TellsTheReaderWhetherATerminalKeepsItsHistory) {
    for (const bool keep : {true, false}) {
        std::ostringstream out;
        bool told = !keep;
        RunCli(
            keep ? std::vector<std::string>{} : std::vector<std::string>{"--no-history"},
            [&told](const EngineState&, bool keepHistory) {
                told = keepHistory;
                return LineReader([](std::string&) { return false; });
            },
            out, out);
        EXPECT_EQ(told, keep);
    }
}

// Names complete in any case; variables and custom functions come from the session.
TEST(CompletionNames, OfferBuiltinsAliasesConstantsVariablesAndCustomFunctions) {
    EngineState engine;
    EvaluateText(engine, u"sqx=1");
    engine.CustomFunctionNames = u"{sqarea}";
    EXPECT_EQ(CompletionNames(engine, "SQ"), (std::vector<std::string>{"sqarea", "sqr", "sqrt", "sqx"}));
    EXPECT_EQ(CompletionNames(engine, "p"), (std::vector<std::string>{"perm", "permutation", "pi", "prod", "product"}));
}

TEST(JsonBaseRequests, ArgumentsOfTheWrongShapeAreProtocolErrors) {
    JsonSession session;
    RequestTable table;
    RegisterAllRequests(table);
    for (const char* line :
         {R"({"tobase":{"value":1,"base":1,"decimals":0}})", R"({"tobase":{"value":1,"base":17,"decimals":0}})",
          R"({"tobase":{"value":1,"base":2,"decimals":5000}})", R"({"tobase":{"value":1,"base":2}})",
          R"({"show":{"index":1.5,"complement":false}})", R"({"show":{"index":1,"complement":0}})"}) {
        EXPECT_EQ(HandleJsonLine(session, table, line).rfind(R"({"protocol_error": )", 0), 0u) << line;
    }
}

// The documents of the folder are defined before the expressions; one that cannot be read is reported.
TEST(Cli, TheFunctionFolderIsDefinedBeforeTheExpressions) {
    const testing::TemporaryFolder folder;
    folder.Write("Twice.cfd", testing::DocumentBytes("Twice", "x", "x*2 ' doubled"));
    const CliRun good = RunWith({"--functions", folder.Path().string(), "twice(21)"});
    EXPECT_EQ(good.out, "42\n");
    EXPECT_EQ(good.err, "");
    std::filesystem::create_symlink(folder.Path() / "missing", folder.Path() / "a.cfd");
    const CliRun failed = RunWith({"--functions", folder.Path().string(), "1+1"});
    EXPECT_EQ(failed.out, "2\n");
    EXPECT_EQ(failed.err, "tessarondel-cli: Some errors occurred when Loading the Custom Function!\n");
}

}  // namespace
}  // namespace tessarondel
