// Writes the manual's reference pages (functions, constants, errors) from the
// tables that the program's catalogues, Quick Reference and error reporting
// use (and the Quick Reference's own texts), merged with the hand-written examples and advice of two TSV files. A
// table entry without its row, or a row without its entry, stops the build,
// so the manual can't fall behind the program. Every example also goes to
// examples.txt and its stated result to examples.expected, for a test that
// runs them through tessarondel-cli.
//
//   generate_manual_pages SOURCE_DIR OUTPUT_DIR   write the pages
//   generate_manual_pages --check OUTPUT_DIR       every entry has its anchor
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "engine/errors.h"
#include "engine/name_lists.h"
#include "engine/text_codec.h"
#include "engine/token_stream.h"
#include "shell/catalogue.h"
#include "shell/token_explanations.h"

namespace {

using namespace tessarondel;
using std::filesystem::path;

struct Row {
    std::string example;
    std::string third;  // the stated result, or the advice for an error
    bool used = false;
};
using RowTable = std::map<std::string, Row>;

RowTable ReadRows(const path& file) {
    std::ifstream in(file);
    if (!in) throw std::runtime_error("can not read " + file.string());
    RowTable rows;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        const auto first = line.find('\t');
        const auto second = line.find('\t', first + 1);
        if (second == std::string::npos) throw std::runtime_error(file.string() + ": not three columns: " + line);
        rows[line.substr(0, first)] = {line.substr(first + 1, second - first - 1), line.substr(second + 1)};
    }
    return rows;
}

std::string Html(std::u16string_view text) {
    std::string out;
    for (const char c : ToUtf8(text)) {
        if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '&')
            out += "&amp;";
        else
            out += c;
    }
    return out;
}
std::string Html(const std::string& text) { return Html(ToUtf16(text)); }

std::vector<std::u16string> BracedNames(std::u16string_view list) {
    std::vector<std::u16string> names;
    for (auto open = list.find(u'{'); open != std::u16string_view::npos; open = list.find(u'{', open + 1))
        names.emplace_back(list.substr(open + 1, list.find(u'}', open) - open - 1));
    return names;
}

// Examples and their stated results, in page order, for the CLI test.
struct ExampleLog {
    std::ostringstream inputs;
    std::ostringstream expected;
};

class PageWriter {
public:
    PageWriter(RowTable& examples, ExampleLog& log) : examples_(examples), log_(log) {}

    // The example cells of `name`'s row; a name without a row is an error.
    std::string ExampleCells(const std::u16string& name) {
        const auto row = examples_.find(ToUtf8(name));
        if (row == examples_.end()) throw std::runtime_error("no example row for " + ToUtf8(name));
        row->second.used = true;
        Log(row->second.example, row->second.third);
        return "<td><code>" + Html(row->second.example) + "</code></td><td><code>" + Html(row->second.third) +
               "</code></td>";
    }
    void Log(const std::string& input, const std::string& result) {
        log_.inputs << input << '\n';
        log_.expected << result << '\n';
    }

private:
    RowTable& examples_;
    ExampleLog& log_;
};

std::string PageStart(const std::string& title) {
    return "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + title +
           "</title><link rel=\"stylesheet\" href=\"manual.css\"></head><body>\n"
           "<p class=\"nav\"><a href=\"index.html\">Contents</a></p>\n<h1>" +
           title + "</h1>\n";
}
constexpr const char* PageEnd = "</body></html>\n";

