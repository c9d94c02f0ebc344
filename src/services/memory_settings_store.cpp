#include "services/settings_store.h"

namespace tessarondel {

std::u16string MemorySettingsStore::Read(std::u16string_view section, std::u16string_view key,
                                         std::u16string_view fallback) const {
    const auto found = values_.find({std::u16string(section), std::u16string(key)});
    return found == values_.end() ? std::u16string(fallback) : found->second;
}

void MemorySettingsStore::Write(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    values_[{std::u16string(section), std::u16string(key)}] = std::u16string(value);
    std::u16string entry(section);
    entry.append(u"/").append(key).append(u"=").append(value);
    writeLog_.push_back(std::move(entry));
}

bool MemorySettingsStore::Contains(std::u16string_view section, std::u16string_view key) const {
    return values_.contains({std::u16string(section), std::u16string(key)});
}

}  // namespace tessarondel
