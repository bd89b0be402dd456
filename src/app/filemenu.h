#pragma once

namespace tamo {

class DataInterchange;
class MainWindow;

// Puts the data actions (exports, backups, restores, recovery) into the window's File menu,
// before Quit.
void installDataMenu(MainWindow& window, DataInterchange& operations);

}  // namespace tamo
