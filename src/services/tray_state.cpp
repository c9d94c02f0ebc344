#include "services/tray_state.h"

namespace tessarondel {

void TrayState::Load() {
    windowShownState_ = 1;
    proxyDialogOpen_ = false;
}

TrayAction TrayState::Toggle() {
    windowShownState_ = (windowShownState_ + 1) % 2;
    return windowShownState_ != 0 ? TrayAction::ShowWindow : TrayAction::HideWindow;
}

TrayAction TrayState::OnTrayClick(TrayClick click) {
    if (proxyDialogOpen_) return TrayAction::None;
    switch (click) {
        case TrayClick::LeftPress:
            return Toggle();
        case TrayClick::RightRelease:
            return TrayAction::OpenMainMenu;
        default:
            return TrayAction::None;
    }
}

TrayAction TrayState::OnFrameClose(bool trayAvailable) {
    if (!trayAvailable) return TrayAction::MinimiseWindow;
    return Toggle();
}

}  // namespace tessarondel
