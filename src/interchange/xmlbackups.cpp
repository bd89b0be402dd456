// The XML exports, the invoice and item backups and restores, the dump and the import of a
// single document.

#include <QCoreApplication>
#include <QFileInfo>

#include "interchange/datainterchange.h"
#include "interchange/keyedarchive.h"
#include "interchange/recorddictionary.h"
#include "interchange/storefiles.h"
#include "model/storelocation.h"
#include "platform/translations.h"

namespace tamo {

namespace {

// The array of the records' dictionaries as an XML property list.
Result<QByteArray> xmlOfRecords(const std::vector<Record*>& records)
{
    auto list = toDictionaryList(records);
    if (!list) {
        return std::unexpected(list.error());
    }
    return serializePlist(list->get(), PlistFormat::Xml);
}

// What Tamo writes into an "invdump" file, in this order.
constexpr std::pair<const char*, const char*> kDumpKeys[] = {
    {"invoices", "Invoice"},  {"items", "RecentItem"},         {"designs", "Design"},
    {"addresses", "Address"}, {"shippings", "RecentShipping"}, {"templates", "Template"}};

}  // namespace

DataInterchange::DataInterchange(AppSession& session) : DataInterchange(session, session.prompter())
{
}

DataInterchange::DataInterchange(AppSession& session, Prompter& prompter)
    : session_(session), prompter_(prompter)
{
    createBackupPath();
}

ActionResult DataInterchange::failed(const Error& error)
{
    qCWarning(lcInterchange).noquote() << error.text();
    prompter_.presentError(error);
    return ActionResult::Failed;
}

bool DataInterchange::confirmed(const QString& text, const QString& button)
{
    return prompter_.ask({tr("Warning!"), text, {button, tr("Cancel")}}) == button;
}

QString DataInterchange::liveStorePath() const
{
    const Context* context = session_.context();
    return context ? context->path() : storeFilePath(session_.settings(), session_.profile());
}

std::optional<QString> DataInterchange::snapshot(const QString& reason)
{
    auto taken = RecoverySnapshots(session_.profile().recoveryFolder)
                     .take(session_.context(), liveStorePath(), session_.clock().now(), reason);
    if (!taken) {
        Error e = taken.error();
        e.reason = (e.reason + u' ' + tr("Without a recovery copy nothing was changed.")).trimmed();
        failed(e);
        return std::nullopt;
    }
    if (!taken->isEmpty()) {
        qCInfo(lcInterchange).noquote() << "The recovery copy is" << *taken;
    }
    return *taken;
}

bool DataInterchange::readable()
{
    const Context* context = session_.context();
    if (context && context->readFailure()) {
        Error e = *context->readFailure();
        e.message = tr("No file was written: the store could not be read completely.");
        failed(e);
        return false;
    }
    return true;
}

QStringList DataInterchange::recoverySnapshots() const
{
    return RecoverySnapshots(session_.profile().recoveryFolder).list();
}

ActionResult DataInterchange::writeXml(const std::vector<Record*>& records,
                                       const FileRequest& panel)
{
    auto xml = xmlOfRecords(records);
    if (!readable()) {
        return ActionResult::Failed;
    }
    if (!xml) {
        Error e = xml.error();
        e.reason = tr("No file was written.");
        return failed(e);
    }
    const auto path = prompter_.chooseFileToSave(panel);
    if (!path) {
        return ActionResult::Cancelled;
    }
    if (auto written = writeFileAtomically(*path, *xml); !written) {
        return failed(written.error());
    }
    return ActionResult::Done;
}

ActionResult DataInterchange::exportTamoDataXML()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    return writeXml(context->fetch("Invoice"),
                    savePanel(tr("Export Tamo Database As XML"), QStringLiteral("xml"),
                              QStringLiteral("Tamo Database")));
}

ActionResult DataInterchange::exportItems()
{
    if (!session_.managedObjectContext()) {
        return ActionResult::Failed;
    }
    return writeXml(session_.documents().arranged(),
                    savePanel(tr("Export Tamo Database As XML"), QStringLiteral("xml"), QString()));
}

