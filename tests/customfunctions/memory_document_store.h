#pragma once

#include <map>
#include <string>
#include <vector>

#include "customfunctions/function_manager_model.h"

namespace tessarondel::testing {

// Documents in memory, so the manager's tests touch no folder.
class MemoryDocumentStore final : public FunctionDocumentStore {
public:
    FolderReadResult LoadAll() override { return loaded; }
    bool Write(const CustomFunctionDocument& document) override {
        if (failWrites) return false;
        written[document.Name] = document;
        return true;
    }
    bool Delete(std::u16string_view name) override {
        if (failDeletes) return false;
        deleted.emplace_back(name);
        return true;
    }

    FolderReadResult loaded;
    bool failWrites = false;
    bool failDeletes = false;
    std::map<std::u16string, CustomFunctionDocument> written;
    std::vector<std::u16string> deleted;
};

}  // namespace tessarondel::testing
