// The accounting applications and the desktop's requests on the command line: the send export,
// opening a file, and a tamo:// URL answered without a window.

#include <QCoreApplication>
#include <QEventLoop>

#include "accounting/externalrequests.h"
#include "accounting/ledrixsend.h"
#include "accounting/lenientdate.h"
#include "cli/commandline.h"
#include "cli/commands.h"
#include "interchange/datainterchange.h"
#include "model/appsession.h"
#include "model/storelocation.h"
#include "model/storelock.h"
#include "platform/handoff.h"
#include "render/designlibrary.h"

namespace tamo {

std::optional<Failure> sendToCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    const QString target = args.operand(0);
    if (args.operandCount() != 1 || (target != u"ledrix" && target != u"kelvane")) {
        return args.usage();
    }
    bool kindOk = true;
    const int kind = args.value(u"--kind"_qs, u"0"_qs).toInt(&kindOk);
    if (!kindOk || kind < 0 || kind > 2) {
        return args.usage(QCoreApplication::translate(
            "tamo::AccountingCommands",
            "--kind is 0 (every sent invoice), 1 (paid) or 2 (overdue)"));
    }
    LedrixSend send(session);
    // As the sheet: it opens on every listed invoice, and its controls set the settings.
    send.sendToLedrix(target == u"ledrix" ? 0 : 1);
    Settings& settings = session.settings();
    for (const auto& [option, part, setting] :
         {std::tuple{u"--from"_qs, DayPart::Start, &key::prefsLedrixExportBeginDate},
          std::tuple{u"--to"_qs, DayPart::End, &key::prefsLedrixExportEndDate}}) {
        if (!args.has(option)) {
            continue;
        }
        const auto date = dateFromString(args.value(option), part);
        if (!date) {
            return args.usage(QCoreApplication::translate("tamo::AccountingCommands",
                                                          "%1 needs a date such as 2026-03-01")
                                  .arg(option));
        }
        settings.set(*setting, *date);
    }
    settings.set(key::prefsLedrixExportKind, kind);
    settings.set(key::prefsLedrixExportItemsKind, args.has(u"--items"_qs) ? 1 : 0);
    send.doTheLedrixFilter();

    const auto written = send.writeExportFile();
    if (!written) {
        return Failure{written.error().text()};
    }
    out << *written << '\n';
    out.flush();
    if (args.has(u"--no-open"_qs)) {
        return std::nullopt;
    }
    std::optional<Result<void>> opened;
    QEventLoop loop;
    send.openExportFile([&](const Result<void>& outcome) {
        opened = outcome;
        loop.quit();
    });
    if (!opened) {
        loop.exec();
    }
    if (!*opened) {
        return Failure{opened->error().text()};
    }
    return std::nullopt;
}

std::optional<Failure> openFileCommand(AppSession& session, const CommandArgs& args, QTextStream&)
{
    if (args.operandCount() != 1) {
        return args.usage();
    }
    DataInterchange interchange(session);
    DesignLibrary designs(session);
    ExternalRequests(session, interchange, designs).openFile(args.operand(0));
    return std::nullopt;
}

bool handToWindow(const Invocation& invocation, const QStringList& arguments, QTextStream& out)
{
    const Profile profile = profileOf(invocation);
    const QString folder = storeFolder(Settings(profile.settingsFile), profile);
    const auto holder = StoreLock::currentHolder(folder + u'/' + QLatin1String(kStoreFileName));
    if (!holder || !holder->window || !handOff(handoffSocketName(folder), arguments)) {
        return false;
    }
    out << QCoreApplication::translate("tamo::AccountingCommands", "Handed “%1” to %2.")
               .arg(arguments.join(u' '), holder->describe())
        << '\n';
    out.flush();
    return true;
}

int runUrlRequest(const Invocation& invocation, QTextStream& out, QTextStream& err)
{
    // Progress is shown as it happens.
    const SessionUse use{.needsStore = true, .name = invocation.url, .holdOutput = false};
    return runOnSession(invocation, out, err, use, [&](AppSession& session, QTextStream&) {
        DataInterchange interchange(session);
        DesignLibrary designs(session);
        ExternalRequests requests(session, interchange, designs);
        const LedrixImport& import = requests.ledrixImport();
        bool imported = false;
        QObject::connect(&import, &LedrixImport::started, [&out, &imported](int count) {
            imported = true;
            out << QCoreApplication::translate("tamo::AccountingCommands",
                                               "Writing %1 PDFs for Ledrix…")
                       .arg(count)
                << '\n';
            out.flush();
        });
        QObject::connect(&import, &LedrixImport::pdfFinished,
                         [&out](int done, int count, const QString& path, bool written) {
                             out << QStringLiteral("[%1/%2] %3%4\n")
                                        .arg(done)
                                        .arg(count)
                                        .arg(written
                                                 ? QString()
                                                 : QCoreApplication::translate(
                                                       "tamo::AccountingCommands", "not written: "),
                                             path);
                             out.flush();
                         });
        QEventLoop loop;
        std::optional<bool> answered;
        QObject::connect(&requests, &ExternalRequests::urlAnswered, &loop, [&](bool done) {
            answered = done;
            loop.quit();
        });
        if (!requests.handleURL(invocation.url)) {
            return std::optional(Failure{QString()});  // the alert has said why
        }
        if (!answered) {
            loop.exec();
        }
        if (!*answered) {
            return std::optional(Failure{QString()});
        }
        if (imported) {
            out << QCoreApplication::translate("tamo::AccountingCommands",
                                               "Wrote %1 and called Ledrix back.")
                       .arg(import.importListPath())
                << '\n';
        }
        return std::optional<Failure>();
    });
}

}  // namespace tamo
