#pragma once

#include <QDateTime>
#include <QString>
#include <array>

#include "einvoice/decimal.h"
#include "einvoice/ubltree.h"
#include "model/taxkeys.h"

// The parts the standard and the conformant e-invoice share: the header, the two parties, the
// delivery and the payment means.

namespace tamo {

class Record;
class Settings;

// Which flag of the tax keys says that a tax applies: `&TaxKeys::applied` on a line,
// `&TaxKeys::shipping` on the document's shipping.
using TaxFlag = const char* TaxKeys::*;

// A tax category; no percent element when `percent` is null, no exemption reason when it is
// empty.
struct TaxCategoryValues {
    QString id;
    QString percent;
    QString scheme;
    QString exemptionReason = {};
    EinvoiceField idSource = {};
    EinvoiceField schemeSource = {};
    EinvoiceField reasonSource = {};
};

// A builder whose amounts carry the invoice's currency.
class UblWriter : public UblBuilder {
public:
    explicit UblWriter(QString currency)
        : UblBuilder(QStringLiteral("Invoice")), currency_(std::move(currency))
    {
    }

    UblNode& amount(const char* name, const QString& text, EinvoiceField source = {},
                    Kept kept = Kept::None)
    {
        UblNode& node = leaf(name, text, source, kept);
        node.attributes.emplace_back(QStringLiteral("currencyID"), currency_);
        return node;
    }
    UblNode& amount(const char* name, const Decimal& value, EinvoiceField source = {},
                    Kept kept = Kept::None)
    {
        return amount(name, value.amountText(), source, kept);
    }
    // "cac:TaxCategory" of a subtotal, allowance or charge, or "cac:ClassifiedTaxCategory" of a
    // line.
    void taxCategory(const char* element, const TaxCategoryValues& values);

private:
    QString currency_;
};

struct HeaderOptions {
    QString documentCurrency;
    EinvoiceField documentCurrencySource;
    Kept documentCurrencyKept = Kept::None;
    // Without the parties' VAT identifiers (goods and services not subject to VAT).
    bool vatIdentifiers = true;
    // With the client's address as the place of delivery (intra-community supplies).
    bool deliverToClient = false;
};

// Everything from the customization identifier (BT-24) to the payment means, in document order.
void writeHeader(UblWriter& w, const Record& invoice, const Settings& settings,
                 const QDateTime& now, const HeaderOptions& options);

// The file's opening comment.
QString einvoiceComment();

// Rates are stored as fractions (0.19) and written as percent (19.00).
QString percentText(const Record& record, const char* key);

}  // namespace tamo
