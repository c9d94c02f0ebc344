#include "services/settings_table.h"

namespace tessarondel {

std::u16string TrimBlanks(std::u16string_view text) {
    const auto first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos) return {};
    const auto last = text.find_last_not_of(u' ');
    return std::u16string(text.substr(first, last - first + 1));
}

HeldSettings DefaultSettings() {
    HeldSettings held;
    for (const auto& setting : SettingsTable) held.*setting.Held = std::u16string(setting.Default);
    return held;
}

HeldSettings LoadSettings(const SettingsStore& store) {
    HeldSettings held;
    for (const auto& setting : SettingsTable) {
        auto value = store.Read(setting.Section, setting.Key, setting.Default);
        held.*setting.Held = setting.TrimmedOnRead ? TrimBlanks(value) : std::move(value);
    }
    return held;
}

}  // namespace tessarondel
