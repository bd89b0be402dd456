#pragma once

#include <QDateTime>
#include <string_view>
#include <vector>

#include "model/appsession.h"

namespace tamo {

class Record;

// The money of documents: three calculators that write a document's and its lines' amounts from
// prices, quantities, shipping, discount and up to three taxes, and the statistics pass over the
// listed documents that every calculation ends with. All writes go through the records without a
// group of their own, so that the caller's undo group keeps them together with the edit that
// caused them; nothing here saves.
class Totals {
public:
    explicit Totals(AppSession& session) : session_(session) {}

    // Chooses the calculator the document's taxes call for and runs it.
    void calculateInvoice(Record& document);
    void calculateInvoiceWithoutTaxes(Record& document);
    void calculateInvoiceTaxesStandard(Record& document);
    void calculateInvoiceTaxesCompound(Record& document);
    // Lines are calculated with their document; asking for one alone changes nothing.
    void calculateItem(Record&) {}
    // Recalculates every given document, then runs the statistics pass once.
    void calculateDocuments(const std::vector<Record*>& documents);
    // Counts and sums the listed documents, moving sent invoices between open and overdue and
    // recording first payments on the way.
    void calculateDatabase();
    // The statistics pass as the window runs it on its own, after the list changed: open and
    // overdue follow from the clock, not from anything the person did, so it is no step to undo.
    // On a store without unsaved changes, what it changes is saved.
    void refreshStatistics();

private:
    AppSession& session_;
};

// The statistics pass itself, over `documents` in their listed order.
DocumentStatistics collectStatistics(const std::vector<Record*>& documents, const QDateTime& now);

// Whether the document's taxes call for the compound calculator: a line with a compound tax, or
// shipping taxed by tax 2 or 3 while the tax 2 setting is compound.
bool callsForCompoundTaxes(const Settings& settings, const Record& document);

// Whether a change of this attribute of a document or line changes the document's amounts.
bool affectsTotals(const Record& record, std::string_view key);

}  // namespace tamo
