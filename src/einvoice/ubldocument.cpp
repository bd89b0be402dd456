#include "einvoice/ubldocument.h"

#include <QStringList>
#include <QXmlStreamWriter>
#include <algorithm>
#include <array>
#include <optional>

#include "einvoice/decimal.h"
#include "model/record.h"
#include "settings/settings.h"

namespace tamo {

namespace {

using Keys = std::array<const char*, 3>;
constexpr Keys kTaxAmount{"tax1Amount", "tax2Amount", "tax3Amount"};
constexpr Keys kTaxableAmount{"tax1TaxableAmount", "tax2TaxableAmount", "tax3TaxableAmount"};
constexpr Keys kTaxPercent{"tax1Percent", "tax2Percent", "tax3Percent"};
constexpr Keys kItemTaxApplied{"isTax1Applied", "isTax2Applied", "isTax3Applied"};
constexpr Keys kShippingTax{"isShippingTax1Enabled", "isShippingTax2Enabled",
                            "isShippingTax3Enabled"};

Decimal decimal(const Record& record, const char* key)
{
    return Decimal::fromDouble(record.decimal(key));
}

// Rates are stored as fractions (0.19) and written as percent (19.00).
QString percentText(const Record& record, const char* key)
{
    return decimal(record, key).shifted(2).amountText();
}

QString dateText(const QDateTime& date)
{
    return date.isValid() ? date.toLocalTime().toString(QStringLiteral("yyyy-MM-dd")) : QString();
}

QString orElse(const QString& value, const QString& fallback)
{
    return value.isEmpty() ? fallback : value;
}

// Writes elements under their prefixed names; every amount carries the invoice's currency.
class UblWriter {
public:
    UblWriter(QByteArray* out, QString currency) : xml_(out), currency_(std::move(currency))
    {
        xml_.setAutoFormatting(true);
    }

