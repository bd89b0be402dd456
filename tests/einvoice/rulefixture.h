#pragma once

#include <set>

#include "documents/lineitems.h"
#include "einvoice/conformantdocument.h"
#include "einvoice/rulecheck.h"
#include "einvoice/ubldocument.h"
#include "einvoicefixture.h"

namespace tamo::test {

using RuleSet = std::set<std::string>;

inline RuleSet rulesOf(const std::vector<Finding>& findings)
{
    RuleSet rules;
    for (const Finding& f : findings) {
        rules.insert(f.rule.toStdString());
    }
    return rules;
}

inline std::string describe(const std::vector<Finding>& findings)
{
    std::string text;
    for (const Finding& f : findings) {
        text += QStringLiteral("%1: %2 [%3]\n")
                    .arg(f.rule, f.message, einvoiceFieldLabel(f.field))
                    .toStdString();
    }
    return text;
}

// Builds invoices, recalculates them and writes them in either form.
class RuleTest : public EinvoiceTest {
public:
    UblDocument standard(Record* d)
    {
        totals.calculateInvoice(*d);
        return evoiceDocument(*d, LineItems(session).sortedItems(*d), settings, clock.now());
    }

    std::expected<UblDocument, Finding> conformant(Record* d, const char* category = "E")
    {
        totals.calculateInvoice(*d);
        return conformantDocument(
            *d, LineItems(session).sortedItems(*d), settings, clock.now(),
            {true, QString::fromLatin1(category), u"Steuerfrei nach § 4 UStG"_qs});
    }
};

}  // namespace tamo::test
