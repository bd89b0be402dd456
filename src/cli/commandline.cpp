#include "cli/commandline.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QUrl>

#include "calc/totals.h"
#include "cli/commands.h"
#include "cli/consoleprompter.h"
#include "cli/samplegenerator.h"
#include "model/appsession.h"
#include "model/transformers.h"
#include "render/designlibrary.h"

namespace tamo {

namespace {

// How long a command that changes the store waits while another command holds it.
constexpr std::chrono::milliseconds kCommandLockWait{60'000};

QString dateText(const QDateTime& date)
{
    return date.isValid() ? date.toLocalTime().date().toString(Qt::ISODate) : QString();
}

QJsonValue jsonDate(const QDateTime& date)
{
    return date.isValid() ? QJsonValue(date.toUTC().toString(Qt::ISODateWithMs)) : QJsonValue();
}

}  // namespace

std::optional<Failure> listCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() > 0) {
        return args.usage();
    }
    printDocumentList(session, args.has(u"--json"_qs), out);
    return std::nullopt;
}

void printDocumentList(AppSession& session, bool json, QTextStream& out)
{
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
        return;
    }
    const QLocale c = QLocale::c();
    out << QStringLiteral("%1  %2  %3  %4  %5  %6  %7\n")
               .arg(tr("Status"), -14)
               .arg(tr("Number"), -14)
               .arg(tr("Title"), -20)
               .arg(tr("Client"), -28)
               .arg(tr("Date"), -10)
               .arg(tr("Due"), -10)
               .arg(tr("Amount"), 14);
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
}

std::optional<Failure> generateSampleCommand(AppSession& session, const CommandArgs& args,
                                             QTextStream& out)
{
    if (args.operandCount() > 0) {
        return args.usage();
    }
    SampleOptions options;
    const std::pair<QString, int*> counts[] = {
        {u"--documents"_qs, &options.documents},
        {u"--items-per-document"_qs, &options.itemsPerDocument},
        {u"--clients"_qs, &options.clients},
    };
    for (const auto& [option, target] : counts) {
        if (args.has(option)) {
            bool ok = false;
            *target = args.value(option).toInt(&ok);
            if (!ok || *target < 0) {
                return args.usage(tr("%1 needs a whole number").arg(option));
            }
        }
    }
    if (args.has(u"--seed"_qs)) {
        bool ok = false;
        options.seed = args.value(u"--seed"_qs).toUInt(&ok);
        if (!ok) {
            return args.usage(tr("%1 needs a whole number").arg(u"--seed"_qs));
        }
    }
    auto generated = generateSample(*session.context(), session.clock(), options);
    if (!generated) {
        return Failure{generated.error().text()};
    }
    out << tr("Generated %1 documents with %2 lines and %3 clients.")
               .arg(generated->documents)
               .arg(generated->items)
               .arg(generated->clients)
        << '\n';
    return std::nullopt;
}

namespace {

// What a command does to the store. One that only reads runs beside another Tamo that holds
// the store, on a snapshot; one that writes waits while another command holds it and is refused
// while a window does. `ListReads` only reads with the verb "list" or "export".
enum class Access { Reads, Writes, ListReads };

// Every command: its synopsis (name first; the options it names are the only ones accepted), a
// note for the help, whether it needs the store, what it does to it, and what runs it.
struct CommandEntry {
    const char16_t* synopsis;
    const char* note;  // translated when shown
    bool needsStore;
    Access access;
    Command run;

