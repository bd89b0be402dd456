#include "documents/lineitems.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "calc/totals.h"
#include "documents/lifecycle.h"
#include "model/taxkeys.h"
#include "platform/translations.h"

namespace tamo {

namespace {

// The popover's box of each tax.
constexpr std::array<bool LineFields::*, 3> kTaxBoxes{&LineFields::tax1, &LineFields::tax2,
                                                      &LineFields::tax3};

// The spare values every new line and remembered entry starts with.
void clearSpares(Record& record, const QDateTime& now)
{
    record.setValue("misc1", QString());
    record.setValue("misc2", 0);
    record.setValue("misc3", 0.0);
    record.setValue("misc4", false);
    record.setValue("misc5", now);
}

void writeTexts(Record& record, const LineFields& fields)
{
    record.setValue("title", fields.title);
    record.setValue("subtitle", fields.subtitle);
    record.setValue("unit", fields.unit);
    record.setValue("sku", fields.sku);
    record.setValue("note", fields.note);
}

void writeLine(Record& line, const LineFields& fields)
{
    writeTexts(line, fields);
    line.setValue("baseAmount", fields.price);
    line.setValue("unitCount", fields.quantity);
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        line.setValue(kTaxes[n].applied, fields.*kTaxBoxes[n]);
    }
}

}  // namespace

Record* LineItems::editableDocument() const
{
    Record* document = session_.documents().current();
    if (!document || refuseChangesToSentDocument(session_)) {
        return nullptr;
    }
    return document;
}

std::optional<LineFields> LineItems::showItemPopover()
{
    if (!editableDocument()) {
        return std::nullopt;
    }
    Settings& s = session_.settings();
    s.set(key::itemTabViewIndex, s.integer(key::alwaysShowRecentItems));
    return LineFields{};
}

int LineItems::itemPopoverPage() const
{
    return session_.settings().integer(key::itemTabViewIndex);
}

Record* LineItems::addItem(const LineFields& fields)
{
    Record* document = session_.documents().current();
    if (!document) {
        return nullptr;
    }
    const Settings& s = session_.settings();
    Context& context = document->context();
    Record* line = nullptr;
    {
        UndoGroup group(context, tr("Add Line"));
        line = context.insert("Item");
        writeLine(*line, fields);
        for (const TaxKeys& t : kTaxes) {
            line->setValue(t.title, s.string(*t.titleSetting));
            // Rates come as the settings hold them, in single precision, like the document's.
            line->setValue(t.percent, double(float(s.real(*t.rate))));
            if (t.compound) {
                // Kept with the line: changing the preference later leaves entered lines alone.
                line->setValue(t.compound, s.boolean(*t.isCompound));
            }
        }
        for (const char* k : {"subAmount", "amount", "tax1Amount", "tax2Amount", "tax3Amount"}) {
            line->setValue(k, 0.0);
        }
        clearSpares(*line, session_.clock().now());
        line->setToOne("invoice", document);
        Totals(session_).calculateInvoice(*document);
        rememberCatalogEntry(fields);
    }
    session_.saveContext();
    return line;
}

void LineItems::rememberCatalogEntry(const LineFields& fields)
{
    Context& context = *session_.context();
    for (const Record* entry : context.fetch("RecentItem")) {
        // Exact equality: a price that differs in the last bit is another price.
        if ((entry->string("title") == fields.title &&
             entry->decimal("baseAmount") == fields.price) ||
            (!fields.sku.isEmpty() && entry->string("sku") == fields.sku)) {
            return;
        }
    }
    const Settings& s = session_.settings();
    Record* entry = context.insert("RecentItem");
    writeTexts(*entry, fields);
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        entry->setValue(kTaxes[n].applied, s.boolean(*kTaxes[n].enabled) && fields.*kTaxBoxes[n]);
    }
    entry->setValue("subAmount", fields.price);
    entry->setValue("baseAmount", fields.price);
    clearSpares(*entry, session_.clock().now());
}

LineFields LineItems::addItemRecent(const Record& entry, LineFields fields)
{
    fields.title = entry.string("title");
    fields.subtitle = entry.string("subtitle");
    fields.unit = entry.string("unit");
    fields.sku = entry.string("sku");
    fields.note = entry.string("note");
    const Settings& s = session_.settings();
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        if (s.boolean(*kTaxes[n].enabled)) {
            fields.*kTaxBoxes[n] = entry.boolean(kTaxes[n].applied);
        }
    }
    fields.price = entry.decimal("baseAmount");
    session_.settings().set(key::itemTabViewIndex, kEntryPage);
    return fields;
}

bool LineItems::deleteItem(Record* line)
{
    Record* document = editableDocument();
    if (!document || !line || line->toOne("invoice") != document) {
        return false;
    }
    const QString remove = tr("Delete");
    if (session_.prompter().ask({tr("Delete Item"),
                                 tr("Deleting items is permanent and cannot be undone. "
                                    "Do you really want to delete the selected item?"),
                                 {remove, tr("Cancel")}}) != remove) {
        return false;
    }
    {
        UndoGroup group(document->context(), tr("Delete Line"));
        document->context().remove(line);
        Totals(session_).calculateInvoice(*document);
    }
    session_.saveContext();
    return true;
}

