#include "platform/app_icon.h"

#include <QPainter>
#include <QPixmap>

namespace tessarondel {

namespace {

// Drawn from shapes only, so no font has to be loaded for it at start.
QPixmap DrawIcon(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1E, 0x3A, 0x5F));
    painter.drawRoundedRect(QRectF(0, 0, size, size), size * 0.18, size * 0.18);
    painter.setBrush(QColor(0xFF, 0xFF, 0xC0));
    const double u = size / 16.0;
    painter.drawRect(QRectF(2 * u, 3 * u, 7 * u, 2 * u));    // the bar of the T
    painter.drawRect(QRectF(4.5 * u, 3 * u, 2 * u, 10 * u));  // its stem
    painter.drawRect(QRectF(10 * u, 6 * u, 4 * u, 1.5 * u));  // the equals sign
    painter.drawRect(QRectF(10 * u, 9.5 * u, 4 * u, 1.5 * u));
    return pixmap;
}

}  // namespace

QIcon AppIcon() {
    static const QIcon icon = [] {
        QIcon drawn;
        for (int size : {16, 32, 64}) drawn.addPixmap(DrawIcon(size));
        return drawn;
    }();
    return icon;
}

}  // namespace tessarondel
