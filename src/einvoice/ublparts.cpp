#include "einvoice/ublparts.h"

#include <optional>

#include "model/record.h"
#include "settings/settings.h"

namespace tamo {

namespace {

QString dateText(const QDateTime& date)
{
    return date.isValid() ? date.toLocalTime().toString(QStringLiteral("yyyy-MM-dd")) : QString();
}

// A value with the place it comes from.
struct Sourced {
    QString text;
    EinvoiceField source;
};

Sourced setting(const Settings& s, const SettingKey& key)
{
    return {s.string(key), EinvoiceField::setting(key.name)};
}

Sourced detail(const Record& invoice, const char* key)
{
    return {invoice.string(key), EinvoiceField::details(key)};
}

Sourced orElse(const Sourced& value, const Sourced& fallback)
{
    return value.text.isEmpty() ? fallback : value;
}

struct Party {
    Sourced endpoint;
    QString endpointScheme;
    Sourced name;
    Sourced street;
    Sourced city;
    Sourced postalZone;
    Sourced countryCode;
    Sourced taxCompanyID;
    Sourced taxScheme;
    Sourced legalName;
    std::optional<Sourced> legalCompanyID;  // the customer's legal entity names none
    Sourced contactName;
    std::optional<Sourced> telephone;  // nor does the customer's contact
    Sourced email;
};

Party supplier(const Settings& s)
{
    const Sourced endpointID = setting(s, key::prefsSupplierEndpointID);
    const Sourced mail = setting(s, key::prefsSupplierElectronicMail);
    const Sourced legalName = setting(s, key::prefsSupplierLegalName);
    const Sourced id = setting(s, key::prefsSupplierID);
    return {
        .endpoint = orElse(endpointID, mail),
        .endpointScheme = endpointID.text.isEmpty() ? QStringLiteral("EM") : QStringLiteral("0088"),
        .name = orElse(setting(s, key::prefsName), legalName),
        .street = setting(s, key::prefsSupplierStreet),
        .city = setting(s, key::prefsSupplierCity),
        .postalZone = setting(s, key::prefsSupplierPostalZone),
        .countryCode = setting(s, key::prefsSupplierCountryCode),
        .taxCompanyID = id,
        .taxScheme = setting(s, key::prefsSupplierTaxScheme),
        .legalName = legalName,
        .legalCompanyID = orElse(setting(s, key::prefsSupplierTaxID), id),
        .contactName = setting(s, key::prefsSupplierContact),
        .telephone = setting(s, key::prefsSupplierContactPhone),
        .email = mail};
}

Party customer(const Record& invoice)
{
    const Sourced mail = detail(invoice, "emailAddress");
    const Sourced legalName = detail(invoice, "evoiceLegalName");
    return {.endpoint = mail,
            .endpointScheme = QStringLiteral("EM"),
            .name = legalName,
            .street = detail(invoice, "evoiceStreet"),
            .city = detail(invoice, "evoiceCity"),
            .postalZone = detail(invoice, "evoicePostalCode"),
            .countryCode = detail(invoice, "evoiceCountryCode"),
            .taxCompanyID = detail(invoice, "customerVATID"),
            .taxScheme = detail(invoice, "evoiceTaxScheme"),
            .legalName = legalName,
            .legalCompanyID = std::nullopt,
            .contactName = orElse(detail(invoice, "evoiceContact"), legalName),
            .telephone = std::nullopt,
            .email = mail};
}

void leaf(UblWriter& w, const char* name, const Sourced& value)
{
    w.leaf(name, value.text, value.source);
}

void writeAddress(UblWriter& w, const char* element, const Party& p)
{
    w.open(element);
    leaf(w, "cbc:StreetName", p.street);
    leaf(w, "cbc:CityName", p.city);
    leaf(w, "cbc:PostalZone", p.postalZone);
    w.open("cac:Country");
    leaf(w, "cbc:IdentificationCode", p.countryCode);
    w.close();
    w.close();
}

bool isVat(const QString& scheme)
{
    return scheme.trimmed().compare(u"VAT", Qt::CaseInsensitive) == 0;
}

void writeParty(UblWriter& w, const char* role, const Party& p, const HeaderOptions& options)
{
    w.open(role);
    w.open("cac:Party");
    leaf(w, "cbc:EndpointID", p.endpoint);
    w.last().attributes.emplace_back(QStringLiteral("schemeID"), p.endpointScheme);
    w.open("cac:PartyName");
    leaf(w, "cbc:Name", p.name);
    w.close();
    writeAddress(w, "cac:PostalAddress", p);
    if (options.vatIdentifiers || !isVat(p.taxScheme.text)) {
        w.open("cac:PartyTaxScheme");
        leaf(w, "cbc:CompanyID", p.taxCompanyID);
        w.open("cac:TaxScheme");
        leaf(w, "cbc:ID", p.taxScheme);
        w.close();
        w.close();
    }
    w.open("cac:PartyLegalEntity");
    leaf(w, "cbc:RegistrationName", p.legalName);
    if (p.legalCompanyID) {
        leaf(w, "cbc:CompanyID", *p.legalCompanyID);
    }
    w.close();
    w.open("cac:Contact");
    leaf(w, "cbc:Name", p.contactName);
    if (p.telephone) {
        leaf(w, "cbc:Telephone", *p.telephone);
    }
    leaf(w, "cbc:ElectronicMail", p.email);
    w.close();
    w.close();
    w.close();
}

}  // namespace

void UblWriter::taxCategory(const char* element, const TaxCategoryValues& values)
{
    open(element, values.reasonSource);
    leaf("cbc:ID", values.id, values.idSource);
    if (!values.percent.isNull()) {
        leaf("cbc:Percent", values.percent);
    }
    if (!values.exemptionReason.isEmpty()) {
        leaf("cbc:TaxExemptionReason", values.exemptionReason);
    }
    inside("cac:TaxScheme", "cbc:ID", values.scheme, values.schemeSource);
    close();
}

QString einvoiceComment()
{
    return QStringLiteral("Created with E-Tamo from Sorel Software: https://tamo.app");
}

QString percentText(const Record& record, const char* key)
{
    return Decimal::fromDouble(record.decimal(key)).shifted(2).amountText();
}

void writeHeader(UblWriter& w, const Record& invoice, const Settings& settings,
                 const QDateTime& now, const HeaderOptions& options)
{
    using F = EinvoiceField;
    w.leaf("cbc:CustomizationID",
           QStringLiteral("urn:cen.eu:en16931:2017#compliant#urn:xeinkauf.de:kosit:xrechnung_3.0"));
    w.leaf("cbc:ProfileID", QStringLiteral("urn:fdc:peppol.eu:2017:poacc:billing:01:1.0"));
    w.leaf("cbc:ID", invoice.string("number"), F::document("number"));
    w.leaf("cbc:IssueDate", dateText(invoice.date("date")), F::document("date"));
    w.leaf("cbc:DueDate", dateText(invoice.date("due")), F::document("due"));
    w.leaf("cbc:InvoiceTypeCode", QStringLiteral("380"));  // a quote is written as an invoice too
    w.leaf("cbc:DocumentCurrencyCode", options.documentCurrency, options.documentCurrencySource,
           options.documentCurrencyKept);
    w.leaf("cbc:BuyerReference", invoice.string("title"), F::document("title"));
    writeParty(w, "cac:AccountingSupplierParty", supplier(settings), options);
    const Party client = customer(invoice);
    writeParty(w, "cac:AccountingCustomerParty", client, options);

    const bool dispatched = invoice.boolean("isDispatched");
    w.open("cac:Delivery");
    w.leaf("cbc:ActualDeliveryDate", dateText(dispatched ? invoice.date("dispatched") : now),
           dispatched ? F::document("dispatched") : F{});
    if (options.deliverToClient) {
        w.open("cac:DeliveryLocation");
        writeAddress(w, "cac:Address", client);
        w.close();
    }
    w.close();
    w.open("cac:PaymentMeans");
    w.leaf("cbc:PaymentMeansCode", QStringLiteral("31"));
    w.inside("cac:PayeeFinancialAccount", "cbc:ID", settings.string(key::prefsSupplierIBAN),
             F::setting(key::prefsSupplierIBAN.name));
    w.close();
}

}  // namespace tamo
