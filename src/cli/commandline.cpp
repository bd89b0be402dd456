#include "cli/commandline.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include "calc/totals.h"
#include "cli/commands.h"
#include "cli/consoleprompter.h"
#include "cli/samplegenerator.h"
#include "model/appsession.h"
#include "model/transformers.h"
#include "render/designlibrary.h"

namespace tamo {

namespace {

QString dateText(const QDateTime& date)
{
    return date.isValid() ? date.toLocalTime().date().toString(Qt::ISODate) : QString();
}

QJsonValue jsonDate(const QDateTime& date)
{
    return date.isValid() ? QJsonValue(date.toUTC().toString(Qt::ISODateWithMs)) : QJsonValue();
}

}  // namespace

std::optional<Failure> listCommand(AppSession& session, const QStringList& args, QTextStream& out)
{
    const bool json = args.contains(QStringLiteral("--json"));
    for (const QString& a : args) {
        if (a != u"--json") {
            return Failure{QStringLiteral("list: unknown option %1").arg(a), kUsageError};
        }
    }
    const auto& documents = session.documents().arranged();
    if (json) {
        QJsonArray array;
        for (const Record* d : documents) {
            array.append(QJsonObject{{QStringLiteral("uniqueID"), d->uniqueID()},
                                     {QStringLiteral("kind"), d->integer("kind")},
                                     {QStringLiteral("status"), d->integer("status")},
                                     {QStringLiteral("number"), d->string("number")},
                                     {QStringLiteral("title"), d->string("title")},
                                     {QStringLiteral("customerName"), d->string("customerName")},
                                     {QStringLiteral("date"), jsonDate(d->date("date"))},
                                     {QStringLiteral("due"), jsonDate(d->date("due"))},
                                     {QStringLiteral("amount"), d->decimal("amount")},
                                     {QStringLiteral("currency"), d->string("currency")}});
        }
        out << QJsonDocument(array).toJson(QJsonDocument::Indented);
        return std::nullopt;
    }
    const QLocale c = QLocale::c();
    out << QStringLiteral("%1  %2  %3  %4  %5  %6  %7\n")
               .arg(QStringLiteral("Status"), -14)
               .arg(QStringLiteral("Number"), -14)
               .arg(QStringLiteral("Title"), -20)
               .arg(QStringLiteral("Client"), -28)
               .arg(QStringLiteral("Date"), -10)
               .arg(QStringLiteral("Due"), -10)
               .arg(QStringLiteral("Amount"), 14);
    for (const Record* d : documents) {
        out << QStringLiteral("%1  %2  %3  %4  %5  %6  %7 %8\n")
                   .arg(statusLabel(d), -14)
                   .arg(d->string("number").left(14), -14)
                   .arg(d->string("title").left(20), -20)
                   .arg(d->string("customerName").left(28), -28)
                   .arg(dateText(d->date("date")), -10)
                   .arg(dateText(d->date("due")), -10)
                   .arg(c.toString(d->decimal("amount"), 'f', 2), 14)
                   .arg(d->string("currency"));
    }
    return std::nullopt;
}

std::optional<Failure> settingsCommand(AppSession& session, const QStringList& args,
                                       QTextStream& out)
{
    const QString verb = args.value(0);
    if (!((verb == u"get" && args.size() == 2) || (verb == u"set" && args.size() == 3))) {
        return Failure{QStringLiteral("usage: tamo settings get KEY | settings set KEY VALUE"),
                       kUsageError};
    }
    const SettingKey* key = findSettingKey(args[1].toStdString());
    if (!key) {
        return Failure{QStringLiteral("there is no setting named %1").arg(args[1])};
    }
    if (verb == u"get") {
        out << Settings::toText(session.settings().value(*key)) << '\n';
        return std::nullopt;
    }
    const auto value = Settings::fromText(*key, args[2]);
    if (!value) {
        return Failure{QStringLiteral("%1 is not a valid value for %2").arg(args[2], args[1])};
    }
    session.settings().set(*key, *value);
    return std::nullopt;
}

std::optional<Failure> generateSampleCommand(AppSession& session, const QStringList& args,
                                             QTextStream& out)
{
    SampleOptions options;
    for (int i = 0; i < args.size(); i += 2) {
        bool ok = false;
        const int value = args.value(i + 1).toInt(&ok);
        if (!ok) {
            return Failure{QStringLiteral("generate-sample: %1 needs a whole number").arg(args[i]),
                           kUsageError};
        }
        if (args[i] == u"--documents") {
            options.documents = value;
        } else if (args[i] == u"--items-per-document") {
            options.itemsPerDocument = value;
        } else if (args[i] == u"--clients") {
            options.clients = value;
        } else if (args[i] == u"--seed") {
            options.seed = quint32(value);
        } else {
            return Failure{QStringLiteral("generate-sample: unknown option %1").arg(args[i]),
                           kUsageError};
        }
    }
    auto counts = generateSample(*session.context(), session.clock(), options);
    if (!counts) {
        return Failure{counts.error().text()};
    }
    out << QStringLiteral("Generated %1 documents with %2 lines and %3 clients.\n")
               .arg(counts->documents)
               .arg(counts->items)
               .arg(counts->clients);
    return std::nullopt;
}

namespace {

// Every command: its name, whether it needs the store, and what runs it.
struct CommandEntry {
    const char16_t* name;
    bool needsStore;
    Command run;
};

const CommandEntry kCommands[] = {
    {u"list", true, listCommand},
    {u"settings", false, settingsCommand},
    {u"generate-sample", true, generateSampleCommand},
    {u"recalc", true, recalcCommand},
    {u"next-number", true, nextNumberCommand},
    {u"backup-invoices", true, backupInvoicesCommand},
    {u"restore-invoices", true, restoreInvoicesCommand},
    {u"backup-items", true, backupItemsCommand},
    {u"restore-items", true, restoreItemsCommand},
    {u"export-xml", true, exportXmlCommand},
    {u"export-shown-xml", true, exportShownXmlCommand},
    {u"backup-complete", true, backupCompleteCommand},
    {u"restore-complete", false, restoreCompleteCommand},
    {u"dump", true, dumpCommand},
    {u"import-document", true, importDocumentCommand},
    {u"export-raw", true, exportRawCommand},
    {u"import-raw", true, importRawCommand},
    {u"move-from-flatpak", false, moveFromFlatpakCommand},
    {u"safety-copy", true, safetyCopyCommand},
    {u"restore-safety-copy", true, restoreSafetyCopyCommand},
    {u"recover", false, recoverCommand},
    {u"open", false, openFileCommand},
    {u"new-invoice", true, newInvoiceCommand},
    {u"new-quote", true, newQuoteCommand},
    {u"duplicate", true, duplicateCommand},
    {u"convert", true, convertCommand},
    {u"delete", true, deleteCommand},
    {u"set-status", true, setStatusCommand},
    {u"dispatch", true, dispatchCommand},
    {u"filter", true, filterCommand},
    {u"add-item", true, addItemCommand},
    {u"set-client", true, setClientCommand},
    {u"einvoice", true, einvoiceCommand},
    {u"einvoice-check", true, einvoiceCheckCommand},
    {u"einvoice-details", true, einvoiceDetailsCommand},
    {u"einvoice-notice", false, einvoiceNoticeCommand},
    {u"render", true, renderCommand},
    {u"export-pdfs", true, exportPdfsCommand},
    {u"designs", true, designsCommand},
    {u"templates", true, templatesCommand},
};

}  // namespace

QString usage()
{
    return QStringLiteral(
        "usage: tamo [--store DIR] [--yes] [COMMAND ...]\n"
        "  Without a command, opens the window.\n"
        "  --store DIR   keep store, settings and data files in DIR\n"
        "  --yes         answer questions with their default button\n"
        "commands:\n"
        "  list [--json]\n"
        "  settings get KEY | settings set KEY VALUE\n"
        "  generate-sample [--documents N] [--items-per-document M] [--clients K] [--seed S]\n"
        "  recalc\n"
        "  next-number invoice|quote|client\n"
        "  backup-invoices FILE | restore-invoices FILE   (XML property list, .tamoinvoices)\n"
        "  backup-items FILE | restore-items FILE         (XML property list, .tamoitems)\n"
        "  export-xml FILE | export-shown-xml FILE        (all invoices | the listed ones)\n"
        "  backup-complete FILE | restore-complete FILE   (the store file, .tamo2db)\n"
        "  dump FILE | import-document FILE               (keyed archives, .invdump | .tamo)\n"
        "  export-raw FILE | import-raw FILE              (raw store copies, .sqlite)\n"
        "  safety-copy [--at-start] | restore-safety-copy\n"
        "  move-from-flatpak\n"
        "  recover [SNAPSHOT]   (without SNAPSHOT: lists the recovery copies)\n"
        "  open FILE\n"
        "  new-invoice | new-quote\n"
        "  duplicate N [--with-items] | convert N | delete N [--adjust-counter]\n"
        "  set-status N 0..4 [--paid-amount X] | dispatch N\n"
        "  filter TAG [--json]   (0 all, 1 open, 2 overdue, 3 paid, 4 quotes, 5-8 recent)\n"
        "  add-item N --title TEXT --price X --quantity Y [--unit TEXT] [--sku TEXT]\n"
        "           [--subtitle TEXT] [--note TEXT] [--tax1] [--tax2] [--tax3]\n"
        "  set-client N (--vcard FILE [--index I] | --remembered ID)   (I counts from 0)\n"
        "  einvoice N FILE [--force]   (XRechnung XML of document N, after the readiness check)\n"
        "  einvoice-check N | einvoice-details N [KEY=VALUE ...] | einvoice-notice\n"
        "  render N (--html FILE|- | --pdf FILE) [--reminder|--slip] [--design INDEX|TITLE]\n"
        "  export-pdfs DIR [--filter TAG]   (every listed document, FOLDER/NUMBER_N.pdf)\n"
        "  designs list | add | import FILE | export INDEX FILE | default INDEX\n"
        "          | select INDEX | delete INDEX\n"
        "  templates list | create N [NOTES] | apply INDEX N | delete INDEX\n");
}

Invocation parseInvocation(const QStringList& arguments)
{
    Invocation inv;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& a = arguments[i];
        if (!inv.command.isEmpty()) {
            inv.command << a;
        } else if (a == u"--store") {
            if (i + 1 >= arguments.size()) {
                inv.error = QStringLiteral("--store needs a folder");
                return inv;
            }
            inv.storeDirectory = arguments[++i];
        } else if (a == u"--yes") {
            inv.assumeYes = true;
        } else if (a.startsWith(u"tamo:", Qt::CaseInsensitive)) {
            inv.url = a;
        } else if (a.startsWith(u'-')) {
            // Options of the windowing system (-platform, -style, ...) are Qt's to read.
            if (a == u"--help" || a == u"-h") {
                inv.command << QStringLiteral("help");
            }
        } else {
            inv.command << a;
        }
    }
    return inv;
}

