#include "documents/lineitems.h"
#include "cli/commandline.h"
#include "documents/lifecycle.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class LineItemsTest : public SessionTest {
protected:
    Context& context = *session.managedObjectContext();
    LineItems items{session};
    Record* document = newDocument(0);

    Record* newDocument(int status)
    {
        Record* d = context.insert("Invoice");
        d->setValue("kind", 1);
        d->setValue("status", status);
        d->setValue("number", u"2026-%1"_qs.arg(context.count("Invoice")));
        session.documents().setSelection({d});
        session.saveContext();
        return d;
    }
    Record* add(const QString& title, double price, const QString& sku = {}, double quantity = 1)
    {
        return items.addItem({.title = title, .sku = sku, .price = price, .quantity = quantity});
    }
};

TEST_F(LineItemsTest, TheCatalogLearnsOnlyLinesItDoesNotKnow)
{
    const struct {
        QString title;
        double price;
        QString sku;
        size_t catalogSize;
    } entries[] = {
        {u"Design"_qs, 80, {}, 1},         {u"Design"_qs, 95, {}, 2},  // a new price is a new entry
        {u"Design"_qs, 80, {}, 2},         {u"Logo"_qs, 80, {}, 3},
        {u"Fee"_qs, 0.3, {}, 4},           {u"Fee"_qs, 0.1 + 0.2, {}, 5},  // not the same double
        {u"Hosting"_qs, 10, u"H-1"_qs, 6}, {u"Web hosting"_qs, 12, u"H-1"_qs, 6},  // known number
    };
    for (const auto& e : entries) {
        add(e.title, e.price, e.sku);
        EXPECT_EQ(items.catalog().size(), e.catalogSize) << e.title.toStdString() << e.price;
    }
    EXPECT_EQ(document->toMany("items").size(), std::size(entries));
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(LineItemsTest, LinesAndEntriesTakeTheTaxSettingsOfTheirTime)
{
    settings.set(key::tax1Enabled, true);
    settings.set(key::tax2IsCompound, true);
    settings.set(key::tax1Rate, 0.1);
    settings.set(key::tax2Rate, 0.05);
    settings.set(key::tax2Title, u"PST"_qs);
    Record* line = items.addItem({u"Audit"_qs, {}, {}, {}, {}, 100, 1, true, true, false});
    EXPECT_EQ(line->string("tax2Title"), u"PST");
    const Record* entry = items.catalog().front();
    EXPECT_TRUE(entry->boolean("isTax1Applied"));
    EXPECT_FALSE(entry->boolean("isTax2Applied"));  // tax 2 is switched off

    // The compound line still builds tax 2 on tax 1 after the preference changed.
    settings.set(key::tax2IsCompound, false);
    EXPECT_FALSE(add(u"Review"_qs, 10)->boolean("isTax2Compound"));
    items.editItem(line, {u"Audit"_qs, {}, {}, {}, {}, 100, 2, true, true, false});
    EXPECT_EQ(line->decimal("tax2Amount"), 11.0);  // 0.05 of 220, not of 200

    // Taking the entry leaves the quantity and the box of the switched-off tax.
    const LineFields fields = items.addItemRecent(*entry, {.quantity = 3, .tax2 = true});
    EXPECT_EQ(fields.title + u' ' + QString::number(fields.price * fields.quantity), u"Audit 300");
    EXPECT_TRUE(fields.tax1 && fields.tax2);
    EXPECT_EQ(items.itemPopoverPage(), LineItems::kEntryPage);
}

TEST_F(LineItemsTest, AddingAndDeletingAreSingleUndoSteps)
{
    Record* line = add(u"Design"_qs, 80, {}, 2);
    context.undo();
    EXPECT_TRUE(line->isDeleted());
    EXPECT_TRUE(items.catalog().empty());
    EXPECT_EQ(document->decimal("amount"), 0.0);
    context.redo();
    session.saveContext();

    prompter.queueAnswer(u"Cancel"_qs);
    EXPECT_FALSE(items.deleteItem(line));
    EXPECT_FALSE(context.hasChanges());
    prompter.queueAnswer(u"Delete"_qs);
    EXPECT_TRUE(items.deleteItem(line));
    EXPECT_EQ(prompter.alerts()[1].text,
              u"Deleting items is permanent and cannot be undone. Do you really want to delete "
              u"the selected item?");
    EXPECT_EQ(document->decimal("amount"), 0.0);
    EXPECT_EQ(items.catalog().size(), 1u);  // the catalog keeps what it learnt
    context.undo();
    EXPECT_EQ(document->decimal("amount"), 160.0);
}

TEST_F(LineItemsTest, ASentDocumentRefusesEveryLineEditor)
{
    Record* line = add(u"Design"_qs, 80);
    document->setValue("status", 1);
    session.saveContext();
    const std::function<bool()> editors[] = {
        [&] { return items.showItemPopover().has_value(); },
        [&] { return items.deleteItem(line); },
        [&] { return items.openEditItemSheet(line).has_value(); },
        [&] { return items.showShippingPopover(); },
        [&] { return items.showDiscountPopover(); },
    };
    for (const auto& open : editors) {
        EXPECT_FALSE(open());
        EXPECT_TRUE(prompter.alerts().last().text.endsWith(u"resend the modified invoice."));
    }
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(LineItemsTest, LinesAreSortedAsThePreferenceSays)
{
    // Entered as Charlie, Alpha, Bravo, but Alpha stamped first.
    for (const auto& [title, price, second] :
         {std::tuple{u"Charlie"_qs, 20, 20}, std::tuple{u"Alpha"_qs, 30, 10},
          std::tuple{u"Bravo"_qs, 10, 30}}) {
        clock.set(QDateTime(QDate(2026, 3, 1), QTime(9, 0, second), Qt::UTC));
        add(title, price);
    }
    const auto titles = [&](const Record& d) {
        QString t;
        for (const Record* r : items.sortedItems(d)) {
            t += r->string("title").front();
        }
        return t;
    };
    for (const auto& [order, expected] :
         {std::pair{0, u"CAB"}, std::pair{1, u"ACB"}, std::pair{2, u"ABC"}, std::pair{3, u"BCA"},
          std::pair{7, u"CAB"}}) {
        settings.set(key::itemSortOrder, order);
        EXPECT_EQ(titles(*document), expected) << order;
    }
    // A duplicate's lines keep their time of entry, and so their order.
    settings.set(key::itemSortOrder, 1);
    EXPECT_EQ(titles(*DocumentLifecycle(session).duplicateInvoice(true)), u"ACB");
}

TEST_F(LineItemsTest, ShippingIsRememberedByTitleAndAmount)
{
    settings.set(key::locShipping, u"Shipping"_qs);
    add(u"Design"_qs, 80);
    ASSERT_TRUE(items.showShippingPopover());
    EXPECT_EQ(document->string("shippingTitle"), u"Shipping");
    for (const double amount : {4.9, 4.9, 5.9}) {
        document->setValue("isShippingEnabled", true);
        document->setValue("shippingAmount", amount);
        items.closeShippingPopover();
    }
    EXPECT_EQ(document->decimal("amount"), 85.9);
    ASSERT_EQ(items.rememberedShipping().size(), 2u);

    document->setValue("shippingTitle", u"Courier"_qs);
    items.selectRecentShipping(*items.rememberedShipping().front());
    EXPECT_EQ(document->string("shippingTitle"), u"Shipping");
    EXPECT_EQ(document->decimal("amount"), 84.9);
    EXPECT_EQ(items.rememberedShipping().size(), 2u);
}

TEST_F(LineItemsTest, TheCommandsActOnTheNamedDocument)
{
    const auto tamo = [&](QStringList words) {
        QString out, err;
        QTextStream o(&out), e(&err);
        words = QStringList{u"tamo"_qs, u"--store"_qs, dir.profile().supportFolder} + words;
        const int code = runCommand(parseInvocation(words), o, e);
        return std::pair{code, out};
    };
    const QString card = QStringLiteral(TAMO_TEST_DATA "/vcards/cloud-4.0.vcf");
    settings.set(key::prefsAddressPattern, u"%FIRSTNAME% %LASTNAME%\n%CITY%"_qs);
    newDocument(1);  // 2026-2, already sent
    EXPECT_EQ(
        tamo({u"add-item"_qs, u"2026-1"_qs, u"--title"_qs, u"Design"_qs, u"--price"_qs,
              u"1234.5"_qs, u"--quantity"_qs, u"2"_qs, u"--tax1"_qs}),
        std::pair(0, u"Added \"Design\" (2 x 1234.5) to 2026-1; its total is now 2469.00\n"_qs));
    EXPECT_EQ(tamo({u"add-item"_qs, u"2026-2"_qs, u"--title"_qs, u"X"_qs, u"--price"_qs, u"1"_qs,
                    u"--quantity"_qs, u"1"_qs})
                  .first,
              1);
    EXPECT_EQ(tamo({u"add-item"_qs, u"2026-1"_qs, u"--title"_qs, u"X"_qs}).first, 2);
    EXPECT_EQ(tamo({u"set-client"_qs, u"2026-1"_qs, u"--vcard"_qs, card}),
              std::pair(0, u"The client of 2026-1 is now Oliver Wright\n"_qs));

    const auto stored = openContext(dir.storePath());
    const Record* line = stored->fetch("Item").at(0);
    EXPECT_EQ(line->decimal("baseAmount"), 1234.5);
    EXPECT_TRUE(line->boolean("isTax1Applied"));
    EXPECT_EQ(line->toOne("invoice")->string("address"), u"Oliver Wright\nBristol");
    const QString remembered = stored->fetch("Address").at(0)->uniqueID();
    EXPECT_EQ(tamo({u"set-client"_qs, u"2026-1"_qs, u"--remembered"_qs, remembered}).first, 0);
}

}  // namespace
