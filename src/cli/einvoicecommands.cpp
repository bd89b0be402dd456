// The e-invoice on the command line: the export of the generate sheet with the file named as an
// argument, the readiness check, the details sheet and the e-invoicing notice.

#include <QFileInfo>

#include "cli/commands.h"
#include "einvoice/einvoiceactions.h"

namespace tamo {

namespace {

Failure alreadySent(const QString& document)
{
    return Failure{QStringLiteral("%1 is marked as already sent; set its status back to Created "
                                  "to change or export it again")
                       .arg(document)};
}

}  // namespace

std::optional<Failure> einvoiceCommand(AppSession& session, const CommandArgs& args,
                                       QTextStream& out)
{
    const QStringList& operands = args.operands();
    const bool force = args.has(u"--force"_qs);
    if (operands.size() != 2) {
        return args.usage();
    }
    auto document = selectDocument(session, operands[0]);
    if (!document) {
        return document.error();
    }
    EinvoiceActions actions(session);
    if (force) {
        out << "Skipped the e-invoice readiness check (--force); the file may lack required "
               "values.\n";
    } else if (const Readiness readiness = actions.isEvoiceActionPossible();
               !readiness.possible()) {
        return Failure{QStringLiteral("no e-invoice for %1: %2 (see einvoice-details, settings)")
                           .arg(operands[0], readiness.reason())};
    }
    if (actions.isCurrentInvoiceSent()) {
        return alreadySent(operands[0]);
    }
    actions.markAsSent();
    const QString path = QFileInfo(operands[1]).absoluteFilePath();
    if (auto written = actions.writeEvoiceXML(path); !written) {
        return Failure{written.error().text()};  // the store is not saved: nothing is marked
    }
    out << "Wrote " << path << '\n';
    return std::nullopt;
}

std::optional<Failure> einvoiceCheckCommand(AppSession& session, const CommandArgs& args,
                                            QTextStream& out)
{
    if (args.operandCount() != 1) {
        return args.usage();
    }
    auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return document.error();
    }
    const Readiness readiness = EinvoiceActions(session).isEvoiceActionPossible();
    if (!readiness.possible()) {
        out << "not possible: " << readiness.reason() << '\n';
        return Failure{QStringLiteral("%1 cannot become an e-invoice yet").arg(args.operand(0))};
    }
    out << "possible\n";
    return std::nullopt;
}

std::optional<Failure> einvoiceDetailsCommand(AppSession& session, const CommandArgs& args,
                                              QTextStream& out)
{
    const auto fields = evoiceDetailFields();
    QStringList keys;
    for (const EvoiceField& field : fields) {
        keys << QString::fromLatin1(field.key);
    }
    const auto usage = [&] {
        return args.usage(QStringLiteral("KEY is one of %1").arg(keys.join(u", ")));
    };
    if (args.operandCount() == 0) {
        return usage();
    }
    // Every assignment is understood before the first is made.
    QList<std::pair<QString, QString>> changes;
    for (const QString& assignment : args.operands().mid(1)) {
        const QString key = assignment.section(u'=', 0, 0);
        if (!assignment.contains(u'=') || !keys.contains(key)) {
            return usage();
        }
        changes.append({key, assignment.section(u'=', 1)});
    }
    auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return document.error();
    }
    EinvoiceActions actions(session);
    if (!changes.isEmpty() && actions.isCurrentInvoiceSent()) {
        return alreadySent(args.operand(0));
    }
    for (const auto& [key, value] : changes) {
        actions.setEvoiceDetail(key.toStdString(), value);
    }
    for (const EvoiceField& field : fields) {
        out << evoiceFieldLabel(field) << " (" << field.key
            << "): " << (*document)->string(field.key) << '\n';
    }
    return std::nullopt;
}

std::optional<Failure> einvoiceNoticeCommand(AppSession&, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() > 0) {
        return args.usage();
    }
    const EinvoiceNotice notice = einvoiceNotice();
    out << notice.title << "\n\n" << notice.text << "\n\n";
    for (qsizetype i = 0; i < notice.links.size(); ++i) {
        out << notice.buttons.value(i + 1) << ": " << notice.links[i].toString() << '\n';
    }
    return std::nullopt;
}

}  // namespace tamo
