#pragma once

#include <QString>
#include <functional>

#include "platform/error.h"

namespace tamo {

// Hands a URL or a file to the application the desktop associates with it, through `xdg-open`.
// `done` is called once, on this thread, when the outcome is known: xdg-open could not be started
// or ended with an error (no application takes the file, ...), or it ended well or is still
// running after `patienceMs` (without a desktop environment it waits for the application it
// started, which counts as handed over).
using OpenDone = std::function<void(const Result<void>& opened)>;
void openWithDesktop(const QString& target, OpenDone done, int patienceMs = 3000);

// The same, waiting for the outcome in a local event loop.
Result<void> openWithDesktopAndWait(const QString& target, int patienceMs = 3000);

}  // namespace tamo
