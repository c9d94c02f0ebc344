#pragma once

#include <QIcon>

namespace tessarondel {

// The program's icon, a light "T=" on a dark rounded square, drawn at start
// so the executable needs no image files.
QIcon AppIcon();

}  // namespace tessarondel
