#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "model/appsession.h"

namespace tamo {

// The fields of the item popover and of the edit sheet: what a line is made of.
struct LineFields {
    QString title{};
    QString subtitle{};
    QString unit{};
    QString sku{};
    QString note{};
    double price = 0;
    double quantity = 1;
    bool tax1 = false;
    bool tax2 = false;
    bool tax3 = false;
};

// The lines of the current document, the item catalog that grows as lines are entered, the
// remembered shipping lines, and the shipping and discount of the document. Every change is one
// undo step and ends with the document's totals and a save.
class LineItems {
public:
    // The pages of the item and shipping popovers (`itemTabViewIndex`, `shippingTabViewIndex`).
    static constexpr int kEntryPage = 0;
    static constexpr int kRememberedPage = 1;

    explicit LineItems(AppSession& session) : session_(session) {}

    // The popover's starting fields; nothing when there is no document or it is sent (the
    // reason has been shown).
    std::optional<LineFields> showItemPopover();
    int itemPopoverPage() const;
    // Adds a line to the current document and, when the catalog does not know it, an entry.
    Record* addItem(const LineFields& fields);
    // The popover's fields filled from a catalog entry; the quantity stays, and so does each tax
    // box whose tax is switched off in the preferences. The line is made by addItem.
    LineFields addItemRecent(const Record& entry, LineFields fields);
    // Asks first; false when the line stays.
    bool deleteItem(Record* line);
    // The line's fields for the edit sheet; nothing when the document is sent.
    std::optional<LineFields> openEditItemSheet(const Record* line) const;
    void editItem(Record* line, const LineFields& fields);

    // The document's lines in the order `itemSortOrder` asks for.
    std::vector<Record*> sortedItems(const Record& document) const;
    std::vector<Record*> catalog() const;
    std::vector<Record*> rememberedShipping() const;

    // Shipping and discount are edited on the document itself between opening and closing.
    bool showShippingPopover();
    int shippingPopoverPage() const;
    void closeShippingPopover();
    void selectRecentShipping(const Record& entry);
    bool showDiscountPopover();
    void closeDiscountPopover();

private:
    Record* editableDocument() const;
    bool openPopover(std::string_view titleKey, const SettingKey& defaultTitle);
    void rememberCatalogEntry(const LineFields& fields);
    void finishShipping(Record& document);
    void rememberShipping(const Record& document);

    AppSession& session_;
};

}  // namespace tamo
