#pragma once

class QAction;
class QMenu;

namespace tamo {

class DataInterchange;
class MainWindow;

// Where entries go in the File menu: before the separator that leads to Quit.
QAction* fileMenuInsertionPoint(QMenu* file);

// Puts the data actions (exports, backups, restores, recovery) into the window's File menu,
// before Quit.
void installDataMenu(MainWindow& window, DataInterchange& operations);

}  // namespace tamo
