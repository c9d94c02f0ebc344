#include "cli/completion_names.h"

#include <algorithm>

#include "engine/name_lists.h"
#include "engine/text_codec.h"
#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

// Every "{name}" of a braced list that starts with the prefix.
void AddBracedNames(std::u16string_view list, std::u16string_view prefix, std::vector<std::string>& names) {
    for (std::size_t open = list.find(u'{'); open != std::u16string_view::npos; open = list.find(u'{', open + 1)) {
        const std::size_t close = list.find(u'}', open);
        if (close == std::u16string_view::npos) return;
        const std::u16string_view name = list.substr(open + 1, close - open - 1);
        if (name.starts_with(prefix)) names.push_back(ToUtf8(name));
    }
}

}  // namespace

std::vector<std::string> CompletionNames(const EngineState& engine, std::string_view prefix) {
    const std::u16string lowered = AsciiLower(ToUtf16(prefix));  // the engine reads names lower-cased
    std::vector<std::string> names;
    for (const std::u16string_view list :
         {BuiltinFunctionList, AliasList, ConstantList, std::u16string_view(engine.VariableNames),
          std::u16string_view(engine.CustomFunctionNames)}) {
        AddBracedNames(list, lowered, names);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

}  // namespace tessarondel
