#include "cli/cli_app.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "cli/completion_names.h"
#include "engine/engine.h"

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

constexpr const char* kInvalid = "Error: The parameters of the functions or operators are invalid!\n";

// One engine for all expressions, one line per result; the status tells whether any failed.
TEST(Cli, PrintsOneLinePerExpression) {
    const struct {
        const char* label;
        std::vector<std::string> args;
        std::string input;
        std::string out;
        int status;
    } rows[] = {
        {"Arguments",
         {"x=0.5", "x*3", "'note", "0-inf", "1e400*0+inf"},
         "",
         "0.5\n1.5\nTessarondel Note Line\n-Inf\nError: Overflow error!\n",
         CliSomeFailed},
        {"AllGood", {"2+3", "5 MOD 3"}, "", "5\n2\n", CliAllGood},
        {"ErrorsShowTheMessage",
         {"1/0", "", "foo(2)"},
         "",
         std::string(kInvalid) + "Error: The expression is empty!\nError: Syntax error in the expression!\n",
         CliSomeFailed},
        {"StandardInputLineByLine",
         {},
         "x=2\r\nx^10\n\n1+\n",
         "2\n1024\nError: The expression is empty!\nError: Syntax error in the expression!\n",
         CliSomeFailed},
        {"LeadingMinusIsAnExpression", {"-3+2"}, "", "-1\n", CliAllGood},
        {"DashDashEndsOptions", {"--", "--3"}, "", "3\n", CliAllGood},
        {"RoundSetsThePlaces", {"--round", "2", "1/3"}, "", "0.33\n", CliAllGood},
        {"RoundMinusOneIsOff", {"--round", "-1", "1/3"}, "", "0.333333333333333\n", CliAllGood},
        {"Version", {"--version"}, "", "1.2.6688 Build 1228\n", CliAllGood},
        {"BaseShowsResultsAsTheDisplayDoes",
         {"--base", "hex", "255", "0-255", "1/3"},
         "",
         "$HFF\n-$HFF\n$H0\n",
         CliAllGood},
        {"Complement", {"--base", "oct", "--complement", "0-255"}, "", "$O37777777401\n", CliAllGood},
        {"DecimalBaseIgnoresComplement", {"--base", "dec", "--complement", "0-255"}, "", "-255\n", CliAllGood},
        {"BaseErrorsStayErrors", {"--base", "hex", "1/0"}, "", kInvalid, CliSomeFailed},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label);
        const CliRun run = RunWith(row.args, row.input);
        EXPECT_EQ(run.out, row.out);
        EXPECT_EQ(run.status, row.status);
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

}  // namespace
}  // namespace tessarondel
