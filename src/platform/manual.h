#pragma once

#include <QString>
#include <QUrl>

namespace tamo {

// Where the installed files of Tamo are, beside the executable: the build tree is laid out like
// an installation prefix (bin/, share/), so a build runs the same way an installed Tamo does.
QString sharedDataFolder();

// The user manual, a local HTML page installed with Tamo; an empty URL when it is missing.
QUrl manualUrl();

}  // namespace tamo
