#include "model/entity.h"

#include <initializer_list>

namespace tamo {

EntityDescription::EntityDescription(std::string name, std::vector<AttributeDescription> attributes,
                                     std::vector<RelationshipDescription> relationships)
    : name_(std::move(name)),
      attributes_(std::move(attributes)),
      relationships_(std::move(relationships))
{
    for (size_t i = 0; i < attributes_.size(); ++i) {
        attributeIndex_.emplace(attributes_[i].key, int(i));
    }
    for (size_t i = 0; i < relationships_.size(); ++i) {
        relationshipIndex_.emplace(relationships_[i].key, int(i));
    }
}

int EntityDescription::attributeIndex(std::string_view key) const
{
    const auto it = attributeIndex_.find(key);
    return it == attributeIndex_.end() ? -1 : it->second;
}

int EntityDescription::relationshipIndex(std::string_view key) const
{
    const auto it = relationshipIndex_.find(key);
    return it == relationshipIndex_.end() ? -1 : it->second;
}

namespace {

using T = AttributeType;

// Appends attributes of one type, keeping the order in which they are named.
struct Attributes {
    std::vector<AttributeDescription> list;
    Attributes& add(T type, std::initializer_list<const char*> keys)
    {
        for (const char* k : keys) {
            list.push_back({k, type});
        }
        return *this;
    }
};

const std::initializer_list<const char*> kEvoiceKeys = {
    "evoiceContact",   "evoicePostalCode", "evoiceStreet",    "evoiceCity",    "evoiceCountryCode",
    "evoiceTaxScheme", "evoiceName",       "evoiceLegalName", "evoiceCurrency"};

EntityDescription invoice()
{
    Attributes a;
    a.add(T::String, {"uniqueID"})
        .add(T::Integer, {"kind", "status"})
        .add(T::String, {"number", "title", "subject"})
        .add(T::Date, {"date", "due", "sent", "paid", "dispatched"})
        .add(T::Boolean, {"isDispatched"})
        .add(T::String, {"dispatchNumber", "address", "clientNumber", "customerTitle",
                         "customerName", "customerVATID", "emailAddress", "currency", "conditions",
                         "footer", "misc1", "notes"})
        .add(T::Decimal, {"subAmount", "amount", "paidAmount", "dueAmount"})
        .add(T::Boolean, {"isDiscountEnabled"})
        .add(T::Integer, {"discountKind"})
        .add(T::Decimal, {"discountPercent", "discountAmount"})
        .add(T::String, {"discountTitle", "discountSubtitle"})
        .add(T::Boolean, {"hasDiscountSubtitle", "isShippingEnabled"})
        .add(T::Decimal, {"shippingAmount"})
        .add(T::String, {"shippingTitle", "shippingSubtitle"})
        .add(T::Boolean, {"hasShippingSubtitle", "isShippingTax1Enabled", "isShippingTax2Enabled",
                          "isShippingTax3Enabled"})
        .add(T::Decimal, {"tax1Percent", "tax2Percent", "tax3Percent", "tax1Amount", "tax2Amount",
                          "tax3Amount"})
        .add(T::Integer, {"tax1Kind", "tax2Kind", "tax3Kind"})
        .add(T::Boolean, {"isPaid", "isReminderSent"})
        .add(T::Date, {"reminderSentDate"})
        .add(T::String, {"invoiceMisc2", "miscString1", "miscString2", "miscString3"})
        .add(T::Integer, {"misc2"})
        .add(T::Decimal, {"misc3"})
        .add(T::Boolean, {"misc4"})
        .add(T::Date, {"misc5"})
        .add(T::String, kEvoiceKeys)
        // Written by the totals calculation.
        .add(T::Decimal, {"taxExclusiveAmount", "invoiceDiscountSum", "tax1TaxableAmount",
                          "tax2TaxableAmount", "tax3TaxableAmount"})
        .add(T::Boolean, {"hasInvoiceTaxableAmounts"});
    return {
        "Invoice", std::move(a.list), {{"items", "Item", "invoice", true, DeleteRule::Cascade}}};
}

EntityDescription item()
{
    Attributes a;
    a.add(T::String, {"uniqueID", "title", "subtitle", "unit", "sku", "note"})
        .add(T::Decimal, {"unitCount", "baseAmount", "subAmount", "amount"})
        .add(T::Boolean, {"isTax1Applied", "isTax2Applied", "isTax3Applied", "isTax2Compound",
                          "isTax3Compound"})
        .add(T::Decimal, {"tax1Percent", "tax2Percent", "tax3Percent", "tax1Amount", "tax2Amount",
                          "tax3Amount"})
        .add(T::String, {"tax1Title", "tax2Title", "tax3Title", "misc1"})
        .add(T::Integer, {"misc2"})
        .add(T::Decimal, {"misc3"})
        .add(T::Boolean, {"misc4"})
        .add(T::Date, {"misc5"});
    return {"Item",
            std::move(a.list),
            {{"invoice", "Invoice", "items", false, DeleteRule::Nullify},
             {"template", "Template", "items", false, DeleteRule::Nullify}}};
}

EntityDescription address()
{
    Attributes a;
    a.add(T::String, {"uniqueID",
                      "address",
                      "clientNumber",
                      "customerName",
                      "customerTitle",
                      "customerFirstName",
                      "customerLastName",
                      "customerSurName",
                      "customerVATID",
                      "emailAddress",
                      "customerEmail",
                      "street",
                      "streetNumber",
                      "zip",
                      "city",
                      "country",
                      "phone",
                      "ibanNumber",
                      "customerReference",
                      "customerReferenceCode"})
        .add(T::Date, {"date"})
        .add(T::String, {"misc1"})
        .add(T::Integer, {"misc2"})
        .add(T::Decimal, {"misc3"})
        .add(T::Boolean, {"misc4"})
        .add(T::Date, {"misc5"})
        .add(T::String, kEvoiceKeys);
    return {"Address", std::move(a.list), {}};
}

EntityDescription design()
{
    Attributes a;
    a.add(T::String, {"uniqueID", "title", "invoice", "item", "css"})
        .add(T::Boolean, {"isDefault"});
    return {"Design", std::move(a.list), {}};
}

// The spare values every catalog-like entity carries.
void addSpares(Attributes& a)
{
    a.add(T::String, {"misc1"})
        .add(T::Integer, {"misc2"})
        .add(T::Decimal, {"misc3"})
        .add(T::Boolean, {"misc4"})
        .add(T::Date, {"misc5"});
}

EntityDescription recentItem()
{
    Attributes a;
    a.add(T::String, {"uniqueID", "title", "subtitle", "unit", "sku", "note"})
        .add(T::Decimal, {"baseAmount", "subAmount"})
        .add(T::Boolean, {"isTax1Applied", "isTax2Applied", "isTax3Applied"});
    addSpares(a);
    return {"RecentItem", std::move(a.list), {}};
}

EntityDescription recentShipping()
{
    Attributes a;
    a.add(T::String, {"uniqueID", "title", "subtitle", "note", "notes"})
        .add(T::Decimal, {"amount"})
        .add(T::Boolean, {"hasSubtitle", "isTax1Enabled", "isTax2Enabled", "isTax3Enabled"});
    addSpares(a);
    return {"RecentShipping", std::move(a.list), {}};
}

// A saved set of document fields from which a new document can be filled.
EntityDescription documentTemplate()
{
    Attributes a;
    a.add(T::String, {"uniqueID", "notes", "address", "clientNumber", "customerTitle",
                      "customerName", "customerVATID", "title", "subject"})
        .add(T::Boolean, {"isShippingEnabled", "isShippingTax1Enabled", "isShippingTax2Enabled",
                          "isShippingTax3Enabled", "hasShippingSubtitle"})
        .add(T::String, {"shippingSubtitle", "shippingTitle"})
        .add(T::Decimal, {"shippingAmount"})
        .add(T::Boolean, {"isDiscountEnabled", "hasDiscountSubtitle"})
        .add(T::String, {"discountSubtitle", "discountTitle"})
        .add(T::Decimal, {"discountAmount", "discountPercent"})
        .add(T::Integer, {"discountKind", "misc2"})
        .add(T::Decimal, {"misc3"})
        .add(T::Boolean, {"misc4"})
        .add(T::Date, {"misc5"})
        .add(T::String, {"conditions", "footer", "misc1", "currency"})
        .add(T::Integer, {"tax1Kind", "tax2Kind", "tax3Kind"})
        .add(T::Decimal, {"tax1Percent", "tax2Percent", "tax3Percent"})
        .add(T::String, {"miscString1", "miscString2", "miscString3"});
    return {
        "Template", std::move(a.list), {{"items", "Item", "template", true, DeleteRule::Cascade}}};
}

// A due-date notification waiting to be shown on the desktop.
EntityDescription scheduledNotification()
{
    Attributes a;
    a.add(T::String, {"uniqueID", "title", "subtitle", "informativeText"})
        .add(T::Date, {"deliveryDate"})
        .add(T::String, {"documentID"})
        .add(T::Boolean, {"sound", "isDelivered"});
    return {"ScheduledNotification", std::move(a.list), {}};
}

}  // namespace

Model::Model()
    : entities_{invoice(),    item(),           address(),          design(),
                recentItem(), recentShipping(), documentTemplate(), scheduledNotification()}
{
}

const Model& Model::tamo()
{
    static const Model model;
    return model;
}

const EntityDescription* Model::entity(std::string_view name) const
{
    for (const EntityDescription& e : entities_) {
        if (e.name() == name) {
            return &e;
        }
    }
    return nullptr;
}

}  // namespace tamo
