#include "app/filemenu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "app/mainwindow.h"
#include "interchange/datainterchange.h"

namespace tamo {

namespace {

using Action = ActionResult (DataInterchange::*)();

struct Entry {
    const char* text;
    Action action;
};

// Returns the last entry added.
QAction* addEntries(QMenu* menu, QAction* before, DataInterchange& operations,
                    std::initializer_list<Entry> entries)
{
    QAction* action = nullptr;
    for (const Entry& entry : entries) {
        action = new QAction(QObject::tr(entry.text), menu);
        QObject::connect(action, &QAction::triggered, menu,
                         [&operations, run = entry.action] { (operations.*run)(); });
        menu->insertAction(before, action);
    }
    return action;
}

}  // namespace

QAction* fileMenuInsertionPoint(QMenu* file)
{
    QAction* before = nullptr;
    const QList<QAction*> actions = file->actions();
    for (qsizetype i = 0; i < actions.size(); ++i) {
        if (actions[i]->menuRole() == QAction::QuitRole) {
            before = i > 0 && actions[i - 1]->isSeparator() ? actions[i - 1] : actions[i];
        }
    }
    return before;
}

void installDataMenu(MainWindow& window, DataInterchange& operations)
{
    QMenu* file = window.menuBar()->actions().value(0)->menu();
    // Everything goes above the separator that leads to Quit.
    QAction* before = fileMenuInsertionPoint(file);

    addEntries(
        file, before, operations,
        {{QT_TRANSLATE_NOOP("Tamo", "Import Tamo Document…"), &DataInterchange::importInvoice},
         {QT_TRANSLATE_NOOP("Tamo", "Export As Invoices Dump…"),
          &DataInterchange::exportAsInvoiceFile},
         {QT_TRANSLATE_NOOP("Tamo", "Export Database As XML…"),
          &DataInterchange::exportTamoDataXML},
         {QT_TRANSLATE_NOOP("Tamo", "Export Listed Invoices As XML…"),
          &DataInterchange::exportItems}});
    file->insertSeparator(before);

    auto* backup = new QMenu(QObject::tr("Backup"), file);
    addEntries(
        backup, nullptr, operations,
        {{QT_TRANSLATE_NOOP("Tamo", "Backup Tamo Invoices…"), &DataInterchange::backupTamoData},
         {QT_TRANSLATE_NOOP("Tamo", "Backup Tamo Items…"), &DataInterchange::backupItems},
         {QT_TRANSLATE_NOOP("Tamo", "Backup E-Tamo Database…"),
          &DataInterchange::backupCompleteTamoData},
         {QT_TRANSLATE_NOOP("Tamo", "Backup Raw Database…"), &DataInterchange::backupCDAction},
         {QT_TRANSLATE_NOOP("Tamo", "Write Safety Copy Now"), &DataInterchange::doTheNewBackup}});
    file->insertMenu(before, backup);

    auto* restore = new QMenu(QObject::tr("Restore"), file);
    addEntries(
        restore, nullptr, operations,
        {{QT_TRANSLATE_NOOP("Tamo", "Restore Tamo Invoices…"), &DataInterchange::restoreTamoData},
         {QT_TRANSLATE_NOOP("Tamo", "Restore Tamo Items…"), &DataInterchange::restoreItems},
         {QT_TRANSLATE_NOOP("Tamo", "Restore E-Tamo Database…"),
          &DataInterchange::restoreCompleteTamoData},
         {QT_TRANSLATE_NOOP("Tamo", "Restore Raw Database…"), &DataInterchange::restoreCDAction},
         {QT_TRANSLATE_NOOP("Tamo", "Restore from Safety Copy…"),
          &DataInterchange::restoreFromBackup}});
    restore->addSeparator();
    QAction* flatpak =
        addEntries(restore, nullptr, operations,
                   {{QT_TRANSLATE_NOOP("Tamo", "Move Data from the Flatpak Edition…"),
                     &DataInterchange::restoreAutomaticallyFromSandbox}});
    file->insertMenu(before, restore);

    QAction* recover = addEntries(file, before, operations,
                                  {{QT_TRANSLATE_NOOP("Tamo", "Recover Previous Database…"),
                                    &DataInterchange::recoverPreviousDatabase}});
    QObject::connect(file, &QMenu::aboutToShow, file, [&operations, flatpak, recover] {
        flatpak->setVisible(operations.canRestoreFromSandbox());
        recover->setEnabled(!operations.recoverySnapshots().isEmpty());
    });
}

}  // namespace tamo
