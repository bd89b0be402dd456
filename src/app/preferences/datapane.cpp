#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "interchange/datainterchange.h"
#include "model/storelocation.h"
#include "setup/storemove.h"

namespace tamo {

DataPane::DataPane(AppSession& session, DataInterchange& interchange, QWidget* parent)
    : QWidget(parent), session_(session), interchange_(interchange), folder_(new QLabel(this))
{
    setObjectName(QStringLiteral("prefs_data_Template"));
    auto* store = new QGroupBox(tr("Database"), this);
    auto* storeColumn = new QVBoxLayout(store);
    folder_->setObjectName(QStringLiteral("customDatabasePath"));
    folder_->setWordWrap(true);
    folder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    storeColumn->addWidget(folder_);
    auto* choose = new QPushButton(tr("Move to Another Folder…"), store);
    choose->setObjectName(QStringLiteral("moveStore"));
    auto* back = new QPushButton(tr("Move Back to the Default Folder"), store);
    back->setObjectName(QStringLiteral("moveStoreBack"));
    backToDefault_ = back;
    connect(choose, &QPushButton::clicked, this, [this] {
        const QString folder = QFileDialog::getExistingDirectory(
            this, tr("Choose the Folder for the Database"), StoreMover(session_).currentFolder());
        if (!folder.isEmpty()) {
            moveTo(folder);
        }
    });
    connect(back, &QPushButton::clicked, this, [this] { moveTo(QString()); });
    auto* moves = new QHBoxLayout;
    moves->addWidget(choose);
    moves->addWidget(back);
    moves->addStretch();
    storeColumn->addLayout(moves);
    storeColumn->addWidget(
        noteLabel(tr("Moving first saves a complete backup, then copies the database to the new "
                     "folder and starts Tamo again there. The old folder keeps its copy."),
                  store));

    // The same actions as in the File menu.
    auto* backups = new QGroupBox(tr("Backups"), this);
    auto* grid = new QGridLayout(backups);
    const auto button = [&](const QString& text, const char* name,
                            ActionResult (DataInterchange::*run)()) {
        auto* b = new QPushButton(text, backups);
        b->setObjectName(QString::fromLatin1(name));
        connect(b, &QPushButton::clicked, this, [this, run] {
            (interchange_.*run)();
            refresh();
        });
        return b;
    };
    grid->addWidget(button(tr("Backup E-Tamo Database…"), "backupCompleteTamoData",
                           &DataInterchange::backupCompleteTamoData),
                    0, 0);
    grid->addWidget(button(tr("Restore E-Tamo Database…"), "restoreCompleteTamoData",
                           &DataInterchange::restoreCompleteTamoData),
                    0, 1);
    grid->addWidget(
        button(tr("Write Safety Copy Now"), "doTheNewBackup", &DataInterchange::doTheNewBackup), 1,
        0);
    grid->addWidget(button(tr("Restore from Safety Copy…"), "restoreFromBackup",
                           &DataInterchange::restoreFromBackup),
                    1, 1);
    recover_ = button(tr("Recover Previous Database…"), "recoverPreviousDatabase",
                      &DataInterchange::recoverPreviousDatabase);
    grid->addWidget(recover_, 2, 0);
    recovery_ = new QLabel(backups);
    recovery_->setWordWrap(true);
    grid->addWidget(recovery_, 2, 1);
    grid->setColumnStretch(2, 1);
    grid->addWidget(
        noteLabel(tr("The safety copy is written at each start, when the last run ended in order. "
                     "Before anything replaces stored data wholesale, Tamo keeps a recovery copy "
                     "of the database; the ten newest are kept."),
                  backups),
        3, 0, 1, 3);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(store);
    layout->addWidget(backups);
    layout->addStretch();
    refresh();
}

void DataPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void DataPane::refresh()
{
    const StoreMover mover(session_);
    const QString path = QDir::toNativeSeparators(
        QDir(mover.currentFolder()).filePath(QLatin1String(kStoreFileName)));
    folder_->setText(mover.isDefaultFolder()
                         ? tr("The database is in the default folder:\n%1").arg(path)
                         : tr("The database is in a folder you chose:\n%1").arg(path));
    backToDefault_->setEnabled(!mover.isDefaultFolder());
    const QStringList copies = interchange_.recoverySnapshots();
    recover_->setEnabled(!copies.isEmpty());
    recovery_->setText(copies.isEmpty()
                           ? tr("No recovery copies yet.")
                           : tr("%n recovery copies, the newest “%1”.", nullptr, int(copies.size()))
                                 .arg(QFileInfo(copies.first()).completeBaseName()));
}

void DataPane::moveTo(const QString& folder)
{
    StoreMover(session_).moveTo(folder);
    // After a move Tamo starts again; otherwise the pane shows where the store still is.
    refresh();
}

}  // namespace tamo
