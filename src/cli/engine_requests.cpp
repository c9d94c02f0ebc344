#include "cli/json_protocol.h"
#include "engine/engine.h"
#include "engine/text_codec.h"

namespace tessarondel {

namespace {

std::string VariableList(EngineState& engine) {
    std::vector<VariableRecord> records;
    const int count = GetVariableSnapshot(engine, records);
    std::string list = "[";
    for (int i = 0; i < count; ++i) {
        if (i > 0) list += ", ";
        const auto& record = records[static_cast<std::size_t>(i)];
        list += "[" + json::QuoteString(ToUtf8(record.Name)) + ", " + json::QuoteString(ToUtf8(record.Value)) + "]";
    }
    return list + "]";
}

void Eval(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    const std::u16string expression = ToUtf16(StringArgument(argument, "eval"));
    session.engine.ShowErrorBox = false;
    session.lastResult = EvaluateText(session.engine, expression);
    session.lastAnswer = session.engine.LastAnswer;
    response.String("result", ToUtf8(session.lastResult))
        .Number("answer", session.engine.LastAnswer)
        .Raw("vars", VariableList(session.engine));
}

void Clear(JsonSession& session, const json::Value&, json::ObjectWriter&) { ClearVariables(session.engine); }

void Round(JsonSession& session, const json::Value& argument, json::ObjectWriter&) {
    session.engine.ApproximateBits = IntegerArgument(argument, "round");
}

}  // namespace

void RegisterEngineRequests(RequestTable& table) {
    table.emplace("eval", Eval);
    table.emplace("clear", Clear);
    table.emplace("round", Round);
}

}  // namespace tessarondel
