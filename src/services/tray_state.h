#pragma once

#include <cstdint>

namespace tessarondel {

// What the tray icon's mouse does, as the toolkit reports it.
enum class TrayClick { LeftPress, LeftRelease, RightPress, RightRelease, DoubleClick };

// What the window must do in answer to a tray click or a close by the frame.
enum class TrayAction { None, ShowWindow, HideWindow, OpenMainMenu, MinimiseWindow };

// The small state that keeps the tray icon, the main window and the options
// dialog together.
class TrayState {
public:
    std::int32_t WindowShownState() const { return windowShownState_; }
    bool ProxyDialogOpen() const { return proxyDialogOpen_; }
    void SetProxyDialogOpen(bool open) { proxyDialogOpen_ = open; }

    // The window's load: shown, no dialog open.
    void Load();

    // The toggle: a pure flip of the held state, not of what is on screen.
    TrayAction Toggle();

    // A left press toggles, a right release opens the main menu, anything else
    // does nothing; while the options dialog is open nothing at all happens.
    TrayAction OnTrayClick(TrayClick click);

    // A close by the frame is always refused. It toggles, so the window goes to
    // the tray; without a tray it is minimised instead, so that it stays reachable.
    TrayAction OnFrameClose(bool trayAvailable);

private:
    std::int32_t windowShownState_ = 0;
    bool proxyDialogOpen_ = false;
};

}  // namespace tessarondel
