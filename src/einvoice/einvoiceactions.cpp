#include "einvoice/einvoiceactions.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include "calc/totals.h"
#include "documents/lineitems.h"
#include "einvoice/decimal.h"
#include "einvoice/rulecheck.h"
#include "einvoice/ubldocument.h"
#include "platform/filewriting.h"

namespace tamo {

Q_LOGGING_CATEGORY(lcEinvoice, "tamo.einvoice")

Readiness EinvoiceActions::isEvoiceActionPossible()
{
    Record* invoice = session_.documents().current();
    if (!invoice) {
        return {Readiness::Step::NoDocument, {}};
    }
    session_.documents().rearrange();
    {
        // Bringing figures up to date is not something the user did, so there is nothing to undo.
        WithoutUndo automatic(invoice->context());
        UndoGroup group(invoice->context(), {});
        Totals(session_).calculateInvoice(*invoice);
    }
    const Readiness readiness = checkReadiness(*invoice, session_.settings());
    if (!readiness.possible()) {
        qCDebug(lcEinvoice).noquote()
            << "No e-invoice for" << invoice->string("number") << "-" << readiness.reason();
    }
    return readiness;
}

void EinvoiceActions::showEvoiceActionErrorAlert()
{
    session_.prompter().ask(evoiceRequirementsAlert());
}

bool EinvoiceActions::mayChangeCurrentInvoice()
{
    return !lifecycle_.refuseChangesToSentDocument() && session_.documents().current();
}

void EinvoiceActions::markAsSent()
{
    Record* invoice = session_.documents().current();
    if (!invoice || invoice->integer("kind") != 1 ||
        !session_.settings().boolean(key::markInvoiceAsSent)) {
        return;
    }
    UndoGroup group(invoice->context(),
                    QCoreApplication::translate("Einvoice", "Mark Invoice as Sent"));
    invoice->setValue("status", 1);
    session_.documents().rearrange();
    Totals(session_).calculateInvoice(*invoice);
}

QString EinvoiceActions::evoiceXMLString() const
{
    const auto xml = einvoiceXML({});
    return xml ? *xml : QString();
}

std::expected<UblDocument, Finding> EinvoiceActions::einvoiceDocument(
    const EinvoiceOptions& options) const
{
    const Record* invoice = session_.documents().current();
    if (!invoice) {
        return std::unexpected(
            Finding{QStringLiteral("TAMO-CONFORMANT"),
                    Finding::Severity::Fatal,
                    QCoreApplication::translate("Einvoice", "No document is selected."),
                    {}});
    }
    const std::vector<Record*> lines = LineItems(session_).sortedItems(*invoice);
    if (options.conformant) {
        return conformantDocument(*invoice, lines, session_.settings(), session_.clock().now(),
                                  options);
    }
    return evoiceDocument(*invoice, lines, session_.settings(), session_.clock().now());
}

std::expected<QString, Finding> EinvoiceActions::einvoiceXML(const EinvoiceOptions& options) const
{
    const auto document = einvoiceDocument(options);
    if (!document) {
        return std::unexpected(document.error());
    }
    return serialise(*document);
}

std::vector<Finding> EinvoiceActions::einvoiceFindings(const EinvoiceOptions& options) const
{
    const auto document = einvoiceDocument(options);
    if (!document) {
        return {document.error()};
    }
    std::vector<Finding> findings = checkEinvoiceRules(*document);
    const QString due = document->root.textAt(u"cac:LegalMonetaryTotal/cbc:PayableAmount");
    const QString shown = amountText(session_.documents().current()->decimal("amount"));
    if (options.conformant && due != shown) {
        findings.push_back(
            {QStringLiteral("TAMO-AMOUNT"),
             Finding::Severity::Warning,
             QCoreApplication::translate(
                 "Einvoice",
                 "The conformant file asks for %1, while the document shows %2: the rules levy "
                 "each tax on the amount after the discount at each line's own rate and round "
                 "each tax subtotal once, which the document's totals do not.")
                 .arg(due, shown),
             {}});
    }
    return findings;
}

EinvoiceCheck EinvoiceActions::checkEinvoice(const EinvoiceOptions& options)
{
    EinvoiceCheck check{isEvoiceActionPossible(), {}};
    if (session_.documents().current()) {
        check.findings = einvoiceFindings(options);
    }
    return check;
}

Alert likelyRejectedAlert(const std::vector<Finding>& findings)
{
    const auto fatal =
        std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.fatal(); });
    const auto first =
        std::find_if(findings.begin(), findings.end(), [](const Finding& f) { return f.fatal(); });
    const QString intro =
        fatal == 1 ? QCoreApplication::translate("Einvoice",
                                                 "It breaks a rule the recipient's validator "
                                                 "checks:")
                   : QCoreApplication::translate("Einvoice",
                                                 "It breaks %1 rules the recipient's validator "
                                                 "checks, the first:")
                         .arg(fatal);
    return {QCoreApplication::translate("Einvoice", "This e-invoice will likely be rejected"),
            intro + u"\n\n"_qs + first->rule + u": "_qs + first->message + u"\n\n"_qs +
                QCoreApplication::translate("Einvoice", "Export it anyway?"),
            {QCoreApplication::translate("Einvoice", "Export Anyway"),
             QCoreApplication::translate("Einvoice", "Cancel")}};
}

