#pragma once

namespace tamo {

class MainWindow;

// The Help menu: the manual, opened locally, and the About box. Installed last, so that it stays
// the last menu.
void installHelpMenu(MainWindow& window);

}  // namespace tamo
