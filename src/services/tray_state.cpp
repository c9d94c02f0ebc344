#include "services/tray_state.h"

namespace tessarondel {

TrayAction DecideTrayAction(TrayClick click, bool proxyDialogOpen) {
    if (proxyDialogOpen) return TrayAction::None;
    if (click == TrayClick::LeftPress) return TrayAction::Toggle;
    if (click == TrayClick::RightRelease) return TrayAction::OpenMainMenu;
    return TrayAction::None;
}

TrayAction DecideFrameCloseAction(bool trayAvailable) {
    return trayAvailable ? TrayAction::Toggle : TrayAction::Minimise;
}

}  // namespace tessarondel