bool EinvoiceActions::mayExport(const EinvoiceOptions& options)
{
    const std::vector<Finding> findings = einvoiceFindings(options);
    const auto refused = std::find_if(findings.begin(), findings.end(), [](const Finding& f) {
        return f.rule == u"TAMO-CONFORMANT";
    });
    if (refused != findings.end()) {
        session_.prompter().ask({QCoreApplication::translate("Einvoice", "Error!"),
                                 refused->message,
                                 {QCoreApplication::translate("Einvoice", "OK")}});
        return false;
    }
    return confirmDespiteFindings(findings);
}

bool EinvoiceActions::confirmDespiteFindings(const std::vector<Finding>& findings)
{
    if (!hasFatal(findings)) {
        return true;
    }
    return session_.prompter().ask(likelyRejectedAlert(findings)) ==
           QCoreApplication::translate("Einvoice", "Export Anyway");
}

QString EinvoiceActions::proposedFileName() const
{
    const Record* invoice = session_.documents().current();
    if (!invoice) {
        return {};
    }
    QString name = QStringLiteral("%1 - %2 - %3")
                       .arg(session_.settings().string(key::prefsSupplierLegalName),
                            invoice->string("title"), invoice->string("number"));
    return name.replace(u'/', u'-');
}

Result<void> EinvoiceActions::writeEvoiceXML(const QString& path,
                                             const EinvoiceOptions& options) const
{
    const auto xml = einvoiceXML(options);
    if (!xml) {
        return fail(QStringLiteral("tamo.einvoice"), 2, xml.error().message);
    }
    if (auto written = writeFileAtomically(path, xml->toUtf8()); !written) {
        qCWarning(lcEinvoice).noquote()
            << QStringLiteral("Error saving file: %1").arg(written.error().reason);
        return fail(
            QStringLiteral("tamo.einvoice"), 1,
            QCoreApplication::translate("Einvoice", "The e-invoice could not be saved at %1.")
                .arg(path),
            written.error().reason);
    }
    qCInfo(lcEinvoice).noquote() << QStringLiteral("File saved successfully at %1").arg(path);
    return {};
}

void EinvoiceActions::writeEvoiceXMLToDisk(const EinvoiceOptions& options)
{
    if (!session_.documents().current()) {
        return;
    }
    FileRequest request;
    request.title = QCoreApplication::translate("Einvoice", "Save E-Invoice XML File");
    request.message = QCoreApplication::translate(
        "Einvoice", "Choose a location to save your E-Invoice XML file.");
    request.extensions = {QStringLiteral("xml")};
    request.proposedName = proposedFileName();
    request.canCreateDirectories = true;
    if (const auto path = session_.prompter().chooseFileToSave(request); path && !path->isEmpty()) {
        (void)writeEvoiceXML(*path, options);  // logged; the user is not told
    }
}

void EinvoiceActions::exportEvoiceAction(const EinvoiceOptions& options)
{
    markAsSent();
    session_.saveContext();
    writeEvoiceXMLToDisk(options);
}

void EinvoiceActions::setEvoiceDetail(std::string_view key, const QString& value)
{
    Record* invoice = session_.documents().current();
    if (!invoice || invoice->string(key) == value) {
        return;
    }
    {
        UndoGroup group(invoice->context(),
                        QCoreApplication::translate("Einvoice", "Edit E-Invoice Details"));
        invoice->setValue(key, value);
    }
    session_.saveContext();
}

}  // namespace tamo
