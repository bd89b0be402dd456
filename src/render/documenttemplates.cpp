#include "render/documenttemplates.h"

#include <algorithm>

#include "calc/totals.h"
#include "documents/lifecycle.h"
#include "interchange/recorddictionary.h"

namespace tamo {

namespace {

using Keys = std::initializer_list<const char*>;

const Keys kClient = {"address", "clientNumber", "customerTitle", "customerName", "customerVATID"};
const Keys kTitle = {"title", "subject"};
const Keys kShipping = {"isShippingEnabled",     "isShippingTax1Enabled", "isShippingTax2Enabled",
                        "isShippingTax3Enabled", "hasShippingSubtitle",   "shippingSubtitle",
                        "shippingTitle",         "shippingAmount"};
const Keys kDiscount = {"isDiscountEnabled", "hasDiscountSubtitle", "discountSubtitle",
                        "discountTitle",     "discountAmount",      "discountPercent",
                        "discountKind"};
// Taken over whatever the settings say.
const Keys kAlways = {"misc2",       "misc3",       "misc4",       "misc5",       "conditions",
                      "footer",      "misc1",       "currency",    "tax1Kind",    "tax2Kind",
                      "tax3Kind",    "tax1Percent", "tax2Percent", "tax3Percent", "miscString1",
                      "miscString2", "miscString3"};

void copy(const Record& from, Record& to, Keys keys)
{
    for (const char* k : keys) {
        to.setValue(k, from.value(k));
    }
}

// New lines with the values of `lines`, each with an identity of its own.
std::vector<Record*> clones(const std::vector<Record*>& lines)
{
    std::vector<Record*> copies;
    for (const Record* line : lines) {
        copies.push_back(cloneBySkippingAttributes(*line, {QStringLiteral("uniqueID")}));
    }
    return copies;
}

constexpr TemplatePart kParts[] = {
    {&key::templateIncludeClient, QT_TRANSLATE_NOOP("DocumentTemplates", "Client")},
    {&key::templateIncludeTitle, QT_TRANSLATE_NOOP("DocumentTemplates", "Title")},
    {&key::templateIncludeItems, QT_TRANSLATE_NOOP("DocumentTemplates", "Lines")},
    {&key::templateIncludeShipping, QT_TRANSLATE_NOOP("DocumentTemplates", "Shipping")},
    {&key::templateIncludeDiscount, QT_TRANSLATE_NOOP("DocumentTemplates", "Discount")},
};

}  // namespace

std::span<const TemplatePart> templateParts()
{
    return kParts;
}

std::vector<Record*> DocumentTemplates::templates() const
{
    Context* c = session_.context();
    if (!c) {
        return {};
    }
    std::vector<Record*> list = c->fetch("Template");
    std::ranges::sort(list, {}, &Record::primaryKey);
    return list;
}

std::optional<std::vector<Record*>> DocumentTemplates::showTemplatePopover() const
{
    if (!session_.documents().current()) {
        return std::nullopt;
    }
    return templates();
}

bool DocumentTemplates::keepsPopoverOpen() const
{
    return session_.settings().boolean(key::alwaysShowRecentTemplates);
}

Record* DocumentTemplates::createNewTemplate(const QString& notes)
{
    Record* document = session_.documents().current();
    Context* c = session_.context();
    if (!document || !c) {
        return nullptr;
    }
    const Settings& s = session_.settings();
    Record* t = nullptr;
    {
        UndoGroup group(*c, tr("New Template"));
        t = c->insert("Template");
        t->setValue("notes", notes);
        const std::pair<const SettingKey*, Keys> parts[] = {
            {&key::templateIncludeClient, kClient},
            {&key::templateIncludeTitle, kTitle},
            {&key::templateIncludeShipping, kShipping},
            {&key::templateIncludeDiscount, kDiscount}};
        for (const auto& [include, keys] : parts) {
            if (s.boolean(*include)) {
                copy(*document, *t, keys);
            }
        }
        copy(*document, *t, kAlways);
        if (s.boolean(key::templateIncludeItems)) {
            for (Record* line : clones(document->toMany("items"))) {
                line->setToOne("template", t);
            }
        }
    }
    session_.saveContext();
    emit templatesChanged();
    return t;
}

bool DocumentTemplates::selectTemplate(const Record& documentTemplate)
{
    Record* document = session_.documents().current();
    Context* c = session_.context();
    if (!document || !c || refuseChangesToSentDocument(session_)) {
        return false;
    }
    {
        UndoGroup group(*c, tr("Apply Template"));
        // What the template holds replaces the document's; what it left out stays.
        const auto& attributes = documentTemplate.entity().attributes();
        for (size_t i = 0; i < attributes.size(); ++i) {
            const std::string& k = attributes[i].key;
            const Value& v = documentTemplate.valueAt(int(i));
            if (k != "uniqueID" && k != "notes" && !v.isNull()) {
                document->setValue(k, v);
            }
        }
        const std::vector<Record*> lines = documentTemplate.toMany("items");
        if (!lines.empty()) {
            for (Record* old : std::vector<Record*>(document->toMany("items"))) {
                c->remove(old);
            }
            for (Record* line : clones(lines)) {
                line->setToOne("invoice", document);
            }
        }
        Totals(session_).calculateInvoice(*document);
    }
    session_.saveContext();
    return true;
}

bool DocumentTemplates::deleteTemplate(Record* documentTemplate)
{
    Context* c = session_.context();
    if (!c || !documentTemplate) {
        return false;
    }
    {
        UndoGroup group(*c, tr("Delete Template"));
        c->remove(documentTemplate);
    }
    session_.saveContext();
    emit templatesChanged();
    return true;
}

}  // namespace tamo
