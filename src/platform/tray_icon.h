#pragma once

#include <QObject>
#include <QSystemTrayIcon>
#include <functional>

#include "services/tray_state.h"

namespace tessarondel {

// The icon in the desktop's notification area, tip "Tessarondel". It reports
// the mouse and decides nothing itself.
class TrayIcon final : public QObject {
    Q_OBJECT
public:
    explicit TrayIcon(std::function<void(TrayClick)> onClick, QObject* parent = nullptr);

    // Whether the desktop has a notification area at all.
    static bool Available() { return QSystemTrayIcon::isSystemTrayAvailable(); }
    void AddTrayIcon();
    void RemoveTrayIcon();
    bool Shown() const { return icon_.isVisible(); }

private:
    QSystemTrayIcon icon_;
    std::function<void(TrayClick)> onClick_;
};

}  // namespace tessarondel
