#pragma once

#include <QString>

namespace tamo {

class Record;

// The name of the status stamp shown for a document: "Stamp0".."Stamp5" in the document list,
// "StampM0".."StampM5" in tables. Empty for no record.
QString stampImageName(const Record* document, bool table);

// Shown-or-hidden rules of the document view.
bool invoiceSentToBool(const Record* document);  // editable: not yet sent
bool intToDateBool(int status);                  // payment date hidden until paid
bool intToAmountBool(int status);                // paid amount hidden unless partially paid

}  // namespace tamo

namespace tamo {
// The user-visible name of a document's state ("Created", "Sent", ..., "Quote").
QString statusLabel(const Record* document);
}  // namespace tamo
