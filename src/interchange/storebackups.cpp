// Whole copies of the store file: the complete backup and restore, raw copies, the move from the
// Flatpak edition and the return to a recovery copy.

#include <QDir>
#include <QFileInfo>

#include "interchange/datainterchange.h"
#include "interchange/plistfile.h"
#include "interchange/storefiles.h"
#include "platform/profile.h"
#include "platform/translations.h"

namespace tamo {

// The log sentences of one kind of store replacement, each with the error in place of %1.
struct DataInterchange::ReplaceLog {
    const char16_t* copyFailed;
    const char16_t* replaceFailed;
    const char16_t* reopenFailed;
};

namespace {

// Remembers that the Flatpak edition's store was moved here, so that it is not offered again.
constexpr SettingKey kFlatpakStoreMoved{"isFlatpakStoreMoved", SettingType::Boolean};

void logLine(const char16_t* sentence, const Error& error)
{
    qCWarning(lcInterchange).noquote() << QString::fromUtf16(sentence).arg(error.text());
}

}  // namespace

// The candidate is copied beside the live store and checked there before anything changes; the
// user's own file is never moved or opened for writing.
ActionResult DataInterchange::replaceStore(const QString& candidate, const QString& reason,
                                           const ReplaceLog& log)
{
    const QString live = liveStorePath();
    const QString incoming = incomingStorePath(live);
    if (auto copied = copyFileAtomically(candidate, incoming); !copied) {
        logLine(log.copyFailed, copied.error());
        return failed(copied.error());
    }
    if (auto checked = checkStoreFile(incoming, QFileInfo(candidate).fileName()); !checked) {
        QFile::remove(incoming);
        logLine(log.copyFailed, checked.error());
        Error e = checked.error();
        e.reason = (e.reason + u' ' + tr("Nothing was changed.")).trimmed();
        return failed(e);
    }
    if (!snapshot(reason)) {
        QFile::remove(incoming);
        return ActionResult::Failed;
    }
    auto reloaded =
        session_.reloadStore([&](const QString& path) { return putStoreFile(incoming, path); });
    if (!reloaded) {
        QFile::remove(incoming);
        const bool open = session_.context() != nullptr;
        logLine(open ? log.replaceFailed : log.reopenFailed, reloaded.error());
        Error e = reloaded.error();
        if (!open) {
            e.reason =
                (e.reason + u' ' + tr("Tamo has no database until it starts again.")).trimmed();
        }
        return failed(e);
    }
    return ActionResult::Done;
}

ActionResult DataInterchange::backupCompleteTamoData()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    // The live store is rewritten from its saved state below; changes that cannot be saved
    // would be lost with it.
    session_.saveContext();
    if (session_.context()->hasChanges()) {
        return failed(interchangeError(
            kStoreFileProblem, tr("The database was not backed up."),
            tr("Your latest changes could not be saved first; please check them.")));
    }
    const auto chosen = prompter_.chooseFileToSave(savePanel(
        tr("Backup E-Tamo Database"), QStringLiteral("zqdb"), QStringLiteral("E-Tamo Database")));
    if (!chosen) {
        return ActionResult::Cancelled;
    }
    // What the user keeps: the chosen name with the extension "tamo2db", alone in the folder.
    const QFileInfo info(*chosen);
    const QString kept = info.absoluteDir().filePath(info.completeBaseName() + u".tamo2db"_qs);
    // The compact copy is written and checked where the user keeps it; the live store then
    // continues on a copy of it, unless it is open for reading only (then it is not this
    // process's to rewrite).
    if (auto written = writeStoreCopy(*context, kept); !written) {
        logLine(u"Unable to add migratePersistentStore: %1", written.error());
        return failed(written.error());
    }
    if (session_.isReadOnly()) {
        return ActionResult::Done;
    }
    const QString fresh = incomingStorePath(context->path());
    if (auto copied = copyFileAtomically(kept, fresh); !copied) {
        logLine(u"Unable to acopyItemAtURL: %1", copied.error());
        return failed(copied.error());
    }
    auto reloaded =
        session_.reloadStore([&](const QString& path) { return putStoreFile(fresh, path); });
    if (!reloaded) {
        QFile::remove(fresh);
        logLine(session_.context() ? u"Unable to move temporary store: %1"
                                   : u"Unable to add new store: %1",
                reloaded.error());
        return failed(reloaded.error());
    }
    return ActionResult::Done;
}

ActionResult DataInterchange::restoreCompleteTamoData()
{
    session_.contextIfItOpens();  // a store that cannot be opened may still be replaced
    if (!confirmed(tr("You are about to restore your entire E-Tamo database from a backup. This "
                      "will irretrievably replace any existing data. Do you really want to do "
                      "that?"),
                   tr("Restore…"))) {
        return ActionResult::Cancelled;
    }
    const auto path = prompter_.chooseFileToOpen(
        openPanel(tr("Restore E-Tamo Database"), QStringLiteral("tamo2db")));
    if (!path) {
        return ActionResult::Cancelled;
    }
    return replaceStore(*path, QStringLiteral("restoreCompleteTamoData"),
                        {u"Unable to read the backup: %1", u"Unable to move temporary store: %1",
                         u"Unable to add new store: %1"});
}

