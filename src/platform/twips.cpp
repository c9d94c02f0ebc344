#include "platform/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <cmath>

namespace tessarondel {

TwipScale TwipScale::For(const QWidget* widget) {
    const QScreen* screen = widget != nullptr ? widget->screen() : nullptr;
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    return TwipScale(screen != nullptr ? screen->logicalDotsPerInch() : 96.0);
}

int TwipScale::ToPixels(double twips) const { return static_cast<int>(std::lround(twips * pixelsPerTwip_)); }

double TwipScale::ToTwips(int pixels) const { return std::round(pixels / pixelsPerTwip_); }

}  // namespace tessarondel
