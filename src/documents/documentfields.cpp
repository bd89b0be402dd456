#include "documents/documentfields.h"

#include <QCoreApplication>
#include <QLocale>

#include "calc/amountinput.h"
#include "calc/totals.h"

namespace tamo {

namespace {

using K = FieldKind;
using P = FieldPanel;

const DocumentField kFields[] = {
    {"number", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Number")},
    {"title", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Title")},
    {"subject", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Subject")},
    {"date", K::Date, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Date")},
    {"due", K::Date, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Due Date")},
    {"status", K::Choice, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Change Status"), false},
    {"paidAmount", K::Money, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Paid Amount"),
     false},
    {"paid", K::Date, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Payment Date"), false},
    {"isDispatched", K::Flag, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Mark Dispatched")},
    {"dispatchNumber", K::Text, P::Document,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Delivery Note Number")},
    {"dispatched", K::Date, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Delivery Date")},
    {"conditions", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Conditions")},
    {"misc1", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Further Text")},
    {"footer", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Footer")},
    {"notes", K::Text, P::Document, QT_TRANSLATE_NOOP("DocumentFields", "Edit Notes")},

    {"customerName", K::Text, P::Client, QT_TRANSLATE_NOOP("DocumentFields", "Edit Client Name")},
    {"customerTitle", K::Text, P::Client, QT_TRANSLATE_NOOP("DocumentFields", "Edit Client Title")},
    {"clientNumber", K::Text, P::Client, QT_TRANSLATE_NOOP("DocumentFields", "Edit Client Number")},
    {"customerVATID", K::Text, P::Client, QT_TRANSLATE_NOOP("DocumentFields", "Edit VAT ID")},
    {"emailAddress", K::Text, P::Client,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-mail Address")},
    {"address", K::Text, P::Client, QT_TRANSLATE_NOOP("DocumentFields", "Edit Address")},

    {"isShippingEnabled", K::Flag, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Charge Shipping")},
    {"shippingTitle", K::Text, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Shipping Title")},
    {"shippingSubtitle", K::Text, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Shipping Subtitle")},
    {"hasShippingSubtitle", K::Flag, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Show Shipping Subtitle")},
    {"shippingAmount", K::Money, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Shipping Amount")},
    {"isShippingTax1Enabled", K::Flag, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Tax Shipping")},
    {"isShippingTax2Enabled", K::Flag, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Tax Shipping")},
    {"isShippingTax3Enabled", K::Flag, P::Shipping,
     QT_TRANSLATE_NOOP("DocumentFields", "Tax Shipping")},

    {"isDiscountEnabled", K::Flag, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Grant Discount")},
    {"discountTitle", K::Text, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Discount Title")},
    {"discountSubtitle", K::Text, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Discount Subtitle")},
    {"hasDiscountSubtitle", K::Flag, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Show Discount Subtitle")},
    {"discountKind", K::Choice, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Change Discount Kind")},
    {"discountAmount", K::Money, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Discount Amount")},
    {"discountPercent", K::Percent, P::Discount,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit Discount Percentage")},

    {"evoiceName", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceLegalName", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceContact", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceStreet", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoicePostalCode", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceCity", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceCountryCode", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceTaxScheme", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
    {"evoiceCurrency", K::Text, P::EinvoiceBuyer,
     QT_TRANSLATE_NOOP("DocumentFields", "Edit E-Invoice Details")},
};

// The choices a person may make; overdue follows from the due date and is never chosen.
bool allowedChoice(std::string_view key, int value)
{
    if (key == "status") {
        return value == 0 || value == 1 || value == 3 || value == 4;
    }
    return value == 0 || value == 1;  // discountKind: fixed amount or percentage
}

}  // namespace

std::span<const DocumentField> documentFields()
{
    return kFields;
}

const DocumentField* findDocumentField(std::string_view key)
{
    for (const DocumentField& f : kFields) {
        if (key == f.key) {
            return &f;
        }
    }
    return nullptr;
}

QString undoName(const DocumentField& field)
{
    return QCoreApplication::translate("DocumentFields", field.undoName);
}

std::optional<Value> fieldValueFromText(const DocumentField& field, const Record& document,
                                        const QString& text)
{
    const QString trimmed = text.trimmed();
    switch (field.kind) {
    case FieldKind::Text:
        return Value(text);
    case FieldKind::Date: {
        const QDate day = QDate::fromString(trimmed, Qt::ISODate);
        if (!day.isValid()) {
            return std::nullopt;
        }
        return Value(withDay(document.date(field.key), day));
    }
    case FieldKind::Money:
    case FieldKind::Percent: {
        if (trimmed.isEmpty()) {
            return Value(0.0);
        }
        // Amounts that are finite and in range, rates from 0 to 100 %, as the editor takes them.
        const auto n =
            field.kind == FieldKind::Money ? amountFromText(trimmed) : rateFromText(trimmed);
        return n ? std::optional<Value>(*n) : std::nullopt;
    }
    case FieldKind::Flag:
        if (trimmed == u"true" || trimmed == u"yes" || trimmed == u"1") {
            return Value(true);
        }
        if (trimmed == u"false" || trimmed == u"no" || trimmed == u"0") {
            return Value(false);
        }
        return std::nullopt;
    case FieldKind::Choice: {
        bool ok = false;
        const int n = trimmed.toInt(&ok);
        return ok && allowedChoice(field.key, n) ? std::optional<Value>(n) : std::nullopt;
    }
    }
    return std::nullopt;
}

QDateTime withDay(const QDateTime& old, QDate day)
{
    // The day changes; the time of day the record had stays.
    const QDateTime local = old.toLocalTime();
    return QDateTime(day, local.isValid() ? local.time() : QTime(0, 0));
}

bool FieldDraft::isFor(const Record& document, std::string_view key) const
{
    return record_ == &document && key_ == key;
}

void FieldDraft::set(Record& document, std::string_view key, const Value& value)
{
    if (record_ && !isFor(document, key)) {
        revert();
    }
    if (!record_) {
        record_ = &document;
        key_ = std::string(key);
        original_ = document.value(key);
    }
    apply(value);
}

void FieldDraft::revert()
{
    if (record_) {
        apply(original_);
        record_ = nullptr;
    }
}

void FieldDraft::apply(const Value& value)
{
    Context* context = session_.context();
    if (!context || record_->isDeleted()) {
        record_ = nullptr;
        return;
    }
    WithoutUndo draft(*context);
    UndoGroup announce(*context, {});  // the window follows once
    record_->setValue(key_, value);
    if (affectsTotals(*record_, key_)) {
        Totals(session_).calculateInvoice(*record_);
    }
}

namespace {

bool sameValue(const Value& stored, const Value& value)
{
    return stored == value || (value.isString() && stored.toString() == value.toString());
}

}  // namespace

FieldWrite writeDocumentField(AppSession& session, Record& document, std::string_view key,
                              const Value& value, const QString& undoName, bool lockedWhenSent,
                              FieldDraft* draft)
{
    Context* context = session.context();
    if (!context || document.isDeleted()) {
        return FieldWrite::Unchanged;
    }
    const bool drafted = draft && draft->isFor(document, key);
    if (lockedWhenSent && document.integer("status") > 0) {
        if (drafted) {
            draft->revert();
        }
        return FieldWrite::Locked;
    }
    if (sameValue(drafted ? draft->original() : document.value(key), value)) {
        if (drafted) {
            draft->revert();
        }
        return FieldWrite::Unchanged;
    }
    {
        UndoGroup group(*context, undoName);
        if (drafted) {
            draft->revert();  // not recorded: the step goes from the stored value
        }
        document.setValue(key, value);
        if (affectsTotals(document, key)) {
            Totals(session).calculateInvoice(document);  // undone together with the edit
        }
    }
    session.saveContext();
    return FieldWrite::Written;
}

}  // namespace tamo
