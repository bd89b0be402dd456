#pragma once

#include <QCoreApplication>
#include <optional>

#include "einvoice/decimal.h"
#include "einvoice/findings.h"
#include "einvoice/ubltree.h"
#include "platform/translations.h"

// What the rule checks share: the findings being collected and the parts of the document most
// rules look at.

namespace tamo::rules {

constexpr auto kFatal = Finding::Severity::Fatal;
constexpr auto kWarning = Finding::Severity::Warning;

class Report {
public:
    // A finding on an element: the element says where its value comes from, and when the
    // standard file keeps it that way on purpose, the message says so and the remedy is the
    // conformant file (a line with several taxes excepted: only splitting it helps).
    void add(const QByteArray& rule, Finding::Severity severity, QString message,
             const UblNode* node);
    void add(const QByteArray& rule, Finding::Severity severity, QString message,
             EinvoiceField field);

    // Whether a finding already names this field.
    bool names(const EinvoiceField& field) const;

    std::vector<Finding> take() { return std::move(findings_); }

private:
    std::vector<Finding> findings_;
};

// The parts of an e-invoice the checks start from; any may be missing.
struct Parts {
    explicit Parts(const UblNode& root);

    const UblNode& root;
    const UblNode* seller;  // cac:AccountingSupplierParty/cac:Party
    const UblNode* buyer;   // cac:AccountingCustomerParty/cac:Party
    const UblNode* taxTotal;
    const UblNode* totals;  // cac:LegalMonetaryTotal
    std::vector<const UblNode*> lines;
    std::vector<const UblNode*> allowances;
    std::vector<const UblNode*> charges;
};

// No element, or only spaces: what the validators call empty with normalize-space().
inline bool blank(const UblNode* node)
{
    return !node || node->text.trimmed().isEmpty();
}

inline std::optional<Decimal> number(const UblNode* node)
{
    return node ? Decimal::fromText(node->text) : std::nullopt;
}

// A tax category counts only under the tax scheme VAT.
bool isVatCategory(const UblNode& category);

// An amount as the messages show it.
inline QString shown(const Decimal& value)
{
    return value.text(2);
}

void checkVatCategories(const Parts& parts, Report& report);

}  // namespace tamo::rules
