#pragma once

#include <cstdint>

namespace tessarondel {

// Window lengths are in twips, 1/1440 inch.
struct PanelGeometry {
    std::int32_t Top = 0;
    std::int32_t Height = 0;
    bool Visible = true;
};

// The column of panels of the main window and the window's height. The
// heights of the list, the calculator and the foot are the window's design
// values; the input panel's is 3360 with the Quick Reference and 2528 without.
struct PanelLayout {
    static constexpr std::int32_t kInputPanelWithQuickReference = 3360;
    static constexpr std::int32_t kInputPanelWithoutQuickReference = 2528;

    PanelGeometry ExpressionList{0, 2895, true};
    PanelGeometry Calculator{0, 2190, true};
    PanelGeometry InputPanel{0, kInputPanelWithQuickReference, true};
    PanelGeometry Form{0, 0, true};
    PanelGeometry State{0, 375, true};
    std::int32_t WindowHeight = 0;
    std::int32_t WindowWidth = 6975;
};

// Stacks the visible panels top-down with the window's fixed gaps and sets the
// window's height; the width never changes.
void ArrangePanels(PanelLayout& layout);

}  // namespace tessarondel
