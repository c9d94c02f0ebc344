// A function document's bytes as a file brings them: read, defined in the
// engine as the start of the program defines it and as saving a new function
// does, called, then written back and read again. The written document must
// read back the same four texts, but for the one empty line that reading adds
// behind the expression and behind the description in every cycle of reading
// and saving.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "customfunctions/cfd_document.h"
#include "engine/engine.h"

namespace {

using tessarondel::CustomFunctionDocument;
using tessarondel::EngineState;

void Call(EngineState& state, const std::u16string& name) {
    for (const std::u16string_view arguments : {u"", u"(1)", u"(1,2)", u"(x,2,3)"}) {
        tessarondel::EvaluateText(state, name + std::u16string(arguments));
        if (!std::isfinite(state.LastAnswer)) std::abort();
    }
}

void Define(const CustomFunctionDocument& document) {
    EngineState loaded;
    loaded.ApproximateBits = -1;
    tessarondel::DefineDocument(loaded, document);
    Call(loaded, document.Name);

    EngineState saved;
    saved.ApproximateBits = -1;
    tessarondel::DefineCustomFunction(saved, document.Name, document.ParameterText, document.Expression,
                                      document.Description);
    Call(saved, document.Name);
}

void CheckRoundTrip(const CustomFunctionDocument& document) {
    const auto again = tessarondel::ParseDocument(tessarondel::FormatDocument(document));
    if (!again || again->Name != document.Name || again->ParameterText != document.ParameterText ||
        again->Expression != document.Expression + u"\r\n" || again->Description != document.Description + u"\r\n") {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto document = tessarondel::ParseDocument(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!document) return 0;
    Define(*document);
    CheckRoundTrip(*document);
    return 0;
}
