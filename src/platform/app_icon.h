#pragma once

#include <QIcon>

namespace tessarondel {

// The program's icon, drawn at start so the executable needs no image files:
// a dark rounded square with a light "T=" on it.
QIcon AppIcon();

}  // namespace tessarondel
