#include "services/proxy_settings.h"

#include <cmath>

#include "numbers/number_text.h"
#include "numbers/run_failure.h"

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

namespace {

std::u16string CheckText(bool checked) { return checked ? u"1" : u"0"; }

}  // namespace

void SaveSettings(const WindowStateAtExit& window, HeldSettings& held, TransferSettings& transfer,
                  SettingsStore& store) {
    held.X = TrimBlanks(NumberText(window.Left));
    held.Y = TrimBlanks(NumberText(window.Top));
    held.EL = CheckText(window.ExpressionList);
    held.IP = CheckText(window.InputPanel);
    held.QR = CheckText(window.QuickReference);
    held.SOT = CheckText(window.StayOnTop);
    for (const auto& setting : SettingsTable) {
        if (setting.Section == FormInfoSection) store.Write(setting.Section, setting.Key, held.*setting.Held);
    }
    ApplyProxySettings(transfer, held.ProxyState, held.ProxyName, held.ProxyPort, held.ProxyUserName,
                       held.ProxyPassword, store);
}

}  // namespace tessarondel
