// The safety copy: every invoice as an XML property list in the documents folder, written at
// start-up and restored on request.

#include <QDir>
#include <QFileInfo>

#include "interchange/datainterchange.h"
#include "interchange/recorddictionary.h"
#include "interchange/storefiles.h"
#include "platform/translations.h"

namespace tamo {

QString DataInterchange::createBackupPath()
{
    backupPath_ = session_.profile().documentsFolder + QStringLiteral("/Tamo_Backup.zqdb");
    return backupPath_;
}

ActionResult DataInterchange::createBackup()
{
    Settings& settings = session_.settings();
    if (!settings.boolean(key::isDatabase2Migrated)) {
        settings.set(key::isDatabase2Migrated, true);
        qCInfo(lcInterchange) << "No safety copy on the first run.";
        return ActionResult::Cancelled;
    }
    if (!settings.contains(key::fetchedObjectsCount)) {
        qCInfo(lcInterchange) << "No safety copy before the first orderly quit.";
        return ActionResult::Cancelled;
    }
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    // A store that lost or gained invoices since the last orderly quit may be the damaged one:
    // it must not overwrite the last good copy.
    const int count = context->count("Invoice");
    if (count != settings.integer(key::fetchedObjectsCount) &&
        !settings.boolean(key::USMCloudEnabledKey)) {
        if (settings.boolean(key::justMigratedFrommFree)) {
            settings.set(key::justMigratedFrommFree, false);
        }
        qCInfo(lcInterchange).noquote()
            << QStringLiteral("No safety copy: %1 invoices now, %2 at the last quit.")
                   .arg(count)
                   .arg(settings.integer(key::fetchedObjectsCount));
        return ActionResult::Cancelled;
    }
    return doTheNewBackup();
}

ActionResult DataInterchange::doTheNewBackup()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    auto list = toDictionaryList(context->fetch("Invoice"));
    auto xml = list ? serializePlist(list->get(), PlistFormat::Xml)
                    : Result<QByteArray>(std::unexpected(list.error()));
    if (!xml) {
        return failed(xml.error());
    }
    // The last good safety copy stays rather than be replaced by a partial one.
    if (!readable()) {
        return ActionResult::Failed;
    }
    QDir().mkpath(QFileInfo(backupPath_).absolutePath());
    if (auto written = writeFileAtomically(backupPath_, *xml); !written) {
        Error e = written.error();
        e.message = tr("The safety copy of your invoices was not written.");
        return failed(e);
    }
    return ActionResult::Done;
}

ActionResult DataInterchange::restoreFromBackup()
{
    if (!QFileInfo(backupPath_).isFile()) {
        prompter_.ask({tr("Error!"),
                       tr("No valid backup file available. Please restore your Tamo database "
                          "from your own (Time Machine) backups."),
                       {tr("OK")}});
        return ActionResult::Failed;
    }
    if (!session_.managedObjectContext()) {
        return ActionResult::Failed;
    }
    if (!confirmed(
            tr("You are about to restore your Tamo invoices from the safety copy. This will "
               "irretrievably replace any existing invoices. Do you really want to do that?"),
            tr("Restore…"))) {
        return ActionResult::Cancelled;
    }
    return replaceWithRecords(session_.documents().arranged(), backupPath_, "Invoice",
                              QStringLiteral("restoreFromBackup"));
}

}  // namespace tamo
