#include "platform/tray_icon.h"

#include "platform/app_icon.h"

namespace tessarondel {

namespace {

// Qt reports a finished left click as Trigger and a right click as Context;
// those stand for the left press and the right release.
TrayClick ToTrayClick(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
        case QSystemTrayIcon::Trigger: return TrayClick::LeftPress;
        case QSystemTrayIcon::Context: return TrayClick::RightRelease;
        case QSystemTrayIcon::DoubleClick: return TrayClick::DoubleClick;
        default: return TrayClick::LeftRelease;
    }
}

}  // namespace

TrayIcon::TrayIcon(std::function<void(TrayClick)> onClick, QObject* parent)
    : QObject(parent), onClick_(std::move(onClick)) {
    icon_.setIcon(AppIcon());
    icon_.setToolTip(QStringLiteral("Tessarondel"));
    connect(&icon_, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) { onClick_(ToTrayClick(reason)); });
}

void TrayIcon::AddTrayIcon() { icon_.show(); }

void TrayIcon::RemoveTrayIcon() { icon_.hide(); }

}  // namespace tessarondel
