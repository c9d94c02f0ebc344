// The custom function requests of the JSON Lines protocol.
#include "cli/json_protocol.h"
#include "customfunctions/engine/function_table.h"
#include "engine/text_codec.h"
#include "numbers/run_failure.h"

namespace tessarondel {

namespace {

CustomFunctionDocument FunctionArgument(const json::Value& argument, std::string_view request) {
    if (!argument.IsObject()) throw ProtocolError{std::string(request) + " must be an object"};
    const auto text = [&argument](std::string_view key) {
        return ToUtf16(StringArgument(MemberArgument(argument, key), key));
    };
    return {text("name"), text("params"), text("body"), text("description")};
}

// A table that never got slots fails in the engine; the request then answers
// ok false without a report.
template <typename Action>
bool OkUnlessTheTableHasNoSlots(Action&& action) {
    try {
        return action();
    } catch (const RunFailure&) {
        return false;
    }
}

// ShowErrorBox is on while a function is checked, as the function manager
// has it around a save, and off for every other request.
void Define(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    const CustomFunctionDocument f = FunctionArgument(argument, "define");
    session.engine.ShowErrorBox = true;
    const bool ok = DefineCustomFunction(session.engine, f.Name, f.ParameterText, f.Expression, f.Description);
    session.engine.ShowErrorBox = false;
    response.Bool("ok", ok);
}

void Redefine(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    const CustomFunctionDocument f = FunctionArgument(argument, "redefine");
    session.engine.ShowErrorBox = true;
    const bool ok = OkUnlessTheTableHasNoSlots(
        [&] { return RedefineCustomFunction(session.engine, f.Name, f.ParameterText, f.Expression, f.Description); });
    session.engine.ShowErrorBox = false;
    response.Bool("ok", ok);
}

void Document(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    response.Bool("ok", DefineDocument(session.engine, FunctionArgument(argument, "document")));
}

void Drop(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    const std::u16string name = ToUtf16(StringArgument(argument, "drop"));
    response.Bool("ok", OkUnlessTheTableHasNoSlots([&] { return DropCustomFunction(session.engine, name); }));
}

void Functions(JsonSession& session, const json::Value&, json::ObjectWriter& response) {
    response.String("names", ToUtf8(session.engine.CustomFunctionNames));
}

}  // namespace

void RegisterFunctionRequests(RequestTable& table) {
    table.emplace("define", Define);
    table.emplace("redefine", Redefine);
    table.emplace("document", Document);
    table.emplace("drop", Drop);
    table.emplace("functions", Functions);
}

}  // namespace tessarondel
