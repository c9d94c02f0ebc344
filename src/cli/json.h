#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tessarondel::json {

// A small JSON model for the line protocol: objects keep their keys sorted,
// numbers are doubles, strings are UTF-8.
struct Value;
using Array = std::vector<Value>;
using Object = std::map<std::string, Value, std::less<>>;

struct Value {
    std::variant<std::nullptr_t, bool, double, std::string, Array, Object> data = nullptr;

    bool IsString() const { return std::holds_alternative<std::string>(data); }
    bool IsNumber() const { return std::holds_alternative<double>(data); }
    bool IsBool() const { return std::holds_alternative<bool>(data); }
    bool IsObject() const { return std::holds_alternative<Object>(data); }
    bool IsArray() const { return std::holds_alternative<Array>(data); }
    const std::string& String() const { return std::get<std::string>(data); }
    double Number() const { return std::get<double>(data); }
    bool Bool() const { return std::get<bool>(data); }
    const Object& AsObject() const { return std::get<Object>(data); }
    const Array& AsArray() const { return std::get<Array>(data); }
    // The member `key` of an object, or nullptr.
    const Value* Find(std::string_view key) const;

    bool operator==(const Value& other) const = default;
};

// Parses one JSON text; nullopt when it is not exactly one well-formed value.
std::optional<Value> Parse(std::string_view text);

// The compact text of a value.
std::string Write(const Value& value);

// Writers for the pieces of a response line.
std::string QuoteString(std::string_view utf8);
// Shortest text that reads back to the same double; -0.0 keeps its sign.
std::string NumberText(double x);

// Builds one object line, members in the order they are added.
class ObjectWriter {
public:
    ObjectWriter& Raw(std::string_view key, std::string_view jsonText);
    ObjectWriter& String(std::string_view key, std::string_view utf8) { return Raw(key, QuoteString(utf8)); }
    ObjectWriter& Number(std::string_view key, double x) { return Raw(key, NumberText(x)); }
    ObjectWriter& Bool(std::string_view key, bool b) { return Raw(key, b ? "true" : "false"); }
    std::string Text() const { return "{" + members_ + "}"; }

private:
    std::string members_;
};

}  // namespace tessarondel::json
