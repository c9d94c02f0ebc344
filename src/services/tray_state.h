#pragma once

namespace tessarondel {

// What the tray icon's mouse does, as the toolkit reports it.
enum class TrayClick { LeftPress, LeftRelease, RightPress, RightRelease, DoubleClick };

// What the window does in answer: the toggle of the main menu's first item,
// the main pop-up menu, or nothing.
enum class TrayAction { None, Toggle, OpenMainMenu, Minimise };

// A left press toggles, a right release opens the main menu, anything else
// does nothing; while the options dialog is open nothing happens at all.
TrayAction DecideTrayAction(TrayClick click, bool proxyDialogOpen);

// A close by the frame is always refused and toggles the window to the tray.
// Where the desktop offers no tray the window is minimised instead, so that it
// stays reachable.
TrayAction DecideFrameCloseAction(bool trayAvailable);

}  // namespace tessarondel
