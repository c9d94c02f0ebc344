#pragma once

#include <cstdint>

class QWidget;

namespace tessarondel {

// Window lengths of the design are in twips, 1/1440 inch. They become logical
// pixels through the screen's logical DPI, so a HiDPI screen scales them
// together with the fonts.
class TwipScale {
public:
    explicit TwipScale(double logicalDpi) : pixelsPerTwip_(logicalDpi / 1440.0) {}
    // The scale of the screen the widget is on (the primary screen before it is shown).
    static TwipScale For(const QWidget* widget);

    int ToPixels(double twips) const;
    double ToTwips(int pixels) const;

private:
    double pixelsPerTwip_;
};

}  // namespace tessarondel

namespace tessarondel {

// The design's window sizes include the frame and title bar; the desktop
// draws its own, so the client area is the design size less these.
inline constexpr int FrameWidthTwips = 120;
inline constexpr int FrameHeightTwips = 400;

}  // namespace tessarondel
