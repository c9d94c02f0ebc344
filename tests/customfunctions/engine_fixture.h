#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "customfunctions/engine/function_table.h"
#include "engine/engine.h"
#include "engine/text_codec.h"
#include "table_file.h"

namespace tessarondel::testing {

struct Definition {
    std::u16string name, parameters, body;
};

// Definitions written "name(parameters)=body", several separated by " ; ".
inline std::vector<Definition> DefinitionsOf(const std::string& field) {
    std::vector<Definition> out;
    for (const std::string& text : testing_table::Split(field)) {
        const std::size_t open = text.find('('), close = text.find(")=", open);
        out.push_back({ToUtf16(text.substr(0, open)), ToUtf16(text.substr(open + 1, close - open - 1)),
                       ToUtf16(text.substr(close + 2))});
    }
    return out;
}

// A fresh engine with the boxes it would show recorded instead.
class EngineFixture {
public:
    EngineFixture() {
        state.ApproximateBits = -1;
        state.ShowMessageBox = [this](const std::u16string& text, const std::u16string&) { boxes.push_back(text); };
    }

    void DefineAll(const std::vector<Definition>& definitions) {
        for (const Definition& d : definitions) {
            ASSERT_TRUE(DefineCustomFunction(state, d.name, d.parameters, d.body, u"")) << ToUtf8(d.name);
        }
    }

    std::string Evaluate(std::u16string_view expression) { return ToUtf8(EvaluateText(state, expression)); }

    const CustomFunctionEntry& Entry(std::u16string_view name) {
        return state.CustomFunctionTable[FindCustomFunctionIndex(state, name)];
    }

    EngineState state;
    std::vector<std::u16string> boxes;
};

}  // namespace tessarondel::testing
