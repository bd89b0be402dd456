#include <QLocale>

#include "calc/numbering.h"
#include "calc/totals.h"
#include "cli/commands.h"
#include "model/appsession.h"

namespace tamo {

namespace {

QString money(float value)
{
    return QLocale::c().toString(double(value), 'f', 2);
}

}  // namespace

std::optional<Failure> recalcCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() > 0) {
        return args.usage();
    }
    Context& context = *session.context();
    {
        WithoutUndo withoutUndo(context);
        UndoGroup group(context, QStringLiteral("Recalculate"));  // announced once, not per value
        Totals(session).calculateDocuments(context.fetch("Invoice"));
    }
    const DocumentStatistics& s = session.statistics();
    out << tr("Invoices: %1 (%2 sent)").arg(s.invoiceCountForNumber).arg(s.invoiceCount) << '\n'
        << tr("Quotes: %1").arg(s.quoteCount) << '\n'
        << tr("Total: %1").arg(money(s.totalAmount)) << '\n'
        << tr("Paid: %1").arg(money(s.paidAmount)) << '\n'
        << tr("Due: %1").arg(money(s.dueAmount)) << '\n';
    return std::nullopt;
}

std::optional<Failure> nextNumberCommand(AppSession& session, const CommandArgs& args,
                                         QTextStream& out)
{
    const QString kind = args.operand(0);
    if (args.operandCount() != 1 || (kind != u"invoice" && kind != u"quote" && kind != u"client")) {
        return args.usage();
    }
    {
        // The counts come from the statistics pass, as they do in the window.
        UndoGroup group(*session.context(), QStringLiteral("Update Statistics"));
        Totals(session).calculateDatabase();
    }
    const Numbering numbering(session);
    if (kind == u"invoice") {
        out << numbering.invoiceNumberString() << '\n';
    } else if (kind == u"quote") {
        out << numbering.quoteNumberString() << '\n';
    } else {
        out << numbering.clientNumberString() << '\n';
    }
    return std::nullopt;
}

}  // namespace tamo