    QString text() const { return QString::fromUtf16(synopsis); }
    QString name() const { return text().section(u' ', 0, 0); }
    bool readsOnly(const CommandArgs& args) const
    {
        const QString verb = args.operand(0);
        return access == Access::Reads ||
               (access == Access::ListReads && (verb == u"list" || verb == u"export"));
    }
};

constexpr auto R = Access::Reads;
constexpr auto W = Access::Writes;

const CommandEntry kCommands[] = {
    {u"list [--json]", QT_TRANSLATE_NOOP("Tamo", "the listed documents, newest first"), true, R,
     listCommand},
    {u"settings get KEY | set KEY VALUE | set prefsLogo --file IMAGE | list [--changed]",
     QT_TRANSLATE_NOOP(
         "Tamo", "list --changed: what differs from the starting values of the language set up"),
     false, R, settingsCommand},
    {u"setup --language en|de|fr|es",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "the starting values of a language, as the setup assistant's first page applies them"),
     true, W, setupCommand},
    {u"generate-sample [--documents N] [--items-per-document M] [--clients K] [--seed S]", nullptr,
     true, W, generateSampleCommand},
    {u"recalc", QT_TRANSLATE_NOOP("Tamo", "recalculates every document and prints the sums"), true,
     W, recalcCommand},
    {u"next-number invoice|quote|client", nullptr, true, R, nextNumberCommand},
    {u"backup-invoices FILE", QT_TRANSLATE_NOOP("Tamo", "XML property list, .tamoinvoices"), true,
     R, backupInvoicesCommand},
    {u"restore-invoices FILE", nullptr, true, W, restoreInvoicesCommand},
    {u"backup-items FILE", QT_TRANSLATE_NOOP("Tamo", "XML property list, .tamoitems"), true, R,
     backupItemsCommand},
    {u"restore-items FILE", nullptr, true, W, restoreItemsCommand},
    {u"export-xml FILE", QT_TRANSLATE_NOOP("Tamo", "every invoice"), true, R, exportXmlCommand},
    {u"export-shown-xml FILE [--filter TAG] [--search TEXT]",
     QT_TRANSLATE_NOOP("Tamo", "the listed invoices"), true, R, exportShownXmlCommand},
    {u"backup-complete FILE", QT_TRANSLATE_NOOP("Tamo", "the store file, .tamo2db"), true, R,
     backupCompleteCommand},
    {u"restore-complete FILE", nullptr, false, W, restoreCompleteCommand},
    {u"dump FILE", QT_TRANSLATE_NOOP("Tamo", "keyed archive of every invoice, .invdump"), true, R,
     dumpCommand},
    {u"import-document FILE", QT_TRANSLATE_NOOP("Tamo", "a document file, .tamo"), true, W,
     importDocumentCommand},
    {u"export-raw FILE", QT_TRANSLATE_NOOP("Tamo", "a raw store copy, .sqlite"), true, R,
     exportRawCommand},
    {u"import-raw FILE", nullptr, true, W, importRawCommand},
    {u"move-from-flatpak", nullptr, false, W, moveFromFlatpakCommand},
    {u"move-store (DIR | --default) [--backup FILE]",
     QT_TRANSLATE_NOOP(
         "Tamo", "a complete backup (default: the documents folder), then the store moves to DIR"),
     true, W, moveStoreCommand},
    {u"safety-copy [--at-start]", nullptr, true, R, safetyCopyCommand},
    {u"restore-safety-copy", nullptr, true, W, restoreSafetyCopyCommand},
    {u"recover [COPY]",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "without COPY: lists the recovery copies; COPY is a copy's number, file name or path"),
     false, W, recoverCommand},
    {u"open FILE",
     QT_TRANSLATE_NOOP("Tamo",
                       "answers as when the desktop opens a file: a design is offered for import"),
     true, W, openFileCommand},
    {u"new-invoice", nullptr, true, W, newInvoiceCommand},
    {u"new-quote", nullptr, true, W, newQuoteCommand},
    {u"duplicate N [--with-items]", nullptr, true, W, duplicateCommand},
    {u"convert N", QT_TRANSLATE_NOOP("Tamo", "a quote into an invoice"), true, W, convertCommand},
    {u"delete N [--adjust-counter]", nullptr, true, W, deleteCommand},
    {u"set-status N STATUS [--paid-amount X]",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "STATUS: 0 created, 1 sent, 3 paid, 4 partially paid (overdue follows from the due date)"),
     true, W, setStatusCommand},
    {u"dispatch N", nullptr, true, W, dispatchCommand},
    {u"filter TAG [--json]",
     QT_TRANSLATE_NOOP("Tamo", "0 all, 1 open, 2 overdue, 3 paid, 4 quotes, 5-8 recent"), true, R,
     filterCommand},
    {u"add-item N --title TEXT --price X --quantity Y [--unit TEXT] [--sku TEXT] "
     u"[--subtitle TEXT] [--note TEXT] [--tax1] [--tax2] [--tax3]",
     nullptr, true, W, addItemCommand},
    {u"set-client N (--vcard FILE [--index I] | --remembered ID)",
     QT_TRANSLATE_NOOP("Tamo", "I counts from 0"), true, W, setClientCommand},
    {u"set N KEY=VALUE ...",
     QT_TRANSLATE_NOOP("Tamo",
                       "the fields the editor shows: title, subject, date, due, texts, client, "
                       "shipping, discount, "
                       "e-invoice buyer; dates as 2026-03-05, percentages as 10"),
     true, W, setCommand},
    {u"lines N",
     QT_TRANSLATE_NOOP("Tamo",
                       "the document's lines, numbered as edit-line and delete-line take them"),
     true, R, linesCommand},
    {u"edit-line N LINE KEY=VALUE ...",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "KEY: title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes or no)"),
     true, W, editLineCommand},
    {u"delete-line N LINE", nullptr, true, W, deleteLineCommand},
    {u"einvoice N FILE [--force] [--conformant] [--standard]",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "XRechnung XML of document N, after the readiness check; --conformant writes the file the "
         "EN 16931 rules require (default: setting prefsEvoiceConformantBool)"),
     true, W, einvoiceCommand},
    {u"einvoice-check N [--conformant] [--standard] [--json]",
     QT_TRANSLATE_NOOP("Tamo",
                       "readiness, then the EN 16931 and XRechnung rules; exit 0 only when nothing "
                       "fatal remains"),
     true, R, einvoiceCheckCommand},
    {u"einvoice-details N [KEY=VALUE ...]", nullptr, true, W, einvoiceDetailsCommand},
    {u"einvoice-notice", nullptr, false, R, einvoiceNoticeCommand},
    {u"render N (--html FILE|- | --pdf FILE) [--reminder | --slip] [--design INDEX|TITLE]", nullptr,
     true, R, renderCommand},
    {u"export-pdfs DIR [--filter TAG] [--search TEXT]",
     QT_TRANSLATE_NOOP("Tamo", "every listed document, DIR/NUMBER_N.pdf"), true, R,
     exportPdfsCommand},
    {u"designs list | add | import FILE | export INDEX FILE | default INDEX | select INDEX | "
     u"delete INDEX",
     nullptr, true, Access::ListReads, designsCommand},
    {u"templates list | create N [NOTES] | apply INDEX N | delete INDEX", nullptr, true,
     Access::ListReads, templatesCommand},
    {u"report [--from DATE --to DATE] [--filter TAG] [--search TEXT] (--html FILE|- | --pdf FILE "
     u"| --json)",
     QT_TRANSLATE_NOOP(
         "Tamo", "the sales report of the listed invoices; DATE is 2026-03-01 or 2026-03-01T12:00"),
     true, R, reportCommand},
    {u"account-book [--filter TAG] [--search TEXT] --pdf FILE",
     QT_TRANSLATE_NOOP("Tamo", "every listed document, oldest first, as PDF"), true, R,
     accountBookCommand},
    {u"print N [--printer NAME]",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "prints document N on the default printer or NAME; marks an invoice as sent when "
         "markInvoiceAsSent is on"),
     true, W, printCommand},
    {u"pdf N FILE",
     QT_TRANSLATE_NOOP("Tamo", "document N as PDF file; marks an invoice as sent as print does"),
     true, W, pdfCommand},
    {u"mail N [--einvoice]",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "a new message in the mail client (xdg-email) with the PDF, or with the e-invoice after "
         "its checks; marks an invoice as sent as print does"),
     true, W, mailCommand},
    {u"export-document N FILE [--xml]",
     QT_TRANSLATE_NOOP(
         "Tamo", "document file that import-document reads (.tamo), or its XML property list"),
     true, W, exportDocumentCommand},
    {u"send-to ledrix|kelvane [--from DATE] [--to DATE] [--kind 0|1|2] [--items] [--no-open]",
     QT_TRANSLATE_NOOP(
         "Tamo",
         "the invoices of the range (default: every listed one) as kelvaneExport.ldxtamo or "
         ".kelvtamo, handed to the desktop; kind 0 every sent invoice, 1 paid, 2 overdue; --items "
         "keeps each invoice's lines instead of one summary; prints the file's path"),
     true, W, sendToCommand},
};

