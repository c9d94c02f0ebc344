#include "cli/json_protocol.h"

#include <cmath>
#include <limits>

#include "engine/text_codec.h"

namespace tessarondel {

JsonSession::JsonSession() {
    engine.ApproximateBits = -1;
    engine.ErrorBoxTitle = u"Tessarondel Error Information";
    engine.ShowMessageBox = [this](const std::u16string& text, const std::u16string&) {
        boxes.push_back(ToUtf8(text));
    };
}

namespace {

std::string ProtocolErrorLine(std::string_view message) {
    return json::ObjectWriter().String("protocol_error", message).Text();
}

std::string BoxList(const std::vector<std::string>& boxes) {
    std::string list = "[";
    for (const auto& box : boxes) {
        if (list.size() > 1) list += ", ";
        list += json::QuoteString(box);
    }
    return list + "]";
}

}  // namespace

std::string HandleJsonLine(JsonSession& session, const RequestTable& table, std::string_view line) {
    const auto request = json::Parse(line);
    if (!request || !request->IsObject()) return ProtocolErrorLine("a request is one JSON object per line");
    const auto& members = request->AsObject();
    if (members.size() != 1) return ProtocolErrorLine("a request object has exactly one member");
    const auto& [name, argument] = *members.begin();
    const auto handler = table.find(name);
    if (handler == table.end()) return ProtocolErrorLine("unknown request: " + name);

    session.boxes.clear();
    json::ObjectWriter fields;
    try {
        handler->second(session, argument, fields);
    } catch (const ProtocolError& error) {
        return ProtocolErrorLine(error.message);
    }
    json::ObjectWriter response;
    response.Bool("error", session.engine.ErrorFlag)
        .Number("number", session.engine.ErrorNumber)
        .String("message", ToUtf8(session.engine.ErrorText))
        .Raw("boxes", BoxList(session.boxes));
    const std::string own = fields.Text();
    std::string text = response.Text();
    if (own.size() > 2) text.insert(text.size() - 1, ", " + own.substr(1, own.size() - 2));
    return text;
}

const std::string& StringArgument(const json::Value& argument, std::string_view what) {
    if (!argument.IsString()) throw ProtocolError{std::string(what) + " must be a string"};
    return argument.String();
}

double NumberArgument(const json::Value& argument, std::string_view what) {
    if (!argument.IsNumber()) throw ProtocolError{std::string(what) + " must be a number"};
    return argument.Number();
}

int IntegerArgument(const json::Value& argument, std::string_view what) {
    const double x = NumberArgument(argument, what);
    if (x != std::trunc(x) || x < std::numeric_limits<int>::min() || x > std::numeric_limits<int>::max()) {
        throw ProtocolError{std::string(what) + " must be a 32-bit integer"};
    }
    return static_cast<int>(x);
}

bool BoolArgument(const json::Value& argument, std::string_view what) {
    if (!argument.IsBool()) throw ProtocolError{std::string(what) + " must be true or false"};
    return argument.Bool();
}

const json::Value& MemberArgument(const json::Value& argument, std::string_view key) {
    const json::Value* member = argument.Find(key);
    if (!member) throw ProtocolError{"missing member: " + std::string(key)};
    return *member;
}

}  // namespace tessarondel
