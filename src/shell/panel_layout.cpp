#include "shell/panel_layout.h"

namespace tessarondel {

void ArrangePanels(PanelLayout& layout) {
    layout.ExpressionList.Top = 8;
    if (layout.ExpressionList.Visible) {
        layout.Calculator.Top = layout.ExpressionList.Top + layout.ExpressionList.Height + 15;
    } else {
        layout.Calculator.Top = layout.ExpressionList.Top;
    }
    layout.InputPanel.Top = layout.Calculator.Top + layout.Calculator.Height;
    if (layout.InputPanel.Visible) {
        layout.Form.Height = layout.InputPanel.Top + layout.InputPanel.Height + 60;
    } else {
        layout.Form.Height = layout.Calculator.Top + layout.Calculator.Height + 60;
    }
    layout.Form.Top = layout.ExpressionList.Top;
    layout.WindowHeight = layout.Form.Top + layout.Form.Height + layout.State.Height + 520;
    layout.State.Top = layout.Form.Top + layout.Form.Height + 50;
}

}  // namespace tessarondel