int runCommand(const Invocation& inv, QTextStream& out, QTextStream& err)
{
    const auto report = [&](const QString& message, int code) {
        err << "tamo: " << message << '\n';
        err.flush();
        return code;
    };
    if (!inv.error.isEmpty()) {
        return report(inv.error, kUsageError);
    }
    // The desktop hands a file to open as the only argument: `tamo FILE` is `tamo open FILE`.
    const bool file = inv.command.size() == 1 && QFileInfo(inv.command[0]).isFile();
    const QString name = file ? u"open"_qs : inv.command.value(0);
    const QStringList args = file ? inv.command : inv.command.mid(1);
    if (name == u"help") {
        out << usage();
        return 0;
    }
    const CommandEntry* command = nullptr;
    for (const CommandEntry& entry : kCommands) {
        if (name == QStringView(entry.name)) {
            command = &entry;
        }
    }
    if (!command) {
        return report(QStringLiteral("unknown command \"%1\"\n%2").arg(name, usage()), kUsageError);
    }

    const Profile profile = inv.storeDirectory.isEmpty() ? Profile::standard()
                                                         : Profile::inDirectory(inv.storeDirectory);
    Settings settings(profile.settingsFile);
    SystemClock clock;
    ConsolePrompter prompter(err, inv.assumeYes);
    AppSession session(profile, settings, clock, prompter);
    // The store set-up loads the shipped designs, as in the window.
    DesignLibrary designs(session);
    designs.installHooks();
    // Commands see the settings as the window does after its start-up steps.
    applyOneTimeUpdates(settings);
    if (command->needsStore) {
        Context* context = session.managedObjectContext();
        if (!context) {
            return 1;  // the prompter has said why
        }
        // The window runs the statistics pass when it lists the documents; numbering and the
        // open/overdue states depend on it.
        WithoutUndo automatic(*context);
        Totals(session).calculateDatabase();
    }
    if (auto failure = command->run(session, args, out)) {
        return report(failure->message, failure->code);
    }
    out.flush();
    if (!session.saveContext()) {
        return 1;
    }
    return prompter.errorCount() > 0 ? 1 : 0;
}

}  // namespace tamo
