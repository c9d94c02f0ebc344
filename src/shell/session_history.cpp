#include "shell/session_history.h"

#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>

#include "engine/text_codec.h"

namespace tessarondel {
namespace {

constexpr std::string_view kHeader = "Tessarondel history 1";
constexpr std::string_view kEnd = "End";

// A backslash and a code stand in a field for each of these characters.
constexpr std::string_view kEscapedChars{"\\\t\n\r\0", 5};
constexpr std::string_view kEscapeCodes = "\\tnr0";

std::string Escaped(std::u16string_view text) {
    std::string out;
    for (const char c : ToUtf8(text)) {
        const std::size_t at = kEscapedChars.find(c);
        if (at == std::string_view::npos) {
            out += c;
        } else {
            out += '\\';
            out += kEscapeCodes[at];
        }
    }
    return out;
}

// The shortest text that reads back to the same double.
std::string ValueText(double value) {
    std::array<char, 32> buffer{};
    return std::string(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
}

void WriteLine(std::string& out, std::string_view tag, std::initializer_list<std::string> fields) {
    out += tag;
    for (const std::string& field : fields) {
        out += '\t';
        out += field;
    }
    out += '\n';
}

// The newest `kSessionHistoryLimit` of a list.
template <typename Item>
std::size_t FirstKept(const std::vector<Item>& items) {
    return items.size() > kSessionHistoryLimit ? items.size() - kSessionHistoryLimit : 0;
}

// The number of item `index` of a list that counts up to `count`.
std::int32_t NumberOf(std::int32_t count, std::size_t size, std::size_t index) {
    return count - static_cast<std::int32_t>(size - index) + 1;
}

// A file's text as fields: one tag and the unescaped texts behind it.
class LineFields {
public:
    bool Read(std::string_view line) {
        fields_.clear();
        std::string field;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const char c = line[i];
            if (c == '\t') {
                fields_.push_back(std::move(field));
                field.clear();
            } else if (c != '\\') {
                field += c;
            } else if (++i == line.size() || !Unescape(line[i], field)) {
                return false;
            }
        }
        fields_.push_back(std::move(field));
        return true;
    }
    bool Is(std::string_view tag, std::size_t values) const {
        return fields_[0] == tag && fields_.size() == values + 1;
    }
    std::u16string Text(std::size_t index) const { return ToUtf16(fields_[index]); }
    const std::string& Raw(std::size_t index) const { return fields_[index]; }

private:
    static bool Unescape(char code, std::string& field) {
        const std::size_t at = kEscapeCodes.find(code);
        if (at == std::string_view::npos) return false;
        field += kEscapedChars[at];
        return true;
    }

    std::vector<std::string> fields_;
};

bool ParseWhole(const std::string& text, std::int32_t& value) {
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size() && value > 0;
}

bool ParseValue(const std::string& text, double& value) {
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size() && std::isfinite(value);
}

// The next number of a list that counts one by one.
bool ParseNextNumber(const std::string& text, std::int32_t& count, bool first) {
    std::int32_t number = 0;
    if (!ParseWhole(text, number) || (!first && number - 1 != count)) return false;
    count = number;
    return true;
}

// Lower-case letters, digits and "_", not starting with a digit, with a letter.
bool IsVariableName(std::u16string_view name) {
    bool letter = false;
    for (const char16_t c : name) {
        if (c >= u'a' && c <= u'z') letter = true;
        if (!(c >= u'a' && c <= u'z') && !(c >= u'0' && c <= u'9') && c != u'_') return false;
    }
    return letter && !(name[0] >= u'0' && name[0] <= u'9');
}

bool ReadVariable(const LineFields& fields, SessionHistory& history) {
    SavedVariable variable{fields.Text(1), 0.0, fields.Text(3)};
    if (!IsVariableName(variable.Name) || !ParseValue(fields.Raw(2), variable.Value)) return false;
    for (const SavedVariable& other : history.Variables) {
        if (other.Name == variable.Name) return false;
    }
    history.Variables.push_back(std::move(variable));
    return true;
}

bool ReadLine(const LineFields& fields, SessionHistory& history) {
    if (fields.Is("Row", 3)) {
        history.Rows.push_back({fields.Text(2), fields.Text(3)});
        return ParseNextNumber(fields.Raw(1), history.ExpressionRowCount, history.Rows.size() == 1);
    }
    if (fields.Is("Result", 2)) {
        history.Results.push_back(fields.Text(2));
        return ParseNextNumber(fields.Raw(1), history.ResultListCount, history.Results.size() == 1);
    }
    if (fields.Is("Input", 1)) {
        history.Inputs.push_back(fields.Text(1));
        return true;
    }
    if (fields.Is("Variable", 3)) return ReadVariable(fields, history);
    if (fields.Is("Answer", 2) && !history.Answer) {
        history.Answer = SavedAnswer{0.0, fields.Text(2)};
        return ParseValue(fields.Raw(1), history.Answer->Value);
    }
    return false;
}

// Well-formed UTF-8 without NUL: converting there and back changes nothing.
bool IsText(std::string_view text) {
    return text.find('\0') == std::string_view::npos && ToUtf8(ToUtf16(text)) == text;
}

template <typename Item>
void KeepNewest(std::vector<Item>& items) {
    items.erase(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(FirstKept(items)));
}

}  // namespace

std::string FormatSessionHistory(const SessionHistory& history) {
    std::string out(kHeader);
    out += '\n';
    for (std::size_t i = FirstKept(history.Rows); i < history.Rows.size(); ++i) {
        const ExpressionRecord& row = history.Rows[i];
        WriteLine(out, "Row",
                  {std::to_string(NumberOf(history.ExpressionRowCount, history.Rows.size(), i)),
                   Escaped(row.Expression), Escaped(row.Result)});
    }
    for (std::size_t i = FirstKept(history.Results); i < history.Results.size(); ++i) {
        WriteLine(out, "Result",
                  {std::to_string(NumberOf(history.ResultListCount, history.Results.size(), i)),
                   Escaped(history.Results[i])});
    }
    for (std::size_t i = FirstKept(history.Inputs); i < history.Inputs.size(); ++i) {
        WriteLine(out, "Input", {Escaped(history.Inputs[i])});
    }
    for (const SavedVariable& variable : history.Variables) {
        WriteLine(out, "Variable", {Escaped(variable.Name), ValueText(variable.Value), Escaped(variable.Shown)});
    }
    if (history.Answer) WriteLine(out, "Answer", {ValueText(history.Answer->Value), Escaped(history.Answer->Text)});
    out += kEnd;
    out += '\n';
    return out;
}

std::optional<SessionHistory> ParseSessionHistory(std::string_view text) {
    const std::string header = std::string(kHeader) + "\n";
    const std::string ending = "\n" + std::string(kEnd) + "\n";
    if (text.size() > kSessionHistoryMaxBytes || !text.starts_with(header) || !text.ends_with(ending) ||
        !IsText(text)) {
        return std::nullopt;
    }
    SessionHistory history;
    LineFields fields;
    std::size_t start = header.size();
    const std::size_t end = text.size() - ending.size() + 1;  // behind the last entry's line end
    while (start < end) {
        const std::size_t stop = text.find('\n', start);
        if (!fields.Read(text.substr(start, stop - start)) || !ReadLine(fields, history)) return std::nullopt;
        start = stop + 1;
    }
    KeepNewest(history.Rows);
    KeepNewest(history.Results);
    KeepNewest(history.Inputs);
    return history;
}

}  // namespace tessarondel