std::string FunctionsPage(PageWriter& writer) {
    std::string page = PageStart("Built-in functions");
    page +=
        "<p>Every function the calculator knows, by the groups of the Functions menu. Arguments in square "
        "brackets may be left out. Each example was run through <code>tessarondel-cli</code>.</p>\n";
    for (const FunctionGroup& group : BuiltInFunctionCatalogue()) {
        page += "<h2>" + Html(group.Caption) +
                "</h2>\n<table>\n<tr><th>Function</th><th>What it does</th>"
                "<th>Example</th><th>Result</th></tr>\n";
        for (const FunctionCatalogueEntry& entry : group.Entries) {
            if (std::u16string_view(entry.Name) == u"-") continue;
            page += "<tr><td><a name=\"fn-" + Html(entry.Name) + "\"></a><code>" + Html(entry.Signature) +
                    "</code></td><td>" + Html(entry.Description) + "</td>" + writer.ExampleCells(entry.Name) +
                    "</tr>\n";
        }
        page += "</table>\n";
    }
    page +=
        "<h2>Aliases</h2>\n<p>Another name for a function; it is replaced by the function's own name before "
        "the expression is read.</p>\n<table>\n<tr><th>Alias</th><th>Stands for</th><th>Example</th>"
        "<th>Result</th></tr>\n";
    for (const std::u16string& alias : BracedNames(AliasList)) {
        page += "<tr><td><a name=\"alias-" + Html(alias) + "\"></a><code>" + Html(alias) +
                "</code></td><td><a href=\"#fn-" + Html(StreamReplacement(alias)) + "\"><code>" +
                Html(StreamReplacement(alias)) + "</code></a></td>" + writer.ExampleCells(alias) + "</tr>\n";
    }
    return page + "</table>\n" + PageEnd;
}

std::string ConstantsPage(PageWriter& writer) {
    std::string page = PageStart("Constants");
    page +=
        "<p>These names stand for a value wherever they appear, in any mix of upper and lower case. They can't "
        "be assigned to.</p>\n<table>\n<tr><th>Name</th><th>Stands for</th><th>Example</th><th>Result</th>"
        "</tr>\n";
    for (const std::u16string& name : BracedNames(ConstantList)) {
        page += "<tr><td><a name=\"const-" + Html(name) + "\"></a><code>" + Html(name) + "</code></td><td><code>" +
                Html(StreamReplacement(name)) + "</code></td>" + writer.ExampleCells(name) + "</tr>\n";
    }
    page +=
        "</table>\n<h2>The Constants menu</h2>\n<p>The menu inserts the text on the right into the input "
        "area, digit for digit.</p>\n";
    for (const ConstantGroup& group : ConstantCatalogue()) {
        if (group.Entries.empty()) continue;
        page += "<h3>" + Html(group.Caption) + "</h3>\n<table>\n";
        for (const ConstantCatalogueEntry& entry : group.Entries) {
            if (std::u16string_view(entry.Caption) == u"-") continue;
            page += "<tr><td>" + Html(entry.Caption) + "</td><td><code>" + Html(entry.Tag) + "</code></td></tr>\n";
        }
        page += "</table>\n";
    }
    return page + PageEnd;
}

std::string QuickReferencePage() {
    std::string page = PageStart("The Quick Reference");
    page +=
        "<p>When the keypad or a menu puts an operator, a digit or a constant into the input line, the Quick "
        "Reference pane below the keypad explains it with these words.</p>\n<table>\n<tr><th>Key</th>"
        "<th>Quick Reference</th></tr>\n";
    for (const auto& [token, explanation] : TokenExplanations()) {
        page += "<tr><td><a name=\"qr-" + Html(token) + "\"></a><code>" + Html(token) + "</code></td><td>" +
                Html(explanation) + "</td></tr>\n";
    }
    return page + "</table>\n" + PageEnd;
}

std::vector<int> ErrorNumbers() {
    std::vector<int> numbers;
    for (int number = 0; number <= UnknownError; ++number) {
        if (!ErrorMessage(number).empty()) numbers.push_back(number);
    }
    return numbers;
}

