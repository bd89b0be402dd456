#include <QCoreApplication>
#include <array>

#include "einvoice/einvoiceactions.h"
#include "platform/translations.h"

namespace tamo {

namespace {

constexpr std::array kSupplierKeys{
    &key::prefsSupplierID,           &key::prefsSupplierTaxScheme,
    &key::prefsSupplierIBAN,         &key::prefsSupplierElectronicMail,
    &key::prefsSupplierCountryCode,  &key::prefsSupplierCurrency,
    &key::prefsSupplierLegalName,    &key::prefsSupplierContact,
    &key::prefsSupplierContactPhone, &key::prefsSupplierStreet,
    &key::prefsSupplierPostalZone,   &key::prefsSupplierCity,
};

// The first nine are the invoice values the check needs.
constexpr std::array<EvoiceField, 10> kDetailFields{{
    {"emailAddress", QT_TRANSLATE_NOOP("Einvoice", "Mail Address")},
    {"evoiceLegalName", QT_TRANSLATE_NOOP("Einvoice", "Legal Name")},
    {"customerVATID", QT_TRANSLATE_NOOP("Einvoice", "VAT ID")},
    {"evoiceCurrency", QT_TRANSLATE_NOOP("Einvoice", "Currency")},
    {"evoiceTaxScheme", QT_TRANSLATE_NOOP("Einvoice", "Tax Scheme")},
    {"evoiceCountryCode", QT_TRANSLATE_NOOP("Einvoice", "Country Code")},
    {"evoiceStreet", QT_TRANSLATE_NOOP("Einvoice", "Street")},
    {"evoicePostalCode", QT_TRANSLATE_NOOP("Einvoice", "Postal Code")},
    {"evoiceCity", QT_TRANSLATE_NOOP("Einvoice", "City")},
    {"evoiceContact", QT_TRANSLATE_NOOP("Einvoice", "Contact")},
}};
constexpr size_t kCheckedFields = 9;

}  // namespace

std::span<const SettingKey* const> supplierCheckKeys()
{
    return kSupplierKeys;
}

std::vector<const SettingKey*> missingSupplierSettings(const Settings& settings)
{
    std::vector<const SettingKey*> missing;
    for (const SettingKey* key : kSupplierKeys) {
        if (settings.string(*key).isEmpty()) {
            missing.push_back(key);
        }
    }
    return missing;
}

Readiness checkReadiness(const Record& invoice, const Settings& settings)
{
    using Step = Readiness::Step;
    const Value& amount = invoice.value("amount");
    if (amount.isNull() || float(amount.toDouble()) == 0.0f) {
        return {Step::Amount, {}};
    }
    if (invoice.toMany("items").empty()) {
        return {Step::Items, {}};
    }
    if (!settings.boolean(key::beforeTaxesBool)) {
        return {Step::DiscountBeforeTaxes, {}};
    }
    if (const auto missing = missingSupplierSettings(settings); !missing.empty()) {
        return {Step::SupplierSetting, QString::fromLatin1(missing.front()->name)};
    }
    for (size_t i = 0; i < kCheckedFields; ++i) {
        // The store keeps these as text, so a number would already be its decimal text here.
        if (invoice.string(kDetailFields[i].key).isEmpty()) {
            return {Step::InvoiceValue, QString::fromLatin1(kDetailFields[i].key)};
        }
    }
    return {};
}

QString Readiness::reason() const
{
    switch (step) {
    case Step::NoDocument:
        return tr("no document is selected");
    case Step::Amount:
        return tr("step 2: the invoice amount is missing or 0");
    case Step::Items:
        return tr("step 3: the invoice has no items");
    case Step::DiscountBeforeTaxes:
        return tr("step 4: discounts are not calculated before taxes (beforeTaxesBool)");
    case Step::SupplierSetting:
        return tr("step 5: the supplier setting %1 is empty").arg(key);
    case Step::InvoiceValue:
        return tr("step 6: the invoice's %1 is empty").arg(key);
    case Step::Possible:
        break;
    }
    return QStringLiteral("possible");
}

std::span<const EvoiceField> evoiceDetailFields()
{
    return kDetailFields;
}

QString evoiceFieldLabel(const EvoiceField& field)
{
    return tr(field.label);
}

Alert evoiceRequirementsAlert()
{
    // "Mail Address" is listed twice among the customer's fields; the text is kept as users and
    // its translations know it.
    return {tr("E-Invoice Requirements"),
            tr("In order to be able to export or send a valid E-Invoice XML file, the following "
               "criteria must be met:\n\n"
               "• There must be at least one item or invoice amount booked.\n"
               "• Items can not have a negative value.\n"
               "• Possible discounts must be calculated before taxes.\n\n"
               "• The following minimum customer information is required:\n"
               "    • Mail Address\n    • Legal Name\n    • VAT ID\n    • Tax Scheme\n"
               "    • Mail Address\n    • Country Code\n    • Currency\n"
               "    • Street, Postal Code, City\n\n"
               "• The following minimum supplier information is required:\n"
               "    • Legal Name\n    • VAT ID\n    • Tax Scheme\n    • IBAN\n    • Contact\n"
               "    • Phone\n    • Mail Address\n    • Country Code\n    • Currency\n"
               "    • Street, Postal Code, City\n\n"
               "The required information can be edited individually for each invoice at any "
               "time in the 'E-Invoice Details' dialog."),
            {tr("OK")}};
}

EinvoiceNotice einvoiceNotice()
{
    return {
        tr("Tamo and E-Invoicing"),
        tr("Germany is moving business-to-business invoicing to e-invoices: structured files such "
           "as XRechnung that software can read without retyping. A PDF sent by e-mail is no "
           "longer an e-invoice.\n\n"
           "Receiving: since 1 January 2025 every business in Germany must be able to accept "
           "e-invoices from other businesses.\n\n"
           "Issuing: until the end of 2026 paper and PDF invoices remain allowed. Businesses "
           "whose turnover in the previous year was no more than 800,000 euros may keep sending "
           "them until the end of 2027. From 1 January 2028 every business must issue e-invoices "
           "to other businesses.\n\n"
           "Tamo writes XRechnung 3.0 files. Enter your supplier details in the preferences and "
           "the customer's details in the 'E-Invoice Details' dialog of each invoice, then "
           "choose 'Export E-Invoice…'. To read the e-invoices you receive, use an e-invoice "
           "viewer: the button below shows where to find one."),
        {tr("OK"), tr("About E-Invoicing"), tr("Find an E-Invoice Viewer")},
        {QUrl(QStringLiteral(
             "https://www.bundesfinanzministerium.de/Content/DE/FAQ/e-rechnung.html")),
         QUrl(QStringLiteral("https://tamo.app/e-invoice-viewer"))}};
}

}  // namespace tamo
