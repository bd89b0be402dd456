#pragma once

#include <QString>
#include <vector>

#include "einvoice/ubltree.h"

namespace tamo {

// One rule of EN 16931 or XRechnung that an e-invoice breaks, as the recipient's validator
// would report it, with what to change in Tamo.
struct Finding {
    enum class Severity { Fatal, Warning };

    QString rule;  // the rule's identifier ("BR-CO-10"); Tamo's own notes start with "TAMO-"
    Severity severity = Severity::Fatal;
    QString message;
    EinvoiceField field;

    bool fatal() const { return severity == Severity::Fatal; }
    bool operator==(const Finding& other) const;
};

bool hasFatal(const std::vector<Finding>& findings);

// Where to make the change, in the program's terms: "document: title", "line 3: taxes",
// "E-Invoice Details: evoiceCity", "Preferences → Company: prefsSupplierCity",
// "E-Invoice sheet: prefsEvoiceExemptionReason"; empty for none.
QString einvoiceFieldLabel(const EinvoiceField& field);

// The setting that chooses the conformant file: the remedy for what the standard file keeps.
EinvoiceField conformantField();

// Why the standard file writes an element that way, for a finding on it.
QString keptExplanation(Kept kept);

}  // namespace tamo
