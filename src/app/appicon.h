#pragma once

#include <QIcon>

namespace tamo {

// Tamo's icon: the installed theme icon where there is one, else the drawings compiled in (the
// small-grid drawing below 32 pixels, where the full one blurs).
QIcon applicationIcon();

}  // namespace tamo