const CommandEntry* findCommand(const QString& name)
{
    for (const CommandEntry& entry : kCommands) {
        if (entry.name() == name) {
            return &entry;
        }
    }
    return nullptr;
}

// The global options may stand anywhere before "--"; everything else belongs to the command.
bool takeGlobalOption(Invocation& inv, const QStringList& arguments, int& i)
{
    const QString& a = arguments[i];
    if (a == u"--store") {
        if (i + 1 >= arguments.size()) {
            inv.error = tr("--store needs a folder");
        } else {
            inv.storeDirectory = arguments[++i];
        }
        return true;
    }
    if (a.startsWith(u"--store=")) {
        inv.storeDirectory = a.mid(8);
        return true;
    }
    if (a == u"--yes") {
        inv.assumeYes = true;
        return true;
    }
    return false;
}

}  // namespace

QString usage()
{
    QString text = tr("usage: tamo %1").arg(u"[--store DIR] [--yes] [COMMAND ...]"_qs) + u'\n' +
                   tr("  Without a command, opens the window (or brings the one open on the store "
                      "forward).\n"
                      "  Options may stand anywhere; \"--\" ends them.\n"
                      "  tamo [--store DIR] tamo://…  hands a request to the window, or answers "
                      "it without one\n"
                      "  tamo [--store DIR] FILE      asks the window to open FILE, as the "
                      "desktop does\n"
                      "  --store DIR   keep store, settings and data files in DIR\n"
                      "  --yes         answer questions with their default button\n"
                      "  COMMAND --help, or tamo help COMMAND, tells more of one command.\n"
                      "commands:\n");
    for (const CommandEntry& entry : kCommands) {
        text += QStringLiteral("  %1\n").arg(entry.text());
    }
    return text;
}

