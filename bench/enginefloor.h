#pragma once

#include <QPageLayout>
#include <QStringList>

namespace tamo::bench {

// The web engine alone, as the floor under the command-line figures: each HTML file is loaded
// and printed to FILE.pdf beside it, `pagesAtOnce` pages at a time, and nothing else is done (no
// store, no settings, no checks). Ends the process as the commands do, without the engine's
// shutdown. Call with the application object made after `prepareRendering`.
[[noreturn]] void printWithTheEngineAlone(const QStringList& htmlFiles, int pagesAtOnce,
                                          const QPageLayout& layout);

}  // namespace tamo::bench
