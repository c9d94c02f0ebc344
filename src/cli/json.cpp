#include "cli/json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "engine/text_codec.h"

namespace tessarondel::json {

namespace {

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {}

    std::optional<Value> ParseDocument() {
        auto value = ParseValue(0);
        SkipSpace();
        if (!value || pos_ != text_.size()) return std::nullopt;
        return value;
    }

private:
    static constexpr int MaxDepth = 64;

    void SkipSpace() {
        while (pos_ < text_.size() &&
               (text_[pos_] == ' ' || text_[pos_] == '\t' || text_[pos_] == '\n' || text_[pos_] == '\r'))
            ++pos_;
    }
    bool Consume(std::string_view word) {
        if (text_.substr(pos_, word.size()) != word) return false;
        pos_ += word.size();
        return true;
    }

    std::optional<Value> ParseValue(int depth) {
        SkipSpace();
        if (pos_ >= text_.size() || depth > MaxDepth) return std::nullopt;
        const char c = text_[pos_];
        if (c == '{') return ParseObject(depth);
        if (c == '[') return ParseArray(depth);
        if (c == '"') {
            auto s = ParseString();
            if (!s) return std::nullopt;
            return Value{std::move(*s)};
        }
        if (Consume("true")) return Value{true};
        if (Consume("false")) return Value{false};
        if (Consume("null")) return Value{nullptr};
        return ParseNumber();
    }

    std::size_t SkipDigits() {
        const std::size_t start = pos_;
        while (pos_ < text_.size() && text_[pos_] >= '0' && text_[pos_] <= '9') ++pos_;
        return pos_ - start;
    }

    // -?(0|[1-9][0-9]*)(.[0-9]+)?([eE][+-]?[0-9]+)? and nothing looser: "01",
    // "1." and ".5" are no JSON numbers.
    std::optional<Value> ParseNumber() {
        const std::size_t start = pos_;
        Consume("-");
        if (!Consume("0") && SkipDigits() == 0) return std::nullopt;
        if (Consume(".") && SkipDigits() == 0) return std::nullopt;
        if (Consume("e") || Consume("E")) {
            if (!Consume("+")) Consume("-");
            if (SkipDigits() == 0) return std::nullopt;
        }
        double x = 0;
        const char* first = text_.data() + start;
        const auto parsed = std::from_chars(first, text_.data() + pos_, x);
        if (parsed.ec != std::errc() || parsed.ptr != text_.data() + pos_ || pos_ == start) return std::nullopt;
        return Value{x};
    }

    std::optional<Value> ParseArray(int depth) {
        ++pos_;
        Array items;
        SkipSpace();
        if (Consume("]")) return Value{std::move(items)};
        while (true) {
            auto item = ParseValue(depth + 1);
            if (!item) return std::nullopt;
            items.push_back(std::move(*item));
            SkipSpace();
            if (Consume("]")) return Value{std::move(items)};
            if (!Consume(",")) return std::nullopt;
        }
    }

    std::optional<Value> ParseObject(int depth) {
        ++pos_;
        Object members;
        SkipSpace();
        if (Consume("}")) return Value{std::move(members)};
        while (true) {
            SkipSpace();
            if (pos_ >= text_.size() || text_[pos_] != '"') return std::nullopt;
            auto key = ParseString();
            SkipSpace();
            if (!key || !Consume(":")) return std::nullopt;
            auto item = ParseValue(depth + 1);
            if (!item) return std::nullopt;
            members.insert_or_assign(std::move(*key), std::move(*item));
            SkipSpace();
            if (Consume("}")) return Value{std::move(members)};
            if (!Consume(",")) return std::nullopt;
        }
    }

    std::optional<unsigned> ParseHex4() {
        if (pos_ + 4 > text_.size()) return std::nullopt;
        unsigned code = 0;
        const auto parsed = std::from_chars(text_.data() + pos_, text_.data() + pos_ + 4, code, 16);
        if (parsed.ptr != text_.data() + pos_ + 4) return std::nullopt;
        pos_ += 4;
        return code;
    }

    static constexpr char32_t ReplacementCharacter = 0xFFFD;

