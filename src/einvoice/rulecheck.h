#pragma once

#include <vector>

#include "einvoice/findings.h"
#include "einvoice/ubltree.h"

namespace tamo {

// Checks an e-invoice against the rules of EN 16931 (UBL binding), XRechnung 3.0 and the PEPPOL
// rules XRechnung takes over that can fire on a document of the shape Tamo writes, plus the UBL
// schema's types for the values that come from the user. Each finding names the rule, its
// severity and what to change; a finding on an element the standard file deliberately writes
// that way says so. Duplicates (same rule, message and field) are reported once.
std::vector<Finding> checkEinvoiceRules(const UblDocument& document);

}  // namespace tamo
