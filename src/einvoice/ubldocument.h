#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

#include "einvoice/ubltree.h"

namespace tamo {

class Record;
class Settings;

// The e-invoice of `invoice`: one UBL 2.1 Invoice for XRechnung 3.0 (EN 16931 core, PEPPOL
// billing), pretty-printed UTF-8 with its XML declaration. `lines` are the invoice's items in the
// order the line list shows them; `now` gives the delivery date of an invoice not marked
// dispatched. Every amount is one the totals stored; only the monetary totals add a few of them.
// Building never fails: an absent text gives an empty element, an absent amount "0.00". Whether
// the invoice holds enough for a valid e-invoice is the readiness check's business.
QString evoiceXMLString(const Record& invoice, const std::vector<Record*>& lines,
                        const Settings& settings, const QDateTime& now);
// The same document as a tree, each element knowing where its value comes from and which of the
// kept ways of writing it follows.
UblDocument evoiceDocument(const Record& invoice, const std::vector<Record*>& lines,
                           const Settings& settings, const QDateTime& now);

}  // namespace tamo
