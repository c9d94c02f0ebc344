// Lines of the JSON Lines protocol through tessarondel-cli --json, in one
// run, so the engine and the session carry over from line to line. Every line
// that isn't blank gets exactly one response line, and each response is one
// JSON object by the grammar of RFC 8259, UTF-8 included. A line that is no
// JSON text at all must be answered with a protocol error. The checker below
// is independent of the protocol's own parser on purpose.
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/cli_app.h"

namespace {

// A strict JSON checker: whitespace, literals, numbers, strings with their
// escapes and well-formed UTF-8, arrays and objects.
class JsonChecker {
public:
    explicit JsonChecker(std::string_view text) : text_(text) {}

    bool IsOneValue() {
        SkipSpace();
        if (!Value(0)) return false;
        SkipSpace();
        return at_ == text_.size();
    }

private:
    static constexpr int MaxDepth = 10000;

    int Peek() const { return at_ < text_.size() ? static_cast<unsigned char>(text_[at_]) : -1; }
    bool Take(char c) {
        if (Peek() != static_cast<unsigned char>(c)) return false;
        ++at_;
        return true;
    }
    bool Word(std::string_view word) {
        if (text_.substr(at_, word.size()) != word) return false;
        at_ += word.size();
        return true;
    }
    void SkipSpace() {
        while (Peek() == ' ' || Peek() == '\t' || Peek() == '\n' || Peek() == '\r') ++at_;
    }
    bool Digits() {
        const std::size_t start = at_;
        while (Peek() >= '0' && Peek() <= '9') ++at_;
        return at_ > start;
    }

    bool Value(int depth) {
        if (depth > MaxDepth) return false;
        switch (Peek()) {
            case '{':
                return Members(depth);
            case '[':
                return Elements(depth);
            case '"':
                return String();
            case 't':
                return Word("true");
            case 'f':
                return Word("false");
            case 'n':
                return Word("null");
            default:
                return Number();
        }
    }

    bool Number() {
        Take('-');
        if (!Take('0') && !(Peek() >= '1' && Peek() <= '9' && Digits())) return false;
        if (Take('.') && !Digits()) return false;
        if (Take('e') || Take('E')) {
            if (!Take('+')) Take('-');
            if (!Digits()) return false;
        }
        return true;
    }

    bool Elements(int depth) {
        ++at_;
        SkipSpace();
        if (Take(']')) return true;
        do {
            SkipSpace();
            if (!Value(depth + 1)) return false;
            SkipSpace();
        } while (Take(','));
        return Take(']');
    }

    bool Members(int depth) {
        ++at_;
        SkipSpace();
        if (Take('}')) return true;
        do {
            SkipSpace();
            if (Peek() != '"' || !String()) return false;
            SkipSpace();
            if (!Take(':')) return false;
            SkipSpace();
            if (!Value(depth + 1)) return false;
            SkipSpace();
        } while (Take(','));
        return Take('}');
    }

    bool Escape() {
        if (Take('u')) {
            for (int i = 0; i < 4; ++i) {
                const int c = Peek();
                if (!((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'))) return false;
                ++at_;
            }
            return true;
        }
        const int c = Peek();
        ++at_;
        return c == '"' || c == '\\' || c == '/' || c == 'b' || c == 'f' || c == 'n' || c == 'r' || c == 't';
    }

    // One UTF-8 sequence of two to four bytes: no overlong form, no
    // surrogate, nothing above U+10FFFF.
    bool Utf8Sequence(int lead) {
        const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
        if (lead < 0xC2 || lead > 0xF4) return false;
        std::uint32_t code = static_cast<std::uint32_t>(lead) & (0x7F >> length);
        for (int i = 1; i < length; ++i) {
            const int c = Peek();
            if (c < 0x80 || c > 0xBF) return false;
            code = (code << 6) | static_cast<std::uint32_t>(c & 0x3F);
            ++at_;
        }
        constexpr std::uint32_t Smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        return code >= Smallest[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
    }

    bool String() {
        ++at_;
        while (true) {
            const int c = Peek();
            if (c < 0x20) return false;  // the end of the text, or a control character
            ++at_;
            if (c == '"') return true;
            if (c == '\\' && !Escape()) return false;
            if (c >= 0x80 && !Utf8Sequence(c)) return false;
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

bool IsJson(std::string_view text) { return JsonChecker(text).IsOneValue(); }

// The request lines as the command reads them: at LF, less one CR before it,
// and without the blank ones.
std::vector<std::string_view> RequestLines(std::string_view input) {
    std::vector<std::string_view> lines;
    while (!input.empty()) {
        const std::size_t end = input.find('\n');
        std::string_view line = input.substr(0, end);
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.find_first_not_of(" \t") != std::string_view::npos) lines.push_back(line);
    }
    return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = tessarondel::RunCli({"--functions", "/nonexistent/tessarondel-fuzz", "--json"},
                                           tessarondel::StreamLineReader(in), out, err);
    if (status != tessarondel::CliAllGood || !err.str().empty()) std::abort();

    const std::vector<std::string_view> requests = RequestLines(input);
    std::string_view responses = out.view();
    for (const std::string_view request : requests) {
        const std::size_t end = responses.find('\n');
        if (end == std::string_view::npos) std::abort();
        const std::string_view response = responses.substr(0, end);
        responses.remove_prefix(end + 1);
        if (response.empty() || response.front() != '{' || !IsJson(response)) std::abort();
        if (!IsJson(request) && !response.starts_with("{\"protocol_error\": ")) std::abort();
    }
    if (!responses.empty()) std::abort();
    return 0;
}