ActionResult DataInterchange::backupTamoData()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    session_.saveContext();
    return writeXml(context->fetch("Invoice"),
                    savePanel(tr("Backup Tamo Invoices"), QStringLiteral("tamoinvoices"),
                              QStringLiteral("Tamo Invoices")));
}

ActionResult DataInterchange::backupItems()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    session_.saveContext();
    return writeXml(context->fetch("RecentItem"),
                    savePanel(tr("Backup Tamo Items"), QStringLiteral("tamoitems"),
                              QStringLiteral("Tamo Items")));
}

ActionResult DataInterchange::restoreTamoData()
{
    return restoreRecords(
        "Invoice",
        tr("You are about to restore your Tamo invoices from a backup. This will irretrievably "
           "replace any existing invoices. Do you really want to do that?"),
        tr("Restore Tamo Invoices"), QStringLiteral("tamoinvoices"));
}

ActionResult DataInterchange::restoreItems()
{
    return restoreRecords("RecentItem",
                          tr("You are about to restore your Tamo items from a backup. This will "
                             "irretrievably replace any existing items. Do you really want to do "
                             "that?"),
                          tr("Restore Tamo Items"), QStringLiteral("tamoitems"));
}

ActionResult DataInterchange::restoreRecords(const char* entity, const QString& warning,
                                             const QString& title, const QString& extension)
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    if (!confirmed(warning, tr("Restore…"))) {
        return ActionResult::Cancelled;
    }
    const auto path = prompter_.chooseFileToOpen(openPanel(title, extension));
    if (!path) {
        return ActionResult::Cancelled;
    }
    // The item catalog shows every catalog entry; the invoice list may be narrowed.
    const bool invoices = std::string_view(entity) == "Invoice";
    return replaceWithRecords(
        invoices ? session_.documents().arranged() : context->fetch(entity), *path, entity,
        invoices ? QStringLiteral("restoreTamoData") : QStringLiteral("restoreItems"));
}

// The shown records go before the file is read, as they always have; the recovery copy written
// first is what brings them back when the file turns out to be unusable.
ActionResult DataInterchange::replaceWithRecords(const std::vector<Record*>& shown,
                                                 const QString& path, const char* entity,
                                                 const QString& reason)
{
    if (!snapshot(reason)) {
        return ActionResult::Failed;
    }
    Context& context = *session_.context();
    Result<void> outcome;
    int renamed = 0;
    {
        UndoGroup group(context, tr("Restore"));
        WithoutUndo quiet(context);
        for (Record* record : shown) {
            context.remove(record);
        }
        auto list = readPlistFile(path);
        if (!list) {
            outcome = std::unexpected(list.error());
        } else if (auto created =
                       createManagedObjectsFromList(std::move(*list), context, entity, &renamed);
                   !created) {
            outcome = std::unexpected(created.error());
        }
    }
    // Undoing an edit made before would now touch records that were replaced.
    context.undoManager().clear();
    session_.saveContext();
    if (!outcome) {
        Error e = outcome.error();
        if (e.code != kFileUnreadable && e.code != kFileTooLarge && e.code != kNotAPropertyList) {
            e.reason = e.message;
            e.message = tr("The file “%1” could not be restored.").arg(QFileInfo(path).fileName());
        }
        // After failures in a row the newest copy may hold the emptied store: the message names
        // the one that holds the data.
        const QString name = QFileInfo(RecoverySnapshots(session_.profile().recoveryFolder)
                                           .newestHoldingMoreThan(context.path()))
                                 .fileName();
        if (!e.reason.isEmpty() && !e.reason.endsWith(u'.')) {
            e.reason += u'.';
        }
        e.reason = (e.reason + u' ' +
                    tr("The records that were listed have been removed. The recovery copy “%1” "
                       "holds them: File › Recover Previous Database… brings them back (on the "
                       "command line: tamo --yes recover \"%1\").")
                        .arg(name))
                       .trimmed();
        return failed(e);
    }
    tellRenamed(renamed);
    return ActionResult::Done;
}