    // Copies the UTF-8 sequence that `lead` begins; false for malformed UTF-8:
    // a stray or missing continuation byte, an overlong form, a surrogate or a
    // code point above U+10FFFF.
    bool CopyUtf8Sequence(char lead, std::string& out) {
        const auto byte = static_cast<unsigned char>(lead);
        if (byte < 0xC2 || byte > 0xF4) return false;
        const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
        if (pos_ + length - 1 > text_.size()) return false;
        char32_t code = byte & (0x7F >> length);
        for (std::size_t i = 0; i + 1 < length; ++i) {
            const auto next = static_cast<unsigned char>(text_[pos_ + i]);
            if ((next & 0xC0) != 0x80) return false;
            code = (code << 6) | (next & 0x3F);
        }
        constexpr char32_t Smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        if (code < Smallest[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return false;
        out += lead;
        out.append(text_.substr(pos_, length - 1));
        pos_ += length - 1;
        return true;
    }

    std::optional<char32_t> ParseEscapedCodePoint() {
        auto high = ParseHex4();
        if (!high) return std::nullopt;
        // A lone surrogate has no UTF-8 form; it reads as the replacement character.
        if (*high >= 0xDC00 && *high <= 0xDFFF) return ReplacementCharacter;
        if (*high < 0xD800 || *high > 0xDBFF) return static_cast<char32_t>(*high);
        if (!Consume("\\u")) return ReplacementCharacter;
        auto low = ParseHex4();
        if (!low || *low < 0xDC00 || *low > 0xDFFF) return std::nullopt;
        return static_cast<char32_t>(0x10000 + ((*high - 0xD800) << 10) + (*low - 0xDC00));
    }

    std::optional<std::string> ParseString() {
        ++pos_;
        std::string out;
        while (pos_ < text_.size()) {
            const char c = text_[pos_++];
            if (c == '"') return out;
            if (static_cast<unsigned char>(c) < 0x20) return std::nullopt;
            if (static_cast<unsigned char>(c) >= 0x80) {
                if (!CopyUtf8Sequence(c, out)) return std::nullopt;
                continue;
            }
            if (c != '\\') {
                out += c;
                continue;
            }
            if (pos_ >= text_.size()) return std::nullopt;
            const char e = text_[pos_++];
            switch (e) {
                case '"':
                case '\\':
                case '/':
                    out += e;
                    break;
                case 'b':
                    out += '\b';
                    break;
                case 'f':
                    out += '\f';
                    break;
                case 'n':
                    out += '\n';
                    break;
                case 'r':
                    out += '\r';
                    break;
                case 't':
                    out += '\t';
                    break;
                case 'u': {
                    auto cp = ParseEscapedCodePoint();
                    if (!cp) return std::nullopt;
                    AppendUtf8(out, *cp);
                    break;
                }
                default:
                    return std::nullopt;
            }
        }
        return std::nullopt;
    }

    std::string_view text_;
    std::size_t pos_ = 0;
};

}  // namespace

const Value* Value::Find(std::string_view key) const {
    if (!IsObject()) return nullptr;
    const auto& members = AsObject();
    const auto it = members.find(key);
    return it == members.end() ? nullptr : &it->second;
}

std::optional<Value> Parse(std::string_view text) { return Parser(text).ParseDocument(); }

std::string QuoteString(std::string_view utf8) {
    std::string out = "\"";
    for (const char c : utf8) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(c) < 0x20) {
                    constexpr char hex[] = "0123456789abcdef";
                    out += "\\u00";
                    out += hex[(c >> 4) & 0xF];
                    out += hex[c & 0xF];
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

std::string NumberText(double x) {
    if (x == 0) return std::signbit(x) ? "-0.0" : "0";
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), x);
    return std::string(buffer.data(), written.ptr);
}

std::string Write(const Value& value) {
    struct Writer {
        std::string operator()(std::nullptr_t) const { return "null"; }
        std::string operator()(bool b) const { return b ? "true" : "false"; }
        std::string operator()(double x) const { return NumberText(x); }
        std::string operator()(const std::string& s) const { return QuoteString(s); }
        std::string operator()(const Array& items) const {
            std::string text = "[";
            for (const auto& item : items) text += (text.size() > 1 ? "," : "") + Write(item);
            return text + "]";
        }
        std::string operator()(const Object& members) const {
            std::string text = "{";
            for (const auto& [key, item] : members)
                text += (text.size() > 1 ? "," : "") + QuoteString(key) + ":" + Write(item);
            return text + "}";
        }
    };
    return std::visit(Writer{}, value.data);
}

ObjectWriter& ObjectWriter::Raw(std::string_view key, std::string_view jsonText) {
    if (!members_.empty()) members_ += ", ";
    members_ += QuoteString(key);
    members_ += ": ";
    members_ += jsonText;
    return *this;
}

}  // namespace tessarondel::json
