#include "platform/app_icon.h"

#include <QFont>
#include <QPainter>
#include <QPixmap>

namespace tessarondel {

namespace {

QPixmap DrawIcon(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0x1E, 0x3A, 0x5F));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(0, 0, size, size), size * 0.18, size * 0.18);
    painter.setPen(QColor(0xFF, 0xFF, 0xC0));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(size * 11 / 20);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QStringLiteral("T="));
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
