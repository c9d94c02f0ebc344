#include "cli/cli_app.h"

#include <charconv>
#include <istream>
#include <optional>
#include <ostream>
#include <utility>

#include "cli/json_protocol.h"
#include "customfunctions/cfd_document.h"
#include "engine/engine.h"
#include "engine/text_codec.h"
#include "numbers/base_display.h"

namespace tessarondel {

namespace {

constexpr const char* VersionText = "1.2.6688 Build 1228";

constexpr const char* UsageText =
    "Usage: tessarondel-cli [--round N] [--base bin|oct|dec|hex] [--complement] [--functions DIR] [--no-history]\n"
    "                       [EXPR...]\n"
    "       tessarondel-cli [--functions DIR] --json\n"
    "\n"
    "Evaluates each EXPR in order in one engine and prints one result per line.\n"
    "Without EXPR, reads one expression per line from standard input. On a terminal\n"
    "it prompts with line editing, Tab completes names, and Up and Down recall the\n"
    "lines of this and earlier sessions ($XDG_STATE_HOME/Tessarondel/cli_history).\n"
    "\n"
    "  --round N   round every intermediate result to N places (0 to 22; -1 is off)\n"
    "  --base B    show every result as the display shows it in base B: bin, oct, dec or hex\n"
    "  --complement  show negative results in 32-bit complement form in bin, oct and hex\n"
    "  --functions DIR  define the custom functions of the .cfd documents in DIR first\n"
    "                   (default: the folder the desktop program uses)\n"
    "  --no-history  keep no line history on a terminal\n"
    "  --json      answer JSON Lines requests from standard input\n"
    "  --help      show this help\n"
    "  --version   show the version\n"
    "  --          treat all further arguments as expressions\n"
    "\n"
    "Exit status: 0 when no expression failed, 1 when any failed, 2 for bad usage.\n";

struct Options {
    bool json = false;
    bool help = false;
    bool version = false;
    int approximateBits = -1;
    int baseIndex = BaseIndexDecimal;
    bool complement = false;
    bool keepHistory = true;
    std::optional<std::string> functionFolder;
    std::vector<std::string> expressions;
};

bool ParseInteger(const std::string& text, int& value) {
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size();
}

bool ParseBaseName(const std::string& text, int& index) {
    constexpr std::pair<const char*, int> Names[] = {
        {"bin", BaseIndexBinary}, {"dec", BaseIndexDecimal}, {"oct", BaseIndexOctal}, {"hex", BaseIndexHexadecimal}};
    for (const auto& [name, baseIndex] : Names) {
        if (text == name) {
            index = baseIndex;
            return true;
        }
    }
    return false;
}

// Options first; "--" or the first argument that is no option starts the
// expressions, so "-3+2" is an expression.
std::optional<Options> ParseOptions(const std::vector<std::string>& args, std::ostream& err) {
    Options options;
    std::size_t i = 0;
    for (; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "--") {
            ++i;
            break;
        }
        if (arg.rfind("--", 0) != 0) break;
        if (arg == "--json") {
            options.json = true;
        } else if (arg == "--help") {
            options.help = true;
        } else if (arg == "--version") {
            options.version = true;
        } else if (arg == "--round" && i + 1 < args.size() && ParseInteger(args[i + 1], options.approximateBits)) {
            ++i;
        } else if (arg == "--base" && i + 1 < args.size() && ParseBaseName(args[i + 1], options.baseIndex)) {
            ++i;
        } else if (arg == "--complement") {
            options.complement = true;
        } else if (arg == "--no-history") {
            options.keepHistory = false;
        } else if (arg == "--functions" && i + 1 < args.size()) {
            options.functionFolder = args[++i];
        } else {
            err << "tessarondel-cli: bad option: " << arg << "\n" << UsageText;
            return std::nullopt;
        }
    }
    options.expressions.assign(args.begin() + static_cast<std::ptrdiff_t>(i), args.end());
    if (options.json && !options.expressions.empty()) {
        err << "tessarondel-cli: --json reads its requests from standard input\n" << UsageText;
        return std::nullopt;
    }
    return options;
}

// Room kept from line to line: the expression's text and the line printed.
struct LineRoom {
    std::u16string expression;
    std::string output;
};

// The result as the main window shows it in the chosen base. A failed base
// conversion leaves the decimal text.
void AppendDisplayText(EngineState& engine, const Options& options, std::u16string_view result, std::string& out) {
    if (options.baseIndex == BaseIndexDecimal) {
        AppendUtf8(out, DecimalDisplayText(result));
        return;
    }
    const BaseDisplay display =
        ShowResultInBase(engine.LastAnswer, result, options.baseIndex, options.complement, engine);
    AppendUtf8(out, display.text ? std::u16string_view(*display.text) : result);
}

// Prints one line for the expression; false when the evaluation failed.
bool EvaluateAndPrint(EngineState& engine, const Options& options, const std::string& expression, LineRoom& room,
                      std::ostream& out) {
    AssignUtf16(room.expression, expression);
    const std::u16string result = EvaluateExpression(engine, room.expression);
    const bool good = !engine.ErrorFlag;
    room.output.clear();
    if (good) {
        AppendDisplayText(engine, options, result, room.output);
    } else {
        room.output += "Error: ";
        AppendUtf8(room.output, engine.ErrorText);
    }
    room.output += '\n';
    out.write(room.output.data(), static_cast<std::streamsize>(room.output.size()));
    return good;
}

// Defines the functions of the folder's documents, as the desktop program does at start.
void LoadFunctions(EngineState& engine, const Options& options, std::ostream& err) {
    const std::filesystem::path folder =
        options.functionFolder ? std::filesystem::path(*options.functionFolder) : FindFunctionFolder();
    if (LoadFunctionFolder(engine, folder).failed) err << "tessarondel-cli: " << ToUtf8(LoadFailedMessage) << '\n';
}

int RunExpressions(const Options& options, const ReaderFactory& makeReader, std::ostream& out, std::ostream& err) {
    EngineState engine;
    engine.ApproximateBits = options.approximateBits;
    engine.ErrorBoxTitle = u"Tessarondel Error Information";
    LoadFunctions(engine, options, err);
    bool allGood = true;
    LineRoom room;
    if (!options.expressions.empty()) {
        for (const auto& expression : options.expressions) {
            allGood = EvaluateAndPrint(engine, options, expression, room, out) && allGood;
        }
    } else {
        const LineReader readLine = makeReader(engine, options.keepHistory);
        std::string line;
        while (readLine(line)) allGood = EvaluateAndPrint(engine, options, line, room, out) && allGood;
    }
    return allGood ? CliAllGood : CliSomeFailed;
}

int RunJson(const Options& options, const ReaderFactory& makeReader, std::ostream& out, std::ostream& err) {
    JsonSession session;
    LoadFunctions(session.engine, options, err);
    const LineReader readLine = makeReader(session.engine, false);  // requests are no lines to recall
    RequestTable table;
    RegisterAllRequests(table);
    std::string line;
    while (readLine(line)) {
        if (line.find_first_not_of(" \t") == std::string::npos) continue;
        out << HandleJsonLine(session, table, line) << '\n';
        out.flush();
    }
    return CliAllGood;
}

}  // namespace

int RunCli(const std::vector<std::string>& args, const ReaderFactory& makeReader, std::ostream& out,
           std::ostream& err) {
    const auto options = ParseOptions(args, err);
    if (!options) return CliBadUsage;
    if (options->help) {
        out << UsageText;
        return CliAllGood;
    }
    if (options->version) {
        out << VersionText << '\n';
        return CliAllGood;
    }
    return options->json ? RunJson(*options, makeReader, out, err) : RunExpressions(*options, makeReader, out, err);
}

int RunCli(const std::vector<std::string>& args, const LineReader& readLine, std::ostream& out, std::ostream& err) {
    return RunCli(
        args, [&readLine](const EngineState&, bool) { return readLine; }, out, err);
}

LineReader StreamLineReader(std::istream& in) {
    return [&in](std::string& line) {
        if (!std::getline(in, line)) return false;
        if (!line.empty() && line.back() == '\r') line.pop_back();  // a CR LF line end
        return true;
    };
}

}  // namespace tessarondel