QString commandHelp(const QString& name)
{
    const CommandEntry* entry = findCommand(name);
    if (!entry) {
        return QString();
    }
    QString text = tr("usage: tamo %1").arg(entry->text()) + u'\n';
    if (entry->note) {
        text += QStringLiteral("  %1\n").arg(tr(entry->note));
    }
    return text;
}

Invocation parseInvocation(const QStringList& arguments)
{
    Invocation inv;
    bool optionsEnded = false;
    for (int i = 1; i < arguments.size() && inv.error.isEmpty(); ++i) {
        const QString& a = arguments[i];
        if (!optionsEnded && takeGlobalOption(inv, arguments, i)) {
            continue;
        }
        if (!inv.command.isEmpty()) {
            optionsEnded = optionsEnded || a == u"--";
            inv.command << a;
        } else if (a.startsWith(u"tamo:", Qt::CaseInsensitive)) {
            inv.url = a;
        } else if (a == u"--help" || a == u"-h") {
            inv.command << QStringLiteral("help");
        } else if (a.startsWith(u'-')) {
            // Options of the windowing system (-platform, -style, ...) are Qt's to read.
        } else {
            inv.command << a;
        }
    }
    // The desktop hands a file to open as the only argument, as a path or a file: URL.
    if (inv.command.size() == 1 && inv.url.isEmpty() && !findCommand(inv.command[0]) &&
        inv.command[0] != u"help") {
        const QUrl url(inv.command[0]);
        const QString path = url.isLocalFile() ? url.toLocalFile() : inv.command[0];
        if (QFileInfo(path).isFile()) {
            inv.file = QFileInfo(path).absoluteFilePath();
            inv.command.clear();
        }
    }
    return inv;
}

namespace {

// A failure's one line; an empty message when the reason has been printed already.
int reportFailure(QTextStream& err, const QString& message, int code)
{
    if (!message.isEmpty()) {
        err << "tamo: " << message << '\n';
        err.flush();
    }
    return code;
}

}  // namespace

