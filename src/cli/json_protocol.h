#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json.h"
#include "engine/engine_state.h"

namespace tessarondel {

// The engine and what one run of the JSON Lines protocol keeps between requests.
struct JsonSession {
    EngineState engine;
    std::vector<std::string> boxes;  // message boxes shown during the current request
    std::u16string lastResult;       // ResultText of the last eval
    double lastAnswer = 0;           // LastAnswer after the last eval

    JsonSession();
};

// Thrown by a handler whose argument has the wrong shape.
struct ProtocolError {
    std::string message;
};

// A handler performs one request with its argument and adds its own fields to
// the response; error, number, message and boxes are added for every request.
using RequestHandler = std::function<void(JsonSession&, const json::Value& argument, json::ObjectWriter& response)>;
using RequestTable = std::map<std::string, RequestHandler, std::less<>>;

// The request sets; each lives in its own file. RegisterAllRequests fills a
// table with every set.
void RegisterEngineRequests(RequestTable& table);    // eval, clear, round
void RegisterBaseRequests(RequestTable& table);      // tobase, show
void RegisterFunctionRequests(RequestTable& table);  // define, redefine, document, drop, functions
void RegisterAllRequests(RequestTable& table);

// Answers one input line with one response line (without the line end).
std::string HandleJsonLine(JsonSession& session, const RequestTable& table, std::string_view line);

// Argument readers for handlers: ProtocolError when the shape is wrong.
const std::string& StringArgument(const json::Value& argument, std::string_view what);
double NumberArgument(const json::Value& argument, std::string_view what);
int IntegerArgument(const json::Value& argument, std::string_view what);
bool BoolArgument(const json::Value& argument, std::string_view what);
const json::Value& MemberArgument(const json::Value& argument, std::string_view key);

}  // namespace tessarondel
