// The settings store's texts as a start reads them, through the main window's
// load and an exit. The first two bytes say which of the twelve keys the store
// holds (bit i for the i-th key of SettingsTable); the rest, UTF-8, split at
// 0x1E, gives their texts in table order.
//
// Rules: a position is a finite number, or centred for "None"; a text without
// a digit gives position 0 and an unchecked box; a plain decimal number gives
// that position and a box checked when its whole part is not 0. The exit
// writes number texts and flags "0"/"1" that the next start reads. The Option
// keys are stored back exactly when the port rounds (half to even) into 16
// bits; otherwise the store keeps what it held.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/text_codec.h"
#include "numbers/number_text.h"
#include "services/proxy_settings.h"
#include "services/settings_table.h"

namespace {

using namespace tessarondel;

void Check(bool rule) {
    if (!rule) std::abort();
}

struct NoDesktop final : MessageBox, Clipboard, SaveFileDialog, ShellOpener {
    MessageAnswer Show(std::u16string_view, std::u16string_view, MessageButtons, MessageIcon) override {
        return MessageAnswer::Ok;
    }
    std::u16string GetText() override { return {}; }
    void SetText(std::u16string_view) override {}
    std::u16string AskSaveFileName(std::u16string_view) override { return {}; }
    bool ShellOpen(std::u16string_view) override { return true; }
};

constexpr ScreenSize Screen{19200, 10800};

// A window loaded from the settings; centring uses its size before the load
// restores the panels.
struct Start {
    EngineState engine;
    NoDesktop desktop;
    MainWindowModel window{engine, {desktop, desktop, desktop, desktop}, {}};
    double centredLeft = (Screen.Width - window.Layout().WindowWidth) / 2.0;
    double centredTop = (Screen.Height - window.Layout().WindowHeight) / 2.0;
    explicit Start(const FormInfoTexts& settings) { window.Load(settings, Screen); }
};

// The value of a text that is one plain decimal number, blanks around it
// allowed; nothing for any other text.
std::optional<double> PlainNumber(std::u16string_view text) {
    const std::string utf8 = ToUtf8(text);
    const std::size_t first = utf8.find_first_not_of(' ');
    const std::size_t last = utf8.find_last_not_of(' ');
    if (first == std::string::npos || utf8.find_first_not_of("0123456789.eE+- ") != std::string::npos) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(utf8.data() + first, utf8.data() + last + 1, value);
    if (error != std::errc() || end != utf8.data() + last + 1) return std::nullopt;
    return value;
}

bool HasDigit(std::u16string_view text) { return text.find_first_of(u"0123456789") != std::u16string_view::npos; }

void CheckPosition(std::u16string_view text, double position, double centred) {
    Check(std::isfinite(position));
    if (text == u"None") return Check(position == centred);
    if (!HasDigit(text)) return Check(position == 0);
    if (const auto value = PlainNumber(text)) Check(position == *value);
}

void CheckBox(std::u16string_view text, bool checked) {
    if (!HasDigit(text)) return Check(!checked);
    if (const auto value = PlainNumber(text)) Check(checked == (std::floor(*value) != 0));
}

void CheckStart(const FormInfoTexts& settings, const Start& start) {
    const MainWindowModel& window = start.window;
    CheckPosition(settings.X, window.WindowLeft(), start.centredLeft);
    CheckPosition(settings.Y, window.WindowTop(), start.centredTop);
    CheckBox(settings.EL, window.Option(OptionExpressionList));
    CheckBox(settings.IP, window.Option(OptionInputPanel));
    CheckBox(settings.SOT, window.Option(OptionStayOnTop));
    CheckBox(settings.QR, window.QuickRefShown());
}

bool IsNumberText(std::u16string_view text) {
    if (!text.empty() && text[0] == u'-') text.remove_prefix(1);
    return IsNumericText(text);
}

// Whether the port text rounds, half to even, into 16 bits; nothing when the
// text is no plain number.
std::optional<bool> PortFits(std::u16string_view port) {
    const std::optional<double> value = HasDigit(port) ? PlainNumber(port) : 0.0;
    if (!value) return std::nullopt;
    double whole = std::floor(*value);
    const double rest = *value - whole;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0)) whole += 1;
    return whole >= -32768 && whole <= 32767;
}

void CheckExit(const MemorySettingsStore& before, const MemorySettingsStore& after, const HeldSettings& held,
               const FormInfoTexts& written) {
    Check(IsNumberText(written.X) && IsNumberText(written.Y));
    for (const std::u16string& flag : {written.EL, written.IP, written.QR, written.SOT}) {
        Check(flag == u"0" || flag == u"1");
    }
    // The five keys of the transfer; the others of the section stay as they are.
    const std::pair<std::u16string_view, const std::u16string*> transferKeys[] = {
        {u"State", &held.Network.State},
        {u"Proxy", &held.Network.Proxy},
        {u"Remoteport", &held.Network.Port},
        {u"Username", &held.Network.UserName},
        {u"Password", &held.Network.Password}};
    bool storedBack = true;
    bool unchanged = true;
    for (const auto& [key, text] : transferKeys) {
        const std::u16string stored = after.Read(OptionSection, key, u"\x1f(none)");
        storedBack = storedBack && stored == *text;
        unchanged = unchanged && stored == before.Read(OptionSection, key, u"\x1f(none)");
    }
    const std::optional<bool> fits = PortFits(held.Network.Port);
    Check(storedBack || unchanged);
    if (fits) Check(*fits ? storedBack : unchanged);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const unsigned present = data[0] | (data[1] << 8);
    std::string_view rest(reinterpret_cast<const char*>(data + 2), size - 2);
    MemorySettingsStore store;
    for (std::size_t i = 0; i < SettingsTable.size(); ++i) {
        if ((present >> i & 1) == 0) continue;
        const std::size_t separator = rest.find('\x1e');
        store.Write(SettingsTable[i].Section, SettingsTable[i].Key, ToUtf16(rest.substr(0, separator)));
        rest.remove_prefix(separator == std::string_view::npos ? rest.size() : separator + 1);
    }

    HeldSettings held = LoadSettings(store);
    Start first(held.Window);
    CheckStart(held.Window, first);

    const MemorySettingsStore before = store;
    TransferSettings transfer;
    const FormInfoTexts written = first.window.CurrentFormInfo();
    SaveSettings(written, held, transfer, store);
    CheckExit(before, store, held, written);

    // The next start reads what this exit wrote.
    Check(LoadSettings(store).Window == written);
    return 0;
}
