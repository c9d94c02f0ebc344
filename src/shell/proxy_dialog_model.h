#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tessarondel {

// The five held texts of the settings section Option, as they stand.
struct ProxySettingsTexts {
    std::u16string State = u"0";
    std::u16string Proxy;
    std::u16string Port = u"80";
    std::u16string UserName;
    std::u16string Password;

    friend bool operator==(const ProxySettingsTexts&, const ProxySettingsTexts&) = default;
};

enum class ProxyField { Proxy, Port, UserName, Password };

// The setting that keeps the main window's session between runs: "1" is on.
inline bool KeepHistoryOn(std::u16string_view text) { return text == u"1"; }

// frmProxy ("Option"): edits the held texts, which change at once when "Use
// Proxy" is clicked; Cancel puts the copy taken at opening back. The network
// side (ApplyProxySettings) is given as a function.
class ProxyDialogModel {
public:
    static constexpr const char16_t* kTitle = u"Option";
    static constexpr const char16_t* kUseProxyCaption = u"Use Proxy";
    static constexpr const char16_t* kFrameCaption = u"Proxy Options";
    static constexpr const char16_t* kProxyLabel = u"Proxy:";
    static constexpr const char16_t* kPortLabel = u"Port:";
    static constexpr const char16_t* kUserNameLabel = u"UserName:";
    static constexpr const char16_t* kPasswordLabel = u"Password:";
    static constexpr char16_t kPasswordMask = u'*';
    static constexpr const char16_t* kOkCaption = u"OK";
    static constexpr const char16_t* kCancelCaption = u"Cancel";
    static constexpr const char16_t* kDefaultCaption = u"Default";
    static constexpr const char16_t* kHistoryFrameCaption = u"History";
    static constexpr const char16_t* kKeepHistoryCaption = u"Keep the history between sessions";

    using ApplyFunction = std::function<void(const ProxySettingsTexts&)>;
    using OpenFlagFunction = std::function<void(bool open)>;

    ProxyDialogModel(ProxySettingsTexts& held, ApplyFunction apply, OpenFlagFunction setDialogOpen);

    // "Keep the history between sessions", a setting of its own: its box shows
    // the held text when the dialog opens, and OK and Default store a changed
    // box (Default leaves the box as it is); Cancel forgets it.
    using StoreKeepHistoryFunction = std::function<void(bool keep)>;
    void AttachKeepHistory(std::u16string& held, StoreKeepHistoryFunction store);
    bool KeepHistoryChecked() const { return keepHistory_; }
    void ClickKeepHistory(bool checked) { keepHistory_ = checked; }

    // Load: boxes from the held texts, a copy for Cancel, the check and frame.
    void Open();
    bool IsOpen() const { return open_; }

    const std::u16string& FieldText(ProxyField field) const;
    void SetFieldText(ProxyField field, std::u16string text);
    bool UseProxyChecked() const { return useProxy_; }
    bool FrameVisible() const { return useProxy_; }

    void ClickUseProxy(bool checked);
    void ClickOk();
    void ClickCancel();
    void ClickDefault();
    // Any close, by the frame too: a changed state stays held, unstored.
    void Close();

private:
    std::u16string& Field(ProxyField field);
    void StoreKeepHistory();

    ProxySettingsTexts& held_;
    ApplyFunction apply_;
    OpenFlagFunction setDialogOpen_;
    ProxySettingsTexts copy_;
    ProxySettingsTexts boxes_;
    bool useProxy_ = false;
    bool open_ = false;
    std::u16string* keepHistoryHeld_ = nullptr;
    StoreKeepHistoryFunction storeKeepHistory_;
    bool keepHistory_ = false;
};

}  // namespace tessarondel
