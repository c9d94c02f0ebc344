#include "cli/json_protocol.h"
#include "engine/text_codec.h"
#include "numbers/base_conversion.h"
#include "numbers/base_display.h"

namespace tessarondel {

namespace {

// The digit set reaches to 16; a base of 1 or -1 would never end the long
// division, so the protocol accepts only the bases that have digits.
constexpr int LowestBase = 2;
constexpr int HighestBase = 16;
// Bounds the fixed text that the conversion builds before it cuts the digits.
constexpr int MostDecimals = 4096;

// {"tobase":{"value":X,"base":B,"decimals":D}} adds "text": NumberToBaseText.
void ToBase(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    const double value = NumberArgument(MemberArgument(argument, "value"), "value");
    const int base = IntegerArgument(MemberArgument(argument, "base"), "base");
    const int decimals = IntegerArgument(MemberArgument(argument, "decimals"), "decimals");
    if (base < LowestBase || base > HighestBase) throw ProtocolError{"base must lie in 2 to 16"};
    if (decimals > MostDecimals) throw ProtocolError{"decimals must not exceed 4096"};
    response.String("text", ToUtf8(NumberToBaseText(value, base, decimals, session.engine)));
}

// {"show":{"index":I,"complement":C}} adds "text", the result display's text
// for the last eval (null when the display keeps its text), and
// "complement_box", whether the complement check box is shown.
void Show(JsonSession& session, const json::Value& argument, json::ObjectWriter& response) {
    const int index = IntegerArgument(MemberArgument(argument, "index"), "index");
    const bool complement = BoolArgument(MemberArgument(argument, "complement"), "complement");
    const BaseDisplay display =
        ShowResultInBase(session.lastAnswer, session.lastResult, index, complement, session.engine);
    if (display.text) {
        response.String("text", ToUtf8(*display.text));
    } else {
        response.Raw("text", "null");
    }
    response.Bool("complement_box", display.complementBoxVisible);
}

}  // namespace

void RegisterBaseRequests(RequestTable& table) {
    table.emplace("tobase", ToBase);
    table.emplace("show", Show);
}

}  // namespace tessarondel
