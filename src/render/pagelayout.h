#pragma once

#include <QPageLayout>
#include <QString>

#include "settings/settings.h"

namespace tamo {

// The paper of `tempPaperSize` (0 or anything unknown: US Letter, 1 US Legal, 2 A4, 3 JIS B4,
// 4 JIS B5) with no margins when `printBorderless` is on, else 40 points at the top and the sides
// and 60 at the bottom.
QPageLayout pageLayoutFor(int paperSize, bool borderless);
QPageLayout pageLayoutFromSettings(const Settings& settings);

// Whether a design's style sheet lays out the sheet itself (`@page { margin: … }`): it measures
// its positions from the edge of the paper, as the window-envelope letters must.
bool designSetsPageMargins(const QString& css);
// The paper of the settings for a page of that design: without margins of Tamo's own when the
// design sets its page margins itself, else as the settings say.
QPageLayout pageLayoutForDesign(const Settings& settings, const QString& css);

}  // namespace tamo
