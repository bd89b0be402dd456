#include "einvoice/einvoiceactions.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSaveFile>

#include "calc/totals.h"
#include "documents/lineitems.h"
#include "einvoice/ubldocument.h"

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
    const Record* invoice = session_.documents().current();
    if (!invoice) {
        return {};
    }
    return tamo::evoiceXMLString(*invoice, LineItems(session_).sortedItems(*invoice),
                                 session_.settings(), session_.clock().now());
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

Result<void> EinvoiceActions::writeEvoiceXML(const QString& path) const
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(evoiceXMLString().toUtf8());
        if (file.commit()) {
            qCInfo(lcEinvoice).noquote()
                << QStringLiteral("File saved successfully at %1").arg(path);
            return {};
        }
    }
    qCWarning(lcEinvoice).noquote()
        << QStringLiteral("Error saving file: %1").arg(file.errorString());
    return fail(QStringLiteral("tamo.einvoice"), 1,
                QCoreApplication::translate("Einvoice", "The e-invoice could not be saved at %1.")
                    .arg(path),
                file.errorString());
}

void EinvoiceActions::writeEvoiceXMLToDisk()
{
    if (!session_.documents().current()) {
        return;
    }
    FileRequest request;
    request.title = QCoreApplication::translate("Einvoice", "Save E-Invoice XML File");
    request.extensions = {QStringLiteral("xml")};
    request.proposedName = proposedFileName();
    request.canCreateDirectories = true;
    if (const auto path = session_.prompter().chooseFileToSave(request); path && !path->isEmpty()) {
        (void)writeEvoiceXML(*path);  // logged; the user is not told
    }
}

void EinvoiceActions::exportEvoiceAction()
{
    markAsSent();
    session_.saveContext();
    writeEvoiceXMLToDisk();
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