std::string ErrorsPage(RowTable& advice, PageWriter& writer) {
    std::string page = PageStart("Error messages");
    page +=
        "<p>When an expression can't be worked out, the display shows the message instead of a value, and the "
        "expression list gets the row with the word Error. The Custom Function Manager shows the number and "
        "the message in a box titled \"Tessarondel Error Information\". <code>tessarondel-cli</code> prints "
        "<code>Error: </code> and the message.</p>\n<table>\n<tr><th>Number</th><th>Message</th>"
        "<th>For example</th><th>What to do</th></tr>\n";
    for (const int number : ErrorNumbers()) {
        const auto row = advice.find(std::to_string(number));
        if (row == advice.end()) throw std::runtime_error("no advice row for error " + std::to_string(number));
        row->second.used = true;
        const std::string message = Html(ErrorMessage(number));
        const bool hasExample = row->second.example != "-";
        if (hasExample) writer.Log(row->second.example, "Error: " + ToUtf8(ErrorMessage(number)));
        page += "<tr><td><a name=\"error-" + std::to_string(number) + "\"></a>" + std::to_string(number) + "</td><td>" +
                message + "</td><td>" +
                (hasExample ? "<code>" + Html(row->second.example) + "</code>" : std::string()) + "</td><td>" +
                Html(row->second.third) + "</td></tr>\n";
    }
    return page + "</table>\n" + PageEnd;
}

void ThrowOnUnusedRows(const RowTable& rows, const std::string& what) {
    for (const auto& [name, row] : rows) {
        if (!row.used) throw std::runtime_error(what + " row for an entry the program doesn't have: " + name);
    }
}

void Write(const path& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
    if (!out) throw std::runtime_error("can not write " + file.string());
}

void WritePages(const path& source, const path& output) {
    RowTable examples = ReadRows(source / "function_examples.tsv");
    RowTable advice = ReadRows(source / "error_advice.tsv");
    ExampleLog log;
    PageWriter writer(examples, log);
    std::filesystem::create_directories(output);
    Write(output / "functions.html", FunctionsPage(writer));
    Write(output / "constants.html", ConstantsPage(writer));
    Write(output / "errors.html", ErrorsPage(advice, writer));
    Write(output / "quick-reference.html", QuickReferencePage());
    ThrowOnUnusedRows(examples, "example");
    ThrowOnUnusedRows(advice, "advice");
    Write(output / "examples.txt", log.inputs.str());
    Write(output / "examples.expected", log.expected.str());
}

std::string ReadText(const path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Every table entry has its anchor in the pages of `output`; prints the ones
// that don't and returns their count.
int CheckPages(const path& output) {
    std::vector<std::pair<std::string, std::string>> wanted;  // page, anchor
    for (const FunctionGroup& group : BuiltInFunctionCatalogue()) {
        for (const FunctionCatalogueEntry& entry : group.Entries) {
            if (std::u16string_view(entry.Name) != u"-")
                wanted.emplace_back("functions.html", "fn-" + Html(entry.Name));
        }
    }
    for (const std::u16string& alias : BracedNames(AliasList))
        wanted.emplace_back("functions.html", "alias-" + Html(alias));
    for (const std::u16string& name : BracedNames(ConstantList))
        wanted.emplace_back("constants.html", "const-" + Html(name));
    for (const int number : ErrorNumbers()) wanted.emplace_back("errors.html", "error-" + std::to_string(number));
    for (const auto& [token, explanation] : TokenExplanations())
        wanted.emplace_back("quick-reference.html", "qr-" + Html(token));
    int missing = 0;
    for (const auto& [page, anchor] : wanted) {
        if (ReadText(output / page).find("name=\"" + anchor + "\"") != std::string::npos) continue;
        std::cerr << page << " has no entry " << anchor << '\n';
        ++missing;
    }
    std::cout << wanted.size() - static_cast<std::size_t>(missing) << " of " << wanted.size() << " entries found\n";
    return missing;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::cerr << "usage: generate_manual_pages SOURCE_DIR OUTPUT_DIR | --check OUTPUT_DIR\n";
        return 2;
    }
    try {
        if (std::string(argv[1]) == "--check") return CheckPages(argv[2]) == 0 ? 0 : 1;
        WritePages(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "generate_manual_pages: " << failure.what() << '\n';
        return 1;
    }
}