ActionResult DataInterchange::backupCDAction()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        qCWarning(lcInterchange) << "No persistent store found.";
        return ActionResult::Failed;
    }
    const auto path =
        prompter_.chooseFileToSave(savePanel(tr("Backup Raw Database"), QStringLiteral("sqlite"),
                                             QStringLiteral("E-Tamo Database Backup.sqlite")));
    if (!path) {
        return ActionResult::Cancelled;
    }
    if (auto written = writeStoreCopy(*context, *path); !written) {
        logLine(u"Failed to export database: %1", written.error());
        return failed(written.error());
    }
    qCInfo(lcInterchange).noquote()
        << QStringLiteral("Database exported successfully to %1").arg(*path);
    return ActionResult::Done;
}

ActionResult DataInterchange::restoreCDAction()
{
    if (!session_.managedObjectContext()) {
        qCWarning(lcInterchange) << "No persistent store found.";
        return ActionResult::Failed;
    }
    if (!confirmed(tr("You are about to replace your entire E-Tamo database with a raw copy of a "
                      "database file. This will irretrievably replace any existing data. Do you "
                      "really want to do that?"),
                   tr("Restore…"))) {
        return ActionResult::Cancelled;
    }
    const auto path =
        prompter_.chooseFileToOpen(openPanel(tr("Restore Raw Database"), QStringLiteral("sqlite")));
    if (!path) {
        return ActionResult::Cancelled;
    }
    const ActionResult result = replaceStore(
        *path, QStringLiteral("restoreCDAction"),
        {u"Failed to copy backup file: %1", u"Failed to remove existing persistent store file: %1",
         u"Failed to re-add persistent store: %1"});
    if (result == ActionResult::Done) {
        qCInfo(lcInterchange).noquote()
            << QStringLiteral("Database imported successfully from %1").arg(*path);
    }
    return result;
}

QString DataInterchange::sandboxStorePath() const
{
    const QString id = QString::fromLatin1(kApplicationId);
    return QStringLiteral("%1/.var/app/%2/data/%2/Tamo.zqdb")
        .arg(session_.profile().homeFolder, id);
}

bool DataInterchange::canRestoreFromSandbox() const
{
    const QString source = sandboxStorePath();
    return !session_.settings().boolean(kFlatpakStoreMoved) && QFileInfo::exists(source) &&
           QFileInfo(source).canonicalFilePath() != QFileInfo(liveStorePath()).canonicalFilePath();
}

ActionResult DataInterchange::restoreAutomaticallyFromSandbox()
{
    const QString source = sandboxStorePath();
    if (!QFileInfo::exists(source)) {
        prompter_.ask({tr("Error!"),
                       tr("Could not restore Tamo database automatically. Please do this by hand. "
                          "In case of problems, simply contact the Sorel support."),
                       {tr("OK")}});
        return ActionResult::Failed;
    }
    session_.contextIfItOpens();
    if (!confirmed(tr("You are about to move the database of Tamo's Flatpak edition here. This "
                      "will irretrievably replace any existing data. Do you really want to do "
                      "that?"),
                   tr("Move…"))) {
        return ActionResult::Cancelled;
    }
    qCInfo(lcInterchange).noquote()
        << QStringLiteral("restoreAutomaticallyFromSandbox '%1'.").arg(source);
    const ActionResult result =
        replaceStore(source, QStringLiteral("restoreAutomaticallyFromSandbox"),
                     {u"Failed to create writable database file with message '%1'.",
                      u"Failed to create writable database file with message '%1'.",
                      u"Unable to add new store: %1"});
    if (result == ActionResult::Done) {
        session_.saveContext();
        session_.settings().set(kFlatpakStoreMoved, true);
    }
    return result;
}

ActionResult DataInterchange::recoverPreviousDatabase()
{
    const QString folder = session_.profile().recoveryFolder;
    if (recoverySnapshots().isEmpty()) {
        prompter_.ask({tr("Hint!"),
                       tr("There is no recovery copy yet. Tamo writes one before every restore "
                          "that replaces stored data."),
                       {tr("OK")}});
        return ActionResult::Cancelled;
    }
    session_.contextIfItOpens();
    FileRequest panel = openPanel(tr("Recover Previous Database"), u"zqdb"_qs);
    panel.directory = folder;
    const auto path = prompter_.chooseFileToOpen(panel);
    if (!path) {
        return ActionResult::Cancelled;
    }
    if (!confirmed(tr("You are about to return to the database as it was in “%1”. What is stored "
                      "now is kept as another recovery copy. Do you want to do that?")
                       .arg(QFileInfo(*path).completeBaseName()),
                   tr("Recover…"))) {
        return ActionResult::Cancelled;
    }
    return replaceStore(*path, QStringLiteral("recoverPreviousDatabase"),
                        {u"Unable to read the recovery copy: %1",
                         u"Unable to move temporary store: %1", u"Unable to add new store: %1"});
}

}  // namespace tamo