int runCommand(const Invocation& inv, QTextStream& out, QTextStream& err)
{
    const auto report = [&](const QString& message, int code) {
        return reportFailure(err, message, code);
    };
    if (!inv.error.isEmpty()) {
        return report(inv.error, kUsageError);
    }
    const QString name = inv.command.value(0);
    const QStringList args = inv.command.mid(1);
    if (name == u"help") {
        const QString help = commandHelp(args.value(0));
        out << (help.isEmpty() ? usage() : help);
        return 0;
    }
    const CommandEntry* command = findCommand(name);
    if (!command) {
        return report(tr("unknown command \"%1\"").arg(name) + u'\n' + usage(), kUsageError);
    }
    const qsizetype end = args.indexOf(u"--"_qs);
    const QStringList options = end < 0 ? args : args.first(end);
    if (options.contains(u"--help"_qs) || options.contains(u"-h"_qs)) {
        out << commandHelp(name);
        return 0;
    }
    const auto words = CommandArgs::parse(command->text(), args);
    if (!words) {
        return report(words.error().message, words.error().code);
    }

    // A file to open goes to the window that holds the store, as from the file manager.
    if (name == u"open" &&
        handToWindow(inv, {QFileInfo(words->operand(0)).absoluteFilePath()}, out)) {
        return 0;
    }
    return runOnSession(
        inv, out, err,
        {.needsStore = command->needsStore, .readsOnly = command->readsOnly(*words), .name = name},
        [&](AppSession& session, QTextStream& reported) {
            return command->run(session, *words, reported);
        });
}

Profile profileOf(const Invocation& invocation)
{
    return invocation.storeDirectory.isEmpty() ? Profile::standard()
                                               : Profile::inDirectory(invocation.storeDirectory);
}

int runOnSession(const Invocation& inv, QTextStream& out, QTextStream& err, const SessionUse& use,
                 const std::function<std::optional<Failure>(AppSession&, QTextStream&)>& body)
{
    const auto report = [&](const QString& message, int code) {
        return reportFailure(err, message, code);
    };
    const Profile profile = profileOf(inv);
    Settings settings(profile.settingsFile);
    SystemClock clock;
    ConsolePrompter prompter(err, inv.assumeYes);
    AppSession session(profile, settings, clock, prompter);
    const bool readsOnly = use.readsOnly;
    // One process writes a store at a time; a command that only reads runs beside the holder.
    session.setStoreUse({.lock = true,
                         .window = false,
                         .readsOnly = readsOnly,
                         .wait = readsOnly ? std::chrono::milliseconds(0) : kCommandLockWait});
    // The store set-up loads the shipped designs, as in the window.
    DesignLibrary designs(session);
    designs.installHooks();
    // Commands see the settings as the window does after its start-up steps.
    applyOneTimeUpdates(settings);
    if (use.needsStore) {
        Context* context = session.managedObjectContext();
        if (!context) {
            return 1;  // the prompter has said why
        }
        if (!readsOnly && context->isReadOnly()) {
            return report(tr("the store “%1” may only be read: %2 “%3” would change it.")
                              .arg(context->path(), session.readOnlyReason(), use.name),
                          1);
        }
        // A command on the store is a run of the application: it starts as the window does
        // (without the window's sheets) and quits as it does, so that the next start knows how
        // this run ended and how many invoices it left.
        session.applicationDidFinishLaunching();
        // The window runs the statistics pass when it lists the documents; numbering and the
        // open/overdue states depend on it.
        WithoutUndo automatic(*context);
        Totals(session).calculateDatabase();
    }
    QString output;
    QTextStream buffered(&output);
    std::optional<Failure> failure = body(session, use.holdOutput ? buffered : out);
    buffered.flush();
    // What the command reports is printed once its work is saved: a command never says it
    // created something that then failed to reach the store.
    const auto printOutput = [&] {
        out << output;
        out.flush();
    };
    // A command that failed keeps nothing of what it began.
    if (failure && session.context()) {
        session.context()->rollback();
    }
    // Commands that replace the store open it on their own; they end as a run on it too.
    if (session.context()) {
        if (session.applicationShouldTerminate() == AppSession::TerminateReply::Cancel) {
            if (failure) {
                printOutput();
                return report(failure->message, failure->code);
            }
            return 1;
        }
        session.applicationWillTerminate();
    } else if (!session.saveContext()) {
        return 1;
    }
    printOutput();
    if (failure) {
        return report(failure->message, failure->code);
    }
    return prompter.errorCount() > 0 ? 1 : 0;
}

}  // namespace tamo
