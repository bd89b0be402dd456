#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <expected>
#include <span>
#include <string_view>

#include "documents/lifecycle.h"
#include "einvoice/conformantdocument.h"
#include "einvoice/findings.h"
#include "model/appsession.h"
#include "platform/error.h"

namespace tamo {

// The outcome of the e-invoice readiness check: possible, or the first step that failed.
struct Readiness {
    enum class Step {
        NoDocument = 1,
        Amount = 2,
        Items = 3,
        DiscountBeforeTaxes = 4,
        SupplierSetting = 5,
        InvoiceValue = 6,
        Possible = 7
    };
    Step step = Step::Possible;
    QString key;  // the empty supplier setting or invoice value

    bool possible() const { return step == Step::Possible; }
    // One line for the log and the command line.
    QString reason() const;
};

// The check on an invoice whose totals are current: an amount other than 0 (negative totals
// pass), at least one line, discounts before taxes, then the twelve supplier settings and the
// nine invoice values in a fixed order. Only a value's length counts, so a setting of spaces
// passes. Deliberately no line is checked for a negative price, though
// the requirements notice mentions it.
Readiness checkReadiness(const Record& invoice, const Settings& settings);

// The twelve supplier settings the check needs, in its order, and those of them still empty.
std::span<const SettingKey* const> supplierCheckKeys();
std::vector<const SettingKey*> missingSupplierSettings(const Settings& settings);

// A field of the e-invoice details sheet: an invoice attribute and its label.
struct EvoiceField {
    const char* key;
    const char* label;
};
// The nine values the check needs, in its order, then the contact person.
std::span<const EvoiceField> evoiceDetailFields();
QString evoiceFieldLabel(const EvoiceField& field);

// "E-Invoice Requirements": what a valid e-invoice needs, as one fixed text whichever step failed.
Alert evoiceRequirementsAlert();

// The informational notice about e-invoicing shown once after start-up and from the menu. The
// first button closes it; each further button opens the link at the same position in `links`.
struct EinvoiceNotice {
    QString title;
    QString text;
    QStringList buttons;
    QList<QUrl> links;
};
EinvoiceNotice einvoiceNotice();

// The readiness check and the rule check of one e-invoice.
struct EinvoiceCheck {
    Readiness readiness;
    std::vector<Finding> findings;

    // Ready, and nothing the recipient's validator would reject.
    bool passes() const { return readiness.possible() && !hasFatal(findings); }
};

// "Export Anyway" / "Cancel": asked before an e-invoice with fatal findings leaves the program.
Alert likelyRejectedAlert(const std::vector<Finding>& findings);

// The e-invoice operations on the session's current document: the readiness check and its
// notice, the already-sent guard of the e-invoice sheets, marking as sent, the XML file and the
// details. Questions and panels go through the session's prompter; the file is only logged
// (category "tamo.einvoice"), as the user is shown nothing on success or failure.
class EinvoiceActions {
public:
    explicit EinvoiceActions(AppSession& session) : session_(session), lifecycle_(session) {}

    // Re-arranges the list and recalculates the current invoice and the list's figures first, so
    // that the check sees what the window will show.
    Readiness isEvoiceActionPossible();
    void showEvoiceActionErrorAlert();

    bool isCurrentInvoiceSent() const { return lifecycle_.isCurrentInvoiceSent(); }
    // Guards the generate and details sheets: false, after the already-sent alert, when the
    // current invoice has been sent; false without a word when there is no current document.
    bool mayChangeCurrentInvoice();

    // When the current document is an invoice and the setting markInvoiceAsSent is on, sets it
    // to sent (status 1) and recalculates; quotes are never marked. Saving is the caller's.
    void markAsSent();

    // The standard file.
    QString evoiceXMLString() const;
    // The file these options write: the standard one, or the conformant one unless the document
    // cannot be written so (the finding says why).
    std::expected<UblDocument, Finding> einvoiceDocument(const EinvoiceOptions& options) const;
    std::expected<QString, Finding> einvoiceXML(const EinvoiceOptions& options) const;
    // The rule findings of that file; for the conformant file also a note when the amount due
    // differs from the document's total.
    std::vector<Finding> einvoiceFindings(const EinvoiceOptions& options) const;
    // The readiness check first (it recalculates), then the rules.
    EinvoiceCheck checkEinvoice(const EinvoiceOptions& options);
    // True when there is nothing fatal, or when the person chooses to go on anyway.
    bool confirmDespiteFindings(const std::vector<Finding>& findings);
    // Before the file these options write leaves the program (export or mail): false, after
    // saying why, when the conformant file cannot be written; otherwise as above.
    bool mayExport(const EinvoiceOptions& options);
    // "legal name - title - number", with no "/" to be read as a folder.
    QString proposedFileName() const;
    // Writes the current invoice's e-invoice to `path` in one piece.
    Result<void> writeEvoiceXML(const QString& path, const EinvoiceOptions& options = {}) const;
    // Asks where to save, then writes; cancelling does nothing.
    void writeEvoiceXMLToDisk(const EinvoiceOptions& options = {});
    // The generate sheet's export: mark as sent and save, then write the file.
    void exportEvoiceAction(const EinvoiceOptions& options = {});

    // Sets one field of the details sheet on the current invoice as one undoable edit and saves.
    void setEvoiceDetail(std::string_view key, const QString& value);

private:
    AppSession& session_;
    DocumentLifecycle lifecycle_;
};

}  // namespace tamo
