// Commands for the life of documents: create, duplicate, convert, delete, status, dispatch and
// the list filters.

#include <QLocale>

#include "calc/totals.h"
#include "cli/commands.h"
#include "cli/consoleprompter.h"
#include "documents/lifecycle.h"

namespace tamo {

namespace {

QString describe(const Record* d)
{
    const QString kind =
        d->integer("kind") == 0 ? QStringLiteral("quote") : QStringLiteral("invoice");
    const QString number = d->string("number");
    return number.isEmpty() ? QStringLiteral("%1 %2").arg(kind, d->uniqueID())
                            : QStringLiteral("%1 %2 (%3)").arg(kind, number, d->uniqueID());
}

// The named document as the current one, after checking the command's words.
std::expected<Record*, Failure> select(AppSession& session, const QStringList& args, int count,
                                       const QString& usage)
{
    if (args.size() < count || args.value(0).startsWith(u'-')) {
        return std::unexpected(Failure{QStringLiteral("usage: tamo %1").arg(usage), kUsageError});
    }
    return selectDocument(session, args[0]);
}

std::optional<Failure> create(AppSession& session, const QStringList& args, QTextStream& out,
                              bool invoice)
{
    if (!args.isEmpty()) {
        return Failure{invoice ? QStringLiteral("usage: tamo new-invoice")
                               : QStringLiteral("usage: tamo new-quote"),
                       kUsageError};
    }
    DocumentLifecycle lifecycle(session);
    Record* d = invoice ? lifecycle.addInvoice() : lifecycle.addQuote();
    out << "Created " << describe(d) << '\n';
    return std::nullopt;
}

}  // namespace

std::optional<Failure> newInvoiceCommand(AppSession& session, const QStringList& args,
                                         QTextStream& out)
{
    return create(session, args, out, true);
}

std::optional<Failure> newQuoteCommand(AppSession& session, const QStringList& args,
                                       QTextStream& out)
{
    return create(session, args, out, false);
}

std::optional<Failure> duplicateCommand(AppSession& session, const QStringList& args,
                                        QTextStream& out)
{
    const bool withItems = args.contains(u"--with-items"_qs);
    auto source = select(session, args, 1, u"duplicate N [--with-items]"_qs);
    if (!source) {
        return source.error();
    }
    if (args.size() > (withItems ? 2 : 1)) {
        return Failure{u"usage: tamo duplicate N [--with-items]"_qs, kUsageError};
    }
    Record* copy = DocumentLifecycle(session).duplicateInvoice(withItems);
    out << "Created " << describe(copy) << " as a copy of " << describe(*source) << '\n';
    return std::nullopt;
}

std::optional<Failure> convertCommand(AppSession& session, const QStringList& args,
                                      QTextStream& out)
{
    auto d = select(session, args, 1, u"convert N"_qs);
    if (!d) {
        return d.error();
    }
    if (!DocumentLifecycle(session).convertQuoteToInvoice()) {
        return Failure{QStringLiteral("%1 was not converted").arg(describe(*d))};
    }
    out << "Converted into " << describe(*d) << '\n';
    return std::nullopt;
}

std::optional<Failure> deleteCommand(AppSession& session, const QStringList& args, QTextStream& out)
{
    const bool adjust = args.contains(u"--adjust-counter"_qs);
    auto d = select(session, args, 1, u"delete N [--adjust-counter]"_qs);
    if (!d) {
        return d.error();
    }
    if (auto* console = dynamic_cast<ConsolePrompter*>(&session.prompter())) {
        console->presetAnswer(u"Adjust Counter"_qs, adjust ? u"Adjust Counter"_qs : u"Cancel"_qs);
    }
    const QString what = describe(*d);
    if (!DocumentLifecycle(session).deleteInvoice()) {
        return Failure{QStringLiteral("%1 was not deleted").arg(what)};
    }
    out << "Deleted " << what << '\n';
    return std::nullopt;
}

std::optional<Failure> setStatusCommand(AppSession& session, const QStringList& args,
                                        QTextStream& out)
{
    const QString usage = u"set-status N 0..4 [--paid-amount X]"_qs;
    auto d = select(session, args, 2, usage);
    if (!d) {
        return d.error();
    }
    bool ok = false;
    const int status = args[1].toInt(&ok);
    if (!ok || status < 0 || status > 4) {
        return Failure{QStringLiteral("usage: tamo %1").arg(usage), kUsageError};
    }
    std::optional<double> paid;
    if (const qsizetype i = args.indexOf(u"--paid-amount"_qs); i >= 0) {
        paid = QLocale::c().toDouble(args.value(i + 1), &ok);
        if (!ok) {
            return Failure{u"--paid-amount needs a number such as 120.50"_qs, kUsageError};
        }
    }
    {
        UndoGroup group(*session.context(), u"Set Status"_qs);
        (*d)->setValue("status", status);
        if (paid) {
            (*d)->setValue("paidAmount", *paid);
        }
        Totals(session).calculateInvoice(**d);
    }
    out << describe(*d) << ": status " << status << '\n';
    return std::nullopt;
}

std::optional<Failure> dispatchCommand(AppSession& session, const QStringList& args,
                                       QTextStream& out)
{
    auto d = select(session, args, 1, u"dispatch N"_qs);
    if (!d) {
        return d.error();
    }
    DocumentLifecycle(session).setDispatched();
    out << describe(*d) << ": delivered " << (*d)->date("dispatched").toString(Qt::ISODate) << '\n';
    return std::nullopt;
}

std::optional<Failure> filterCommand(AppSession& session, const QStringList& args, QTextStream& out)
{
    bool ok = false;
    const int tag = args.value(0).toInt(&ok);
    if (!ok || args.size() > 2) {
        return Failure{u"usage: tamo filter TAG [--json]   (TAG 0 to 8)"_qs, kUsageError};
    }
    DocumentLifecycle(session).selectFilter(tag);
    return listCommand(session, args.mid(1), out);
}

}  // namespace tamo
