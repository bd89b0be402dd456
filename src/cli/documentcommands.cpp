// Commands for the life of documents: create, duplicate, convert, delete, status, dispatch and
// the list filters.

#include <QLocale>

#include "calc/amountinput.h"
#include "calc/totals.h"
#include "cli/commands.h"
#include "cli/consoleprompter.h"
#include "documents/lifecycle.h"

namespace tamo {

namespace {

QString describe(const Record* d)
{
    const QString kind = d->integer("kind") == 0 ? tr("quote") : tr("invoice");
    const QString number = d->string("number");
    return number.isEmpty() ? QStringLiteral("%1 %2").arg(kind, d->uniqueID())
                            : QStringLiteral("%1 %2 (%3)").arg(kind, number, d->uniqueID());
}

// The named document as the current one, after checking the number of operands.
std::expected<Record*, Failure> select(AppSession& session, const CommandArgs& args, int count)
{
    if (args.operandCount() != count) {
        return std::unexpected(args.usage());
    }
    return selectDocument(session, args.operand(0));
}

std::optional<Failure> create(AppSession& session, const CommandArgs& args, QTextStream& out,
                              bool invoice)
{
    if (args.operandCount() > 0) {
        return args.usage();
    }
    DocumentLifecycle lifecycle(session);
    Record* d = invoice ? lifecycle.addInvoice() : lifecycle.addQuote();
    out << tr("Created %1").arg(describe(d)) << '\n';
    return std::nullopt;
}

}  // namespace

std::optional<Failure> newInvoiceCommand(AppSession& session, const CommandArgs& args,
                                         QTextStream& out)
{
    return create(session, args, out, true);
}

std::optional<Failure> newQuoteCommand(AppSession& session, const CommandArgs& args,
                                       QTextStream& out)
{
    return create(session, args, out, false);
}

std::optional<Failure> duplicateCommand(AppSession& session, const CommandArgs& args,
                                        QTextStream& out)
{
    const bool withItems = args.has(u"--with-items"_qs);
    auto source = select(session, args, 1);
    if (!source) {
        return source.error();
    }
    Record* copy = DocumentLifecycle(session).duplicateInvoice(withItems);
    out << tr("Created %1 as a copy of %2").arg(describe(copy), describe(*source)) << '\n';
    return std::nullopt;
}

std::optional<Failure> convertCommand(AppSession& session, const CommandArgs& args,
                                      QTextStream& out)
{
    auto d = select(session, args, 1);
    if (!d) {
        return d.error();
    }
    if (!DocumentLifecycle(session).convertQuoteToInvoice()) {
        return Failure{tr("%1 was not converted").arg(describe(*d))};
    }
    out << tr("Converted into %1").arg(describe(*d)) << '\n';
    return std::nullopt;
}

std::optional<Failure> deleteCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    const bool adjust = args.has(u"--adjust-counter"_qs);
    auto d = select(session, args, 1);
    if (!d) {
        return d.error();
    }
    if (auto* console = dynamic_cast<ConsolePrompter*>(&session.prompter())) {
        console->presetAnswer(tr("Adjust Counter"), adjust ? tr("Adjust Counter") : tr("Cancel"));
    }
    const QString what = describe(*d);
    if (!DocumentLifecycle(session).deleteInvoice()) {
        return Failure{tr("%1 was not deleted").arg(what)};
    }
    out << tr("Deleted %1").arg(what) << '\n';
    return std::nullopt;
}

std::optional<Failure> setStatusCommand(AppSession& session, const CommandArgs& args,
                                        QTextStream& out)
{
    bool ok = false;
    const int status = args.operand(1).toInt(&ok);
    // As in the window: overdue follows from the due date, never from a choice.
    if (args.operandCount() == 2 && (!ok || status < 0 || status > 4 || status == 2)) {
        return args.usage(tr("the status is 0, 1, 3 or 4 (overdue follows from the due date), "
                             "not %1")
                              .arg(args.operand(1)));
    }
    std::optional<double> paid;
    if (args.has(u"--paid-amount"_qs)) {
        paid = QLocale::c().toDouble(args.value(u"--paid-amount"_qs), &ok);
        if (!ok) {
            return args.usage(tr("%1 needs a number such as 120.50").arg(u"--paid-amount"_qs));
        }
        if (const auto checked = checkedAmount(*paid); !checked) {
            return Failure{QStringLiteral("set-status: %1").arg(checked.error())};
        }
    }
    auto d = select(session, args, 2);
    if (!d) {
        return d.error();
    }
    {
        UndoGroup group(*session.context(), tr("Set Status"));
        (*d)->setValue("status", status);
        if (paid) {
            (*d)->setValue("paidAmount", *paid);
        }
        Totals(session).calculateInvoice(**d);
    }
    out << tr("%1: status %2").arg(describe(*d)).arg(status) << '\n';
    return std::nullopt;
}

std::optional<Failure> dispatchCommand(AppSession& session, const CommandArgs& args,
                                       QTextStream& out)
{
    auto d = select(session, args, 1);
    if (!d) {
        return d.error();
    }
    DocumentLifecycle(session).setDispatched();
    out << tr("%1: delivered %2").arg(describe(*d), (*d)->date("dispatched").toString(Qt::ISODate))
        << '\n';
    return std::nullopt;
}

std::optional<Failure> filterCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    bool ok = false;
    const int tag = args.operand(0).toInt(&ok);
    if (args.operandCount() != 1 || !ok || tag < 0 || tag > 8) {
        return args.usage(tr("TAG is a number from 0 to 8"));
    }
    DocumentLifecycle(session).selectFilter(tag);
    printDocumentList(session, args.has(u"--json"_qs), out);
    return std::nullopt;
}

}  // namespace tamo
