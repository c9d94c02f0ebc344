#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "services/settings_store.h"
#include "services/settings_table.h"

namespace tessarondel {

// How the transfer connects: the desktop's default connection or a named proxy.
enum class AccessType : int { Default = 0, NamedProxy = 2 };

// The settings of the one transfer object. A fresh object uses the default
// connection, port 80 and a 60 s time-out, whatever the store holds.
struct TransferSettings {
    AccessType Access = AccessType::Default;
    std::u16string Proxy;
    std::u16string UserName;
    std::u16string Password;
    std::int16_t RemotePort = 80;
    std::chrono::milliseconds TransferTimeout{60000};
};

// Rounds to the nearest whole number, ties to even; nullopt outside 16 bits.
std::optional<std::int16_t> ToInt16HalfEven(double value);

// Configures the transfer and stores the five Option keys. Gives up silently
// at the first failure (a port outside 16 bits): what was set on the transfer
// before it stays set, and nothing is stored. True when it ran to the end.
bool ApplyProxySettings(TransferSettings& transfer, std::u16string_view state, std::u16string_view proxy,
                        std::u16string_view port, std::u16string_view userName, std::u16string_view password,
                        SettingsStore& store);

// The same for the held texts, as the options dialog's OK passes them.
bool ApplyProxySettings(TransferSettings& transfer, const ProxySettingsTexts& texts, SettingsStore& store);

// Writes FormInfo in its order (and into the held texts), then Option through ApplyProxySettings.
void SaveSettings(const FormInfoTexts& window, HeldSettings& held, TransferSettings& transfer, SettingsStore& store);

}  // namespace tessarondel
