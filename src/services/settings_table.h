#pragma once

#include <array>
#include <string>
#include <string_view>

#include "services/settings_store.h"
#include "shell/main_window_model.h"
#include "shell/proxy_dialog_model.h"

namespace tessarondel {

// The texts the program holds for the whole run: the network settings of
// section Option and the window state of section FormInfo.
struct HeldSettings {
    ProxySettingsTexts Network;
    FormInfoTexts Window;
    std::u16string KeepHistory = u"0";  // the main window's session is kept between runs when "1"
};

inline constexpr std::u16string_view ApplicationName = u"Tessarondel";
inline constexpr std::u16string_view OptionSection = u"Option";
inline constexpr std::u16string_view FormInfoSection = u"FormInfo";
inline constexpr std::u16string_view KeepHistoryKey = u"KeepHistory";

// One stored setting: where it lives, what a missing key reads as, whether the
// read value is trimmed, and which held text carries it.
struct SettingDefinition {
    std::u16string_view Section;
    std::u16string_view Key;
    std::u16string_view Default;
    bool TrimmedOnRead;
    std::u16string& (*Held)(HeldSettings&);
};

// Every key of the store, in the order LoadSettings reads them.
inline const std::array<SettingDefinition, 12> SettingsTable = {{
    {OptionSection, u"State", u"0", false, [](HeldSettings& h) -> std::u16string& { return h.Network.State; }},
    {OptionSection, u"Proxy", u"", false, [](HeldSettings& h) -> std::u16string& { return h.Network.Proxy; }},
    {OptionSection, u"Remoteport", u"80", false, [](HeldSettings& h) -> std::u16string& { return h.Network.Port; }},
    {OptionSection, u"Username", u"", false,
     [](HeldSettings& h) -> std::u16string& { return h.Network.UserName; }},
    {OptionSection, u"Password", u"", false,
     [](HeldSettings& h) -> std::u16string& { return h.Network.Password; }},
    {OptionSection, KeepHistoryKey, u"0", false, [](HeldSettings& h) -> std::u16string& { return h.KeepHistory; }},
    {FormInfoSection, u"x", u"None", true, [](HeldSettings& h) -> std::u16string& { return h.Window.X; }},
    {FormInfoSection, u"y", u"None", true, [](HeldSettings& h) -> std::u16string& { return h.Window.Y; }},
    {FormInfoSection, u"EL", u"1", true, [](HeldSettings& h) -> std::u16string& { return h.Window.EL; }},
    {FormInfoSection, u"IP", u"1", true, [](HeldSettings& h) -> std::u16string& { return h.Window.IP; }},
    {FormInfoSection, u"QR", u"1", true, [](HeldSettings& h) -> std::u16string& { return h.Window.QR; }},
    {FormInfoSection, u"SOT", u"0", true, [](HeldSettings& h) -> std::u16string& { return h.Window.SOT; }},
}};

// What a first run holds: every setting at its default.
HeldSettings DefaultSettings();

// Option first, then FormInfo, in the order of the table.
HeldSettings LoadSettings(const SettingsStore& store);

}  // namespace tessarondel
