#pragma once

#include <QString>
#include <QStringList>

#include "model/appsession.h"

namespace tamo {

enum class ActionResult { Done, Cancelled, Failed };

// The data operations of the File menu, on the session's store: XML exports, backups and
// restores of invoices and items, the complete database backup and restore, the whole-database
// dump, the import of a single document, the safety copy, raw copies of the store file and the
// move from the Flatpak edition. Questions and file panels go through the prompter; failures are
// presented there and logged under "tamo.interchange".
//
// Before anything that deletes or replaces stored data wholesale, a recovery snapshot of the
// store goes into the profile's recovery folder (see RecoverySnapshots for which are kept), and
// recoverPreviousDatabase returns to one of them. When the snapshot cannot be written, the
// action stops before changing anything. Nothing is written from a store that could not be read
// completely: a partial backup must never pass for a whole one.
class DataInterchange {
public:
    explicit DataInterchange(AppSession& session);
    // Questions and panels go to `prompter` instead of the session's (the command line answers
    // panels with the paths it was given).
    DataInterchange(AppSession& session, Prompter& prompter);

    // XML property lists of record dictionaries.
    ActionResult exportTamoDataXML();
    ActionResult exportItems();  // the invoices the list shows, in its order
    ActionResult backupTamoData();
    ActionResult restoreTamoData();
    ActionResult backupItems();
    ActionResult restoreItems();

    // Copies of the store file: the backup leaves one "tamo2db" file in the chosen folder and
    // rewrites the live store compactly; the restore puts a copy of the chosen file in its place.
    ActionResult backupCompleteTamoData();
    ActionResult restoreCompleteTamoData();

    // Keyed archives.
    ActionResult exportAsInvoiceFile();
    ActionResult importInvoice();

    // The desktop asked to open a file: explain the File menu and open nothing.
    bool openFile(const QString& path);

    // The safety copy: every invoice as an XML property list, "Tamo_Backup.zqdb" in the
    // documents folder.
    QString createBackupPath();
    QString backupPath() const { return backupPath_; }
    // At start-up: writes the safety copy unless this is the first run, no orderly quit has
    // been recorded, or the number of invoices changed since then (with the cloud store off).
    ActionResult createBackup();
    ActionResult doTheNewBackup();
    ActionResult restoreFromBackup();

    // Raw copies of the store file ("sqlite").
    ActionResult backupCDAction();
    ActionResult restoreCDAction();

    // The store of the Flatpak edition of the same application.
    QString sandboxStorePath() const;
    // The Flatpak store exists and has not been moved here yet.
    bool canRestoreFromSandbox() const;
    ActionResult restoreAutomaticallyFromSandbox();

    // Recovery snapshots, newest first.
    QStringList recoverySnapshots() const;
    ActionResult recoverPreviousDatabase();

private:
    struct ReplaceLog;

    ActionResult writeXml(const std::vector<Record*>& records, const FileRequest& panel);
    ActionResult restoreRecords(const char* entity, const QString& warning, const QString& title,
                                const QString& extension);
    ActionResult replaceWithRecords(const std::vector<Record*>& shown, const QString& path,
                                    const char* entity, const QString& reason);
    ActionResult replaceStore(const QString& candidate, const QString& reason,
                              const ReplaceLog& log);
    // The recovery copy's path (empty without a store file); nothing when it failed (the reason
    // has been shown).
    std::optional<QString> snapshot(const QString& reason);
    // Refuses to write a file from a store that could not be read completely.
    bool readable();
    // Tells that created records were given new identities, when any were.
    void tellRenamed(int renamed);
    bool confirmed(const QString& text, const QString& button);
    QString liveStorePath() const;
    ActionResult failed(const Error& error);

    AppSession& session_;
    Prompter& prompter_;
    QString backupPath_;
};

}  // namespace tamo
