#pragma once

#include <QPageLayout>

#include "settings/settings.h"

namespace tamo {

// The paper of `tempPaperSize` (0 or anything unknown: US Letter, 1 US Legal, 2 A4, 3 JIS B4,
// 4 JIS B5) with no margins when `printBorderless` is on, else 40 points at the top and the sides
// and 60 at the bottom.
QPageLayout pageLayoutFor(int paperSize, bool borderless);
QPageLayout pageLayoutFromSettings(const Settings& settings);

}  // namespace tamo
