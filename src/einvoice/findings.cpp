#include "einvoice/findings.h"

#include <QCoreApplication>
#include <algorithm>

#include "platform/translations.h"
#include "settings/settingkeys.h"

namespace tamo {

namespace {

QString settingPlace(const char* key)
{
    const QLatin1StringView name(key);
    if (name.startsWith(QLatin1StringView("prefsEvoice"))) {
        return tr("E-Invoice sheet");
    }
    if (name.startsWith(QLatin1StringView("prefsSupplier")) ||
        name == QLatin1StringView(key::prefsName.name)) {
        return tr("Preferences → Company");
    }
    return tr("Preferences → Taxes");
}

}  // namespace

bool Finding::operator==(const Finding& other) const
{
    return rule == other.rule && severity == other.severity && message == other.message &&
           field == other.field;
}

bool hasFatal(const std::vector<Finding>& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& f) { return f.fatal(); });
}

QString einvoiceFieldLabel(const EinvoiceField& field)
{
    const QString key = QString::fromLatin1(field.key ? field.key : "");
    switch (field.kind) {
    case EinvoiceField::Kind::None:
        break;
    case EinvoiceField::Kind::Document:
        return tr("document: %1").arg(key);
    case EinvoiceField::Kind::Line:
        return tr("line %1: %2").arg(field.number).arg(key);
    case EinvoiceField::Kind::Details:
        return tr("E-Invoice Details: %1").arg(key);
    case EinvoiceField::Kind::Setting:
        return QStringLiteral("%1: %2").arg(settingPlace(field.key), key);
    }
    return {};
}

EinvoiceField conformantField()
{
    return EinvoiceField::setting(key::prefsEvoiceConformantBool.name);
}

QString keptExplanation(Kept kept)
{
    const char* why = nullptr;
    switch (kept) {
    case Kept::None:
        return {};
    case Kept::DiscountLine:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice writes the discount as a line with a negative price and no "
            "tax category.");
        break;
    case Kept::UntaxedLine:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice writes a line without taxes with no tax category.");
        break;
    case Kept::NegativePrice:
        why = QT_TRANSLATE_NOOP("Einvoice",
                                "Tamo's standard e-invoice writes a line with a negative price as "
                                "it is; the conformant file writes a negative quantity at a "
                                "positive price.");
        break;
    case Kept::SeveralTaxes:
        return tr(
            "Tamo writes one tax category for each tax of a line, and an e-invoice line may "
            "carry only one. Split the line into one line per tax; the conformant file "
            "cannot write it either.");
    case Kept::LineTotalWithoutDiscount:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice leaves the discount line out of the sum of the lines.");
        break;
    case Kept::ShippingTwice:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice counts the shipping twice in the total without tax when "
            "there is a discount.");
        break;
    case Kept::DiscountAddedBack:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice adds the discount back into the total with tax.");
        break;
    case Kept::DiscountOnFirstTax:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice takes the discount off the first tax's taxable amount "
            "only, while the tax was levied on the amount before the discount.");
        break;
    case Kept::StoredTaxes:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice writes the document's tax sums as the document stores "
            "them, one subtotal per tax at the document's rate.");
        break;
    case Kept::StoredTotals:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice writes the document's totals as the document stores "
            "and rounds them.");
        break;
    case Kept::PositiveTaxesOnly:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice adds every tax into the tax total but writes subtotals "
            "only for taxes above zero.");
        break;
    case Kept::ZeroRatedWithoutLines:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice writes a document without taxes as one zero-rated "
            "subtotal over lines that carry no tax category.");
        break;
    case Kept::SupplierCurrency:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice takes the document's currency from Preferences → "
            "Company (prefsSupplierCurrency) and every amount's currency from the E-Invoice "
            "Details (evoiceCurrency); make them the same.");
        break;
    case Kept::TwoDecimalQuantity:
        why = QT_TRANSLATE_NOOP(
            "Einvoice",
            "Tamo's standard e-invoice writes quantities and prices with two decimals, while "
            "the document calculates with three.");
        break;
    }
    return tr(why) + u' ' +
           tr("The document's structure, not a missing entry, is the cause: the conformant file "
              "writes it as the rules require.");
}

}  // namespace tamo
