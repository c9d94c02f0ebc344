#include "services/proxy_settings.h"

#include <cmath>

#include "numbers/number_text.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"

namespace tessarondel {

std::optional<std::int16_t> ToInt16HalfEven(double value) {
    const double rounded = std::nearbyint(value);  // the default rounding mode sends ties to even
    if (!(rounded >= INT16_MIN && rounded <= INT16_MAX)) return std::nullopt;
    return static_cast<std::int16_t>(rounded);
}

bool ApplyProxySettings(TransferSettings& transfer, std::u16string_view state, std::u16string_view proxy,
                        std::u16string_view port, std::u16string_view userName, std::u16string_view password,
                        SettingsStore& store) {
    transfer.Access = TrimBlanks(state) == u"0" ? AccessType::Default : AccessType::NamedProxy;
    transfer.Proxy = proxy;
    transfer.UserName = userName;
    transfer.Password = password;
    std::optional<std::int16_t> remotePort;
    try {
        remotePort = ToInt16HalfEven(LeadingNumber(port));
    } catch (const OverflowFailure&) {
    }
    if (!remotePort) return false;
    transfer.RemotePort = *remotePort;

    store.Write(OptionSection, u"State", state);
    store.Write(OptionSection, u"Proxy", proxy);
    store.Write(OptionSection, u"Remoteport", port);
    store.Write(OptionSection, u"Username", userName);
    store.Write(OptionSection, u"Password", password);
    return true;
}

bool ApplyProxySettings(TransferSettings& transfer, const ProxySettingsTexts& texts, SettingsStore& store) {
    return ApplyProxySettings(transfer, texts.State, texts.Proxy, texts.Port, texts.UserName, texts.Password, store);
}

void SaveSettings(const FormInfoTexts& window, HeldSettings& held, TransferSettings& transfer, SettingsStore& store) {
    held.Window = window;
    for (const auto& setting : SettingsTable) {
        if (setting.Section == FormInfoSection) store.Write(setting.Section, setting.Key, setting.Held(held));
    }
    ApplyProxySettings(transfer, held.Network, store);
}

}  // namespace tessarondel