std::optional<LineFields> LineItems::openEditItemSheet(const Record* line) const
{
    if (!line || !editableDocument()) {
        return std::nullopt;
    }
    LineFields fields{line->string("title"),     line->string("subtitle"),
                      line->string("unit"),      line->string("sku"),
                      line->string("note"),      line->decimal("baseAmount"),
                      line->decimal("unitCount")};
    for (size_t n = 0; n < kTaxes.size(); ++n) {
        fields.*kTaxBoxes[n] = line->boolean(kTaxes[n].applied);
    }
    return fields;
}

void LineItems::editItem(Record* line, const LineFields& fields)
{
    Record* document = line ? line->toOne("invoice") : nullptr;
    if (!document) {
        return;
    }
    {
        UndoGroup group(document->context(), tr("Edit Line"));
        writeLine(*line, fields);
        Totals(session_).calculateInvoice(*document);
    }
    session_.saveContext();
}

std::vector<Record*> LineItems::sortedItems(const Record& document) const
{
    std::vector<Record*> lines = document.toMany("items");
    // The natural order is the order in which the store keeps the lines.
    std::ranges::sort(lines, {}, &Record::primaryKey);
    switch (session_.settings().integer(key::itemSortOrder)) {
    case 1:
        sortRecords(lines, {{"misc5", true}});
        break;
    case 2:
        sortRecords(lines, {{"title", true}});
        break;
    case 3:
        sortRecords(lines, {{"amount", true}});
        break;
    default:
        break;
    }
    return lines;
}

std::vector<Record*> LineItems::catalog() const
{
    Context* context = session_.context();
    return context ? context->fetch("RecentItem") : std::vector<Record*>{};
}

std::vector<Record*> LineItems::rememberedShipping() const
{
    Context* context = session_.context();
    return context ? context->fetch("RecentShipping") : std::vector<Record*>{};
}

bool LineItems::openPopover(std::string_view titleKey, const SettingKey& defaultTitle)
{
    Record* document = editableDocument();
    if (!document) {
        return false;
    }
    if (document->string(titleKey).isEmpty()) {
        {
            UndoGroup group(document->context(), tr("Default Title"));
            document->setValue(titleKey, session_.settings().string(defaultTitle));
        }
        session_.saveContext();
    }
    return true;
}

bool LineItems::showShippingPopover()
{
    if (!openPopover("shippingTitle", key::locShipping)) {
        return false;
    }
    Settings& s = session_.settings();
    s.set(key::shippingTabViewIndex, s.integer(key::alwaysShowRecentShipping));
    return true;
}

int LineItems::shippingPopoverPage() const
{
    return session_.settings().integer(key::shippingTabViewIndex);
}

void LineItems::closeShippingPopover()
{
    if (Record* document = session_.documents().current()) {
        UndoGroup group(document->context(), tr("Edit Shipping"));
        finishShipping(*document);
    }
    session_.saveContext();
}

void LineItems::selectRecentShipping(const Record& entry)
{
    Record* document = session_.documents().current();
    if (!document) {
        return;
    }
    {
        UndoGroup group(document->context(), tr("Choose Shipping"));
        document->setValue("shippingTitle", entry.string("title"));
        document->setValue("shippingSubtitle", entry.string("subtitle"));
        document->setValue("isShippingEnabled", true);
        document->setValue("hasShippingSubtitle", entry.boolean("hasSubtitle"));
        document->setValue("isShippingTax1Enabled", entry.boolean("isTax1Enabled"));
        document->setValue("isShippingTax2Enabled", entry.boolean("isTax2Enabled"));
        document->setValue("isShippingTax3Enabled", entry.boolean("isTax3Enabled"));
        document->setValue("shippingAmount", entry.decimal("amount"));
        finishShipping(*document);
    }
    session_.saveContext();
}

void LineItems::finishShipping(Record& document)
{
    Totals(session_).calculateInvoice(document);
    rememberShipping(document);
}

void LineItems::rememberShipping(const Record& document)
{
    Context& context = document.context();
    const QString title = document.string("shippingTitle");
    const double amount = document.decimal("shippingAmount");
    for (const Record* known : context.fetch("RecentShipping")) {
        if (known->string("title") == title && known->decimal("amount") == amount) {
            return;
        }
    }
    Record* entry = context.insert("RecentShipping");
    entry->setValue("title", title);
    entry->setValue("subtitle", document.string("shippingSubtitle"));
    entry->setValue("note", QString());  // the document has no shipping note to take it from
    entry->setValue("hasSubtitle", document.boolean("hasShippingSubtitle"));
    entry->setValue("isTax1Enabled", document.boolean("isShippingTax1Enabled"));
    entry->setValue("isTax2Enabled", document.boolean("isShippingTax2Enabled"));
    entry->setValue("isTax3Enabled", document.boolean("isShippingTax3Enabled"));
    entry->setValue("amount", amount);
    clearSpares(*entry, session_.clock().now());
}

bool LineItems::showDiscountPopover()
{
    return openPopover("discountTitle", key::locDiscount);
}

void LineItems::closeDiscountPopover()
{
    if (Record* document = session_.documents().current()) {
        UndoGroup group(document->context(), tr("Edit Discount"));
        Totals(session_).calculateInvoice(*document);
    }
    session_.saveContext();
}

}  // namespace tamo
