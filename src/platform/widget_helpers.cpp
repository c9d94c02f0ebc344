#include "platform/widget_helpers.h"

#include <QMenu>
#include <QToolButton>
#include <array>

#include "platform/qt_text.h"

namespace tessarondel {

void NameByToolTip(QWidget* widget, const char16_t* toolTip) {
    widget->setToolTip(ToQString(toolTip));
    widget->setAccessibleName(ToQString(toolTip));
}

QToolButton* MakePictureButton(const QString& glyph, const char16_t* toolTip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setText(glyph);
    button->setAutoRaise(true);
    NameByToolTip(button, toolTip);
    return button;
}

void FillMenu(QMenu& menu, const Menu& items, const std::function<void(int)>& choose) {
    menu.clear();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const MenuItem& item = items[i];
        if (item.IsSeparator()) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(ToQString(item.Caption));
        if (item.Checked) {
            action->setCheckable(true);
            action->setChecked(true);
        }
        const int index = static_cast<int>(i);
        QObject::connect(action, &QAction::triggered, &menu, [choose, index] { choose(index); });
    }
}

QColor ClassicPaletteColour(int index) {
    static constexpr std::array<QRgb, 16> palette = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                                     0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                                     0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    return QColor::fromRgb(palette.at(static_cast<std::size_t>(index)));
}

}  // namespace tessarondel