void DataInterchange::tellRenamed(int renamed)
{
    if (renamed == 0) {
        return;
    }
    const QString text =
        tr("%n record(s) carried an identity (uniqueID) that another record already has. Each "
           "was given a new one, so that every record can be found by its own.",
           nullptr, renamed);
    qCInfo(lcInterchange).noquote() << text;
    prompter_.ask({tr("Hint!"), text, {tr("OK")}});
}

ActionResult DataInterchange::exportAsInvoiceFile()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    session_.saveContext();
    const auto path = prompter_.chooseFileToSave(savePanel(
        tr("Export As Invoices Dump"), QStringLiteral("invdump"), QStringLiteral("Invoices Dump")));
    if (!path) {
        return ActionResult::Cancelled;
    }
    Plist dump(plist_new_dict());
    for (const auto& [key, entity] : kDumpKeys) {
        auto list = toDictionaryList(context->fetch(entity));
        if (!list) {
            return failed(list.error());
        }
        plist_dict_set_item(dump.get(), key, list->release());
    }
    if (!readable()) {
        return ActionResult::Failed;
    }
    auto archive = keyedArchive(dump.get());
    if (!archive) {
        return failed(archive.error());
    }
    if (auto written = writeFileAtomically(*path, *archive); !written) {
        return failed(written.error());
    }
    return ActionResult::Done;
}

ActionResult DataInterchange::importInvoice()
{
    Context* context = session_.managedObjectContext();
    if (!context) {
        return ActionResult::Failed;
    }
    if (!confirmed(
            tr("The integrity of your data is your responsibility, and yours alone. Tamo is just "
               "a stupid App and by design it can't know or care about duplicate invoices, "
               "messed up numbers, or if you're having a bad hair day. So please, do yourself a "
               "favor and check what you are doing here. Do you still want to import the "
               "invoice?"),
            tr("Import…"))) {
        return ActionResult::Cancelled;
    }
    const auto path =
        prompter_.chooseFileToOpen(openPanel(tr("Import Tamo Document"), QStringLiteral("tamo")));
    if (!path) {
        return ActionResult::Cancelled;
    }
    const auto refused = [&](const Error& e) {
        return failed(interchangeError(
            e.code, tr("The document “%1” could not be imported.").arg(QFileInfo(*path).fileName()),
            e.reason.isEmpty() ? e.message : e.reason));
    };
    auto bytes = readWholeFile(*path);
    if (!bytes) {
        return failed(bytes.error());
    }
    auto root = keyedUnarchive(*bytes);
    if (!root) {
        return refused(root.error());
    }
    plist_t document = plist_get_node_type(root->get()) == PLIST_DICT
                           ? plist_dict_get_item(root->get(), "tamoDic")
                           : nullptr;
    if (!document) {
        return refused(interchangeError(kWrongContent, tr("It holds no document.")));
    }
    Result<Record*> imported;
    int renamed = 0;
    {
        UndoGroup group(*context, tr("Import Document"));
        imported = createManagedObjectFromDictionary(document, *context, "Invoice", &renamed);
    }
    if (!imported) {
        return refused(imported.error());
    }
    session_.documents().reveal(*imported);
    session_.saveContext();
    tellRenamed(renamed);
    return ActionResult::Done;
}

bool DataInterchange::openFile(const QString& path)
{
    qCInfo(lcInterchange).noquote() << "Asked to open" << path;
    prompter_.ask({tr("Tamo, Tamo Documents, and the Tamo Database"),
                   tr("In order to avoid duplicate entries, hiccups, and to keep the database "
                      "intact - please use the 'File Menu' to open documents and to restore the "
                      "Tamo database."),
                   {tr("OK")}});
    return true;
}

}  // namespace tamo