    QXmlStreamWriter& xml() { return xml_; }
    void open(const char* name) { xml_.writeStartElement(QString::fromLatin1(name)); }
    void close() { xml_.writeEndElement(); }
    void text(const char* name, const QString& value)
    {
        xml_.writeTextElement(QString::fromLatin1(name), value);
    }
    void text(const char* name, const QString& value, const char* attribute,
              const QString& attributeValue)
    {
        open(name);
        xml_.writeAttribute(QString::fromLatin1(attribute), attributeValue);
        xml_.writeCharacters(value);
        close();
    }
    // A parent holding one text element.
    void inside(const char* parent, const char* name, const QString& value)
    {
        open(parent);
        text(name, value);
        close();
    }
    void amount(const char* name, const QString& text)
    {
        this->text(name, text, "currencyID", currency_);
    }
    void amount(const char* name, const Decimal& value) { amount(name, value.amountText()); }
    // "cac:TaxCategory" of a subtotal or "cac:ClassifiedTaxCategory" of a line.
    void taxCategory(const char* element, const QString& id, const QString& percent,
                     const QString& scheme)
    {
        open(element);
        text("cbc:ID", id);
        text("cbc:Percent", percent);
        inside("cac:TaxScheme", "cbc:ID", scheme);
        close();
    }

private:
    QXmlStreamWriter xml_;
    QString currency_;
};

struct Party {
    QString endpoint;
    QString endpointScheme;
    QString name;
    QString street;
    QString city;
    QString postalZone;
    QString countryCode;
    QString taxCompanyID;
    QString taxScheme;
    QString legalName;
    std::optional<QString> legalCompanyID;  // the customer's legal entity names none
    QString contactName;
    std::optional<QString> telephone;  // nor does the customer's contact
    QString email;
};

Party supplier(const Settings& s)
{
    const QString endpointID = s.string(key::prefsSupplierEndpointID);
    const QString mail = s.string(key::prefsSupplierElectronicMail);
    const QString legalName = s.string(key::prefsSupplierLegalName);
    const QString id = s.string(key::prefsSupplierID);
    return {.endpoint = orElse(endpointID, mail),
            .endpointScheme = endpointID.isEmpty() ? QStringLiteral("EM") : QStringLiteral("0088"),
            .name = orElse(s.string(key::prefsName), legalName),
            .street = s.string(key::prefsSupplierStreet),
            .city = s.string(key::prefsSupplierCity),
            .postalZone = s.string(key::prefsSupplierPostalZone),
            .countryCode = s.string(key::prefsSupplierCountryCode),
            .taxCompanyID = id,
            .taxScheme = s.string(key::prefsSupplierTaxScheme),
            .legalName = legalName,
            .legalCompanyID = orElse(s.string(key::prefsSupplierTaxID), id),
            .contactName = s.string(key::prefsSupplierContact),
            .telephone = s.string(key::prefsSupplierContactPhone),
            .email = mail};
}

Party customer(const Record& invoice)
{
    const QString mail = invoice.string("emailAddress");
    const QString legalName = invoice.string("evoiceLegalName");
    return {.endpoint = mail,
            .endpointScheme = QStringLiteral("EM"),
            .name = legalName,
            .street = invoice.string("evoiceStreet"),
            .city = invoice.string("evoiceCity"),
            .postalZone = invoice.string("evoicePostalCode"),
            .countryCode = invoice.string("evoiceCountryCode"),
            .taxCompanyID = invoice.string("customerVATID"),
            .taxScheme = invoice.string("evoiceTaxScheme"),
            .legalName = legalName,
            .legalCompanyID = std::nullopt,
            .contactName = orElse(invoice.string("evoiceContact"), legalName),
            .telephone = std::nullopt,
            .email = mail};
}

void writeParty(UblWriter& w, const char* role, const Party& p)
{
    w.open(role);
    w.open("cac:Party");
    w.text("cbc:EndpointID", p.endpoint, "schemeID", p.endpointScheme);
    w.inside("cac:PartyName", "cbc:Name", p.name);
    w.open("cac:PostalAddress");
    w.text("cbc:StreetName", p.street);
    w.text("cbc:CityName", p.city);
    w.text("cbc:PostalZone", p.postalZone);
    w.inside("cac:Country", "cbc:IdentificationCode", p.countryCode);
    w.close();
    w.open("cac:PartyTaxScheme");
    w.text("cbc:CompanyID", p.taxCompanyID);
    w.inside("cac:TaxScheme", "cbc:ID", p.taxScheme);
    w.close();
    w.open("cac:PartyLegalEntity");
    w.text("cbc:RegistrationName", p.legalName);
    if (p.legalCompanyID) {
        w.text("cbc:CompanyID", *p.legalCompanyID);
    }
    w.close();
    w.open("cac:Contact");
    w.text("cbc:Name", p.contactName);
    if (p.telephone) {
        w.text("cbc:Telephone", *p.telephone);
    }
    w.text("cbc:ElectronicMail", p.email);
    w.close();
    w.close();
    w.close();
}

void writeTaxTotal(UblWriter& w, const Record& invoice)
{
    const QString scheme = invoice.string("evoiceTaxScheme");
    std::array<double, 3> tax{};
    std::transform(kTaxAmount.begin(), kTaxAmount.end(), tax.begin(),
                   [&](const char* key) { return invoice.decimal(key); });
    w.open("cac:TaxTotal");
    if (std::any_of(tax.begin(), tax.end(), [](double t) { return t > 0; })) {
        // The total adds all three, a negative one included; only positive taxes get a subtotal.
        w.amount("cbc:TaxAmount", Decimal::fromDouble(tax[0]) + Decimal::fromDouble(tax[1]) +
                                      Decimal::fromDouble(tax[2]));
        for (size_t n = 0; n < tax.size(); ++n) {
            if (!(tax[n] > 0)) {
                continue;
            }
            Decimal taxable = decimal(invoice, kTaxableAmount[n]);
            // The totals leave the discount in the taxable sums; only tax 1 gives it back here.
            if (n == 0 && invoice.boolean("isDiscountEnabled")) {
                taxable = taxable - decimal(invoice, "invoiceDiscountSum");
            }
            w.open("cac:TaxSubtotal");
            w.amount("cbc:TaxableAmount", taxable);
            w.amount("cbc:TaxAmount", Decimal::fromDouble(tax[n]));
            w.taxCategory("cac:TaxCategory", QStringLiteral("S"),
                          percentText(invoice, kTaxPercent[n]), scheme);
            w.close();
        }
    } else {
        // An untaxed invoice: one zero-rated subtotal over the lines, its zeros as a bare "0".
        const QString zero = QStringLiteral("0");
        w.amount("cbc:TaxAmount", zero);
        w.open("cac:TaxSubtotal");
        w.amount("cbc:TaxableAmount", decimal(invoice, "subAmount"));
        w.amount("cbc:TaxAmount", zero);
        w.taxCategory("cac:TaxCategory", QStringLiteral("Z"), zero, scheme);
        w.close();
    }
    w.close();
}

void writeMonetaryTotal(UblWriter& w, const Record& invoice)
{
    const Decimal lines = decimal(invoice, "subAmount");
    const Decimal shipping =
        invoice.boolean("isShippingEnabled") ? decimal(invoice, "shippingAmount") : Decimal();
    const bool discounted = invoice.boolean("isDiscountEnabled");
    const Decimal discount = discounted ? decimal(invoice, "invoiceDiscountSum") : Decimal();
    const Decimal amount = decimal(invoice, "amount");
    w.open("cac:LegalMonetaryTotal");
    w.amount("cbc:LineExtensionAmount", lines + shipping);
    // With a discount the shipping is counted a second time, as in every e-invoice Tamo has
    // written; recipients reconcile against these files, so the sum stays as it is.
    w.amount("cbc:TaxExclusiveAmount",
             discounted ? lines + shipping - discount + shipping : lines + shipping);
    w.amount("cbc:TaxInclusiveAmount", amount + discount);
    w.amount("cbc:PayableAmount", amount);
    w.close();
}

struct Line {
    QString quantity;
    QString amount;
    QString price;
    QString name;
    QStringList percents;  // one classified tax category per applied tax
};

void writeLine(UblWriter& w, int number, const Line& line, const QString& scheme)
{
    const QString id = QString::number(number);
    w.open("cac:InvoiceLine");
    w.text("cbc:ID", id);
    w.text("cbc:InvoicedQuantity", line.quantity, "unitCode", QStringLiteral("C62"));
    w.amount("cbc:LineExtensionAmount", line.amount);
    w.inside("cac:OrderLineReference", "cbc:LineID", id);
    w.open("cac:Item");
    w.text("cbc:Name", line.name);
    for (const QString& percent : line.percents) {
        w.taxCategory("cac:ClassifiedTaxCategory", QStringLiteral("S"), percent, scheme);
    }
    w.close();
    w.open("cac:Price");
    w.amount("cbc:PriceAmount", line.price);
    w.text("cbc:BaseQuantity", QStringLiteral("1"));
    w.close();
    w.close();
}

// The percents of the taxes whose flags are set, each rate taken from `rates`.
QStringList appliedPercents(const Record& flags, const Keys& flagKeys, const Record& rates)
{
    QStringList percents;
    for (size_t n = 0; n < flagKeys.size(); ++n) {
        if (flags.boolean(flagKeys[n])) {
            percents << percentText(rates, kTaxPercent[n]);
        }
    }
    return percents;
}

void writeLines(UblWriter& w, const Record& invoice, const std::vector<Record*>& items)
{
    const QString scheme = invoice.string("evoiceTaxScheme");
    const QString one = QStringLiteral("1");
    int number = 0;
    for (const Record* item : items) {
        writeLine(w, ++number,
                  {.quantity = amountText(item->decimal("unitCount")),
                   .amount = amountText(item->decimal("subAmount")),
                   .price = amountText(item->decimal("baseAmount")),
                   .name = item->string("title"),
                   .percents = appliedPercents(*item, kItemTaxApplied, *item)},
                  scheme);
    }
    if (invoice.boolean("isShippingEnabled")) {
        const QString shipping = amountText(invoice.decimal("shippingAmount"));
        writeLine(w, ++number,
                  {.quantity = one,
                   .amount = shipping,
                   .price = shipping,
                   .name = invoice.string("shippingTitle"),
                   .percents = appliedPercents(invoice, kShippingTax, invoice)},
                  scheme);
    }
    if (invoice.boolean("isDiscountEnabled")) {
        // The discount is a negative line, never a document-level allowance.
        const QString discount = (-decimal(invoice, "invoiceDiscountSum")).amountText();
        writeLine(w, ++number,
                  {.quantity = one,
                   .amount = discount,
                   .price = discount,
                   .name = invoice.string("discountTitle"),
                   .percents = {}},
                  scheme);
    }
}

}  // namespace

QString evoiceXMLString(const Record& invoice, const std::vector<Record*>& lines,
                        const Settings& settings, const QDateTime& now)
{
    QByteArray bytes;
    UblWriter w(&bytes, invoice.string("evoiceCurrency"));
    QXmlStreamWriter& xml = w.xml();
    xml.writeStartDocument();
    w.open("Invoice");
    xml.writeDefaultNamespace(
        QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:Invoice-2"));
    xml.writeNamespace(
        QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CommonAggregateComponents-2"),
        QStringLiteral("cac"));
    xml.writeNamespace(
        QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CommonBasicComponents-2"),
        QStringLiteral("cbc"));
    xml.writeComment(QStringLiteral("Created with E-Tamo from Sorel Software: https://tamo.app"));

    w.text("cbc:CustomizationID",
           QStringLiteral("urn:cen.eu:en16931:2017#compliant#urn:xeinkauf.de:kosit:xrechnung_3.0"));
    w.text("cbc:ProfileID", QStringLiteral("urn:fdc:peppol.eu:2017:poacc:billing:01:1.0"));
    w.text("cbc:ID", invoice.string("number"));
    w.text("cbc:IssueDate", dateText(invoice.date("date")));
    w.text("cbc:DueDate", dateText(invoice.date("due")));
    w.text("cbc:InvoiceTypeCode", QStringLiteral("380"));  // a quote is written as an invoice too
    // The supplier's currency names the document; the amounts carry the invoice's own.
    w.text("cbc:DocumentCurrencyCode", settings.string(key::prefsSupplierCurrency));
    w.text("cbc:BuyerReference", invoice.string("title"));
    writeParty(w, "cac:AccountingSupplierParty", supplier(settings));
    writeParty(w, "cac:AccountingCustomerParty", customer(invoice));

    w.inside("cac:Delivery", "cbc:ActualDeliveryDate",
             dateText(invoice.boolean("isDispatched") ? invoice.date("dispatched") : now));
    w.open("cac:PaymentMeans");
    w.text("cbc:PaymentMeansCode", QStringLiteral("31"));
    w.inside("cac:PayeeFinancialAccount", "cbc:ID", settings.string(key::prefsSupplierIBAN));
    w.close();

    writeTaxTotal(w, invoice);
    writeMonetaryTotal(w, invoice);
    writeLines(w, invoice, lines);
    w.close();
    xml.writeEndDocument();
    return QString::fromUtf8(bytes);
}

}  // namespace tamo
