// The e-invoice on the command line: the export of the generate sheet with the file named as an
// argument, the readiness and rule checks, the details sheet and the e-invoicing notice.

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/commands.h"
#include "einvoice/einvoiceactions.h"

namespace tamo {

namespace {

Failure alreadySent(const QString& document)
{
    return Failure{tr("%1 is marked as already sent; set its status back to Created to change or "
                      "export it again")
                       .arg(document)};
}

// The settings' choice of file unless the command line names one.
EinvoiceOptions optionsFor(const AppSession& session, const CommandArgs& args)
{
    EinvoiceOptions options = einvoiceOptions(session.settings());
    if (args.has(u"--conformant"_qs)) {
        options.conformant = true;
    } else if (args.has(u"--standard"_qs)) {
        options.conformant = false;
    }
    return options;
}

QString severityText(const Finding& finding)
{
    return finding.fatal() ? u"fatal"_qs : u"warning"_qs;
}

void printFindings(const EinvoiceCheck& check, QTextStream& out)
{
    out << (check.readiness.possible() ? tr("possible")
                                       : tr("not possible: %1").arg(check.readiness.reason()))
        << '\n';
    for (const Finding& f : check.findings) {
        out << f.rule << ' ' << (f.fatal() ? tr("fatal") : tr("warning")) << ": " << f.message;
        if (const QString where = einvoiceFieldLabel(f.field); !where.isEmpty()) {
            out << " [" << where << ']';
        }
        out << '\n';
    }
    const auto fatal = std::count_if(check.findings.begin(), check.findings.end(),
                                     [](const Finding& f) { return f.fatal(); });
    if (fatal == 0) {
        out << tr("passes the EN 16931 and XRechnung rules") << '\n';
    } else {
        out << tr("%n fatal finding(s): the recipient's validator will likely reject the file",
                  nullptr, int(fatal))
            << '\n';
    }
}

void printJson(const EinvoiceCheck& check, QTextStream& out)
{
    QJsonArray findings;
    for (const Finding& f : check.findings) {
        findings.append(QJsonObject{{u"rule"_qs, f.rule},
                                    {u"severity"_qs, severityText(f)},
                                    {u"message"_qs, f.message},
                                    {u"field"_qs, einvoiceFieldLabel(f.field)}});
    }
    out << QJsonDocument(
               QJsonObject{{u"ready"_qs, check.readiness.possible()}, {u"findings"_qs, findings}})
               .toJson(QJsonDocument::Compact)
        << '\n';
}

}  // namespace

std::optional<Failure> einvoiceGate(EinvoiceActions& actions, const QString& document,
                                    const EinvoiceOptions& options, bool force, QTextStream& out)
{
    if (force) {
        out << tr("Skipped the e-invoice readiness check (--force); the file may lack required "
                  "values.")
            << '\n';
    } else if (const Readiness readiness = actions.isEvoiceActionPossible();
               !readiness.possible()) {
        return Failure{tr("no e-invoice for %1: %2 (see einvoice-details, settings)")
                           .arg(document, readiness.reason())};
    }
    if (actions.isCurrentInvoiceSent()) {
        return alreadySent(document);
    }
    const std::vector<Finding> findings = actions.einvoiceFindings(options);
    if (const auto refused =
            std::find_if(findings.begin(), findings.end(),
                         [](const Finding& f) { return f.rule == u"TAMO-CONFORMANT"; });
        refused != findings.end()) {
        return Failure{tr("no conformant e-invoice for %1: %2").arg(document, refused->message)};
    }
    if (hasFatal(findings)) {
        // Scripts keep their exports; einvoice-check is the gate that fails.
        out << tr("Warning: this e-invoice will likely be rejected: it breaks rules the "
                  "recipient's validator checks (see einvoice-check %1).")
                   .arg(document)
            << '\n';
    }
    return std::nullopt;
}

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
    const EinvoiceOptions options = optionsFor(session, args);
    if (auto refused = einvoiceGate(actions, operands[0], options, force, out)) {
        return refused;
    }
    actions.markAsSent();
    const QString path = QFileInfo(operands[1]).absoluteFilePath();
    if (auto written = actions.writeEvoiceXML(path, options); !written) {
        return Failure{written.error().text()};  // the store is not saved: nothing is marked
    }
    out << tr("Wrote %1").arg(path) << '\n';
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
    const EinvoiceCheck check = EinvoiceActions(session).checkEinvoice(optionsFor(session, args));
    if (args.has(u"--json"_qs)) {
        printJson(check, out);
    } else {
        printFindings(check, out);
    }
    if (!check.readiness.possible()) {
        return Failure{tr("%1 cannot become an e-invoice yet").arg(args.operand(0))};
    }
    if (!check.passes()) {
        return Failure{tr("%1 breaks rules of EN 16931 or XRechnung").arg(args.operand(0))};
    }
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
    const auto usage = [&] { return args.usage(tr("KEY is one of %1").arg(keys.join(u", "))); };
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
