#pragma once

#include <QDateTime>
#include <QString>
#include <expected>
#include <span>
#include <vector>

#include "einvoice/findings.h"
#include "einvoice/ubltree.h"

namespace tamo {

class Record;
class Settings;

// How the e-invoice is written: the standard file, or the conformant one with the category
// (and its reason) that lines without taxes get.
struct EinvoiceOptions {
    bool conformant = false;
    QString exemptionCategory;  // "E" when empty
    QString exemptionReason;
};

// The options as the settings hold them (prefsEvoiceConformantBool, off by default, and the
// exemption chosen once).
EinvoiceOptions einvoiceOptions(const Settings& settings);

// The categories a line without taxes may take, with their names.
struct ExemptionCategory {
    const char* code;
    const char* name;
};
std::span<const ExemptionCategory> exemptionCategories();

// The same invoice in the structure the EN 16931 rules require: one tax category per line (a
// credit line as a negative quantity at a positive price), lines without taxes in the chosen
// exemption category, shipping as a document-level charge, the discount as document-level
// allowances split by tax category in proportion to what it was taken from, the document's
// currency throughout, and totals computed from the written lines to the cent. A document that
// cannot be written so (a line with several taxes, compound taxes, a discount after taxes or
// without a value) gives the finding that says why (rule "TAMO-CONFORMANT").
std::expected<UblDocument, Finding> conformantDocument(const Record& invoice,
                                                       const std::vector<Record*>& lines,
                                                       const Settings& settings,
                                                       const QDateTime& now,
                                                       const EinvoiceOptions& options);

}  // namespace tamo
