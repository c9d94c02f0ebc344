#pragma once

#include <array>
#include <string>
#include <string_view>

#include "services/settings_store.h"

namespace tessarondel {

// The texts the program holds for the whole run: the network settings of
// section Option and the window state of section FormInfo.
struct HeldSettings {
    std::u16string ProxyState;
    std::u16string ProxyName;
    std::u16string ProxyPort;
    std::u16string ProxyUserName;
    std::u16string ProxyPassword;
    std::u16string X;
    std::u16string Y;
    std::u16string EL;
    std::u16string IP;
    std::u16string QR;
    std::u16string SOT;
};

inline constexpr std::u16string_view ApplicationName = u"Tessarondel";
inline constexpr std::u16string_view OptionSection = u"Option";
inline constexpr std::u16string_view FormInfoSection = u"FormInfo";

// One stored setting: where it lives, what a missing key reads as, whether the
// read value is trimmed, and which held text carries it.
struct SettingDefinition {
    std::u16string_view Section;
    std::u16string_view Key;
    std::u16string_view Default;
    bool TrimmedOnRead;
    std::u16string HeldSettings::*Held;
};

// Every key of the store, in the order LoadSettings reads them.
inline const std::array<SettingDefinition, 11> SettingsTable = {{
    {OptionSection, u"State", u"0", false, &HeldSettings::ProxyState},
    {OptionSection, u"Proxy", u"", false, &HeldSettings::ProxyName},
    {OptionSection, u"Remoteport", u"80", false, &HeldSettings::ProxyPort},
    {OptionSection, u"Username", u"", false, &HeldSettings::ProxyUserName},
    {OptionSection, u"Password", u"", false, &HeldSettings::ProxyPassword},
    {FormInfoSection, u"x", u"None", true, &HeldSettings::X},
    {FormInfoSection, u"y", u"None", true, &HeldSettings::Y},
    {FormInfoSection, u"EL", u"1", true, &HeldSettings::EL},
    {FormInfoSection, u"IP", u"1", true, &HeldSettings::IP},
    {FormInfoSection, u"QR", u"1", true, &HeldSettings::QR},
    {FormInfoSection, u"SOT", u"0", true, &HeldSettings::SOT},
}};

// What a first run holds: every setting at its default.
HeldSettings DefaultSettings();

HeldSettings LoadSettings(const SettingsStore& store);

// Blanks (code 32) off both ends; tabs and line ends stay.
std::u16string TrimBlanks(std::u16string_view text);

}  // namespace tessarondel
