#include "services/settings_table.h"

#include "numbers/text_rules.h"

namespace tessarondel {

HeldSettings DefaultSettings() {
    HeldSettings held;
    for (const auto& setting : SettingsTable) setting.Held(held) = std::u16string(setting.Default);
    return held;
}

HeldSettings LoadSettings(const SettingsStore& store) {
    HeldSettings held;
    for (const auto& setting : SettingsTable) {
        const std::u16string value = store.Read(setting.Section, setting.Key, setting.Default);
        setting.Held(held) = setting.TrimmedOnRead ? std::u16string(TrimBlanks(value)) : value;
    }
    return held;
}

}  // namespace tessarondel
