#pragma once

#include <QColor>
#include <QString>
#include <functional>

#include "shell/menu_item.h"

class QAbstractButton;
class QMenu;
class QToolButton;
class QWidget;

namespace tessarondel {

// A button drawn as a small picture (a glyph here) whose tool tip is also its
// accessible name, since it has no caption to be read.
QToolButton* MakePictureButton(const QString& glyph, const char16_t* toolTip, QWidget* parent);

// Sets the tool tip and makes it the accessible name, for controls without a caption.
void NameByToolTip(QWidget* widget, const char16_t* toolTip);

// Fills `menu` with the items; choosing item i calls choose(i). Separators
// can't be chosen; check marks follow the items.
void FillMenu(QMenu& menu, const Menu& items, const std::function<void(int)>& choose);

// An entry of the classic 16-colour palette (0 black, 1 blue, 4 red, 5 magenta, ...).
QColor ClassicPaletteColour(int index);

}  // namespace tessarondel
