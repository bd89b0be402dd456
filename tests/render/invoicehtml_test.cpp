#include <QBuffer>
#include <QImage>

#include "render/renderfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(ReplacePlaceholder, RepeatsUntilGoneButNeverRunsAway)
{
    struct Case {
        const char16_t* text;
        const char16_t* value;
        const char16_t* expected;
    };
    const Case cases[] = {
        {u"%A% and %A%", u"x", u"x and x"},
        {u"%A%", u"", u""},
        {u"no placeholder", u"x", u"no placeholder"},
        {u"%a% %A", u"x", u"%a% %A"},  // case and spelling must match
        {u"%A%", u"[%A%]", u"[%A%]"},  // holds itself: inserted once
        {u"%%A%A%%", u"", u"%"},       // a join forms a new occurrence, which is filled too
    };
    for (const Case& c : cases) {
        QString text = QString::fromUtf16(c.text);
        replacePlaceholder(text, u"%A%", QString::fromUtf16(c.value));
        EXPECT_EQ(text, QString::fromUtf16(c.expected)) << QString::fromUtf16(c.text).toStdString();
    }
    // A join that reforms on every pass ends after a few passes instead of growing for ever.
    QString text = u"%A%%"_qs;
    replacePlaceholder(text, u"%A%", u"A%%A"_qs);
    EXPECT_LT(text.size(), 100);
}

TEST(HtmlLineBreaks, EveryNewlineBecomesABreak)
{
    EXPECT_EQ(htmlLineBreakStringFromString(u"a\nb\n\nc"_qs), u"a<br />b<br /><br />c");
    EXPECT_EQ(htmlLineBreakStringFromString(u"a\r\nb"_qs), u"a\r<br />b");
    EXPECT_TRUE(htmlLineBreakStringFromString({}).isEmpty());
}

TEST_F(RenderTest, InvoiceFillsEveryPlaceholderInOrder)
{
    Record* d = document();
    d->setValue("isDiscountEnabled", true);
    d->setValue("discountKind", 1);
    d->setValue("discountPercent", 0.1);
    d->setValue("discountTitle", u"Loyalty"_qs);
    d->setValue("hasDiscountSubtitle", true);
    d->setValue("discountSubtitle", u"since 2020"_qs);
    d->setValue("isShippingEnabled", true);
    d->setValue("shippingTitle", u"Courier"_qs);
    d->setValue("shippingAmount", 12.5);
    line(d, u"Both taxes"_qs, 2, 100, u"12"_qs);
    line(d, u"Second tax only"_qs, 1.5, 1000, u"2"_qs);
    line(d, u"Untaxed"_qs, 3, 10, {});
    select(d);
    expectGolden(u"invoice_every_placeholder.html"_qs, html.invoiceHTMLString());
}

TEST_F(RenderTest, QuoteShowsTheExpirationLabelAndFixedDiscount)
{
    settings.set(key::showSingleTaxAmounts, false);
    settings.set(key::tempUseSKU, false);
    settings.set(key::showItemSubAmount, false);
    Record* d = document(0);
    d->setValue("isDiscountEnabled", true);
    d->setValue("discountKind", 0);
    d->setValue("discountAmount", 25.0);
    d->setValue("discountTitle", u"Goodwill"_qs);
    d->setValue("isShippingEnabled", true);
    d->setValue("shippingTitle", u"Courier"_qs);
    d->setValue("hasShippingSubtitle", true);
    d->setValue("shippingSubtitle", u"express"_qs);
    line(d, u"Work"_qs, 2, 100, u"1"_qs);
    select(d);
    expectGolden(u"quote_expiration_label_fixed_discount.html"_qs, html.invoiceHTMLString());
    // The label follows the kind also in the reminder mode.
    html.setMode(RenderMode::Reminder, {u"R"_qs, {}, {}, {}});
    EXPECT_TRUE(html.invoiceHTMLString().contains(u"LOCDUE=[{locExpiration}]"));
}

TEST_F(RenderTest, ReminderTakesTheSheetTextsAndTheOverdueLabel)
{
    Record* d = document();
    line(d, u"Work"_qs, 1, 80, u"1"_qs);
    select(d);
    html.setMode(RenderMode::Reminder, {u"Reminder"_qs, u"Please pay\nnow"_qs, u"Ignore if paid"_qs,
                                        u"Reminder footer"_qs});
    EXPECT_TRUE(html.isReminderAction());
    expectGolden(u"reminder_sheet_texts.html"_qs, html.invoiceHTMLString());
}

TEST_F(RenderTest, SlipShowsTheDispatchDateAndLabel)
{
    Record* d = document();
    line(d, u"Goods"_qs, 4, 12.25, u"1"_qs);
    select(d);
    html.setMode(RenderMode::Slip, {u"Delivery slip"_qs, u"Check the goods"_qs, {}, {}});
    EXPECT_TRUE(html.isSlipAction());
    expectGolden(u"slip_dispatch_date.html"_qs, html.invoiceHTMLString());
}

TEST_F(RenderTest, SwitchedOffBlocksLeaveBlanks)
{
    settings.set(key::tax2Enabled, false);
    Record* d = document();  // tax 2 has an amount, but the setting is off
    d->setValue("discountTitle", u"not shown"_qs);
    d->setValue("shippingAmount", 99.0);
    select(d);
    const QString page = html.invoiceHTMLString();
    for (const char16_t* blank :
         {u"LOCDISCOUNT=[]", u"DISCOUNTKINDCHAR=[]", u"DISCOUNT=[]", u"SHIPPING=[]",
          u"LOCSHIPPING=[]", u"TAX2TITLE=[] TAX2=[] TAX2RATE=[]",
          u"TAX3TITLE=[] TAX3=[] TAX3RATE=[]", u"ITEMSLIST=[\n]"}) {
        EXPECT_TRUE(page.contains(QStringView(blank))) << QString::fromUtf16(blank).toStdString();
    }
    EXPECT_TRUE(page.contains(u"TAX1TITLE=[{tax1Title}] TAX1=[190.00] TAX1RATE=[19.00]"));
}

TEST_F(RenderTest, RowsTakeTheCurrencyOfTheSelectedDocument)
{
    Record* selected = document();
    selected->setValue("currency", u"CHF"_qs);
    Record* other = document();
    other->setValue("discountKind", 0);  // rows show "%" whatever the document's kind
    line(other, u"A"_qs, 1, 10, u"3"_qs);
    line(other, u"B"_qs, 2, 20, u"13"_qs);
    select(selected);
    expectGolden(u"rows_currency_of_selected_document.html"_qs, html.itemsListForInvoice(*other));
    const QString page = html.invoiceHTMLStringFromInvoice(*other);
    EXPECT_TRUE(page.contains(u"CURRENCY=[EUR]"));  // the page: its own document
    EXPECT_TRUE(page.contains(u"CURRENCY=[CHF] LOCDUE=[{locQuote}]"));  // rows: the selected one
}

TEST_F(RenderTest, ItemsListFollowsTheDisplayedOrderAndCountsFromOne)
{
    settings.set(key::itemSortOrder, 2);  // by title
    Record* d = document();
    line(d, u"Zeta"_qs, 1, 1, {});
    line(d, u"Alpha"_qs, 1, 1, {});
    select(d);
    const QString rows = html.itemsList();
    EXPECT_LT(rows.indexOf(u"ITEMSTITLE=[Alpha]"), rows.indexOf(u"ITEMSTITLE=[Zeta]"));
    EXPECT_TRUE(
        rows.contains(u"ITEMNUMBER=[1] ITEMSQUANTITY=[1] ITEMSUNIT=[h]\n"
                      u"  ITEMSBASEAMOUNT=[1.00] ITEMSSKU=[SKU-Alpha]"));
    EXPECT_TRUE(rows.contains(u"ITEMNUMBER=[2]"));
}

TEST_F(RenderTest, AValueHoldingItsOwnPlaceholderIsInsertedOnce)
{
    Record* d = document();
    d->setValue("title", u"Loop %LETTERTITLE% %NUMBER%"_qs);
    select(d);
    const QString page = html.invoiceHTMLString();
    // Inserted once and left; the number brought in by the title is filled by its later step.
    EXPECT_TRUE(page.contains(u"LETTERTITLE=[Loop %LETTERTITLE% 2026-17]"));
}

TEST_F(RenderTest, ABrokenDesignYieldsTheFailureText)
{
    Record* d = document();
    line(d, u"A"_qs, 1, 1, {});
    select(d);
    probe->setValue("css", Value());
    EXPECT_EQ(html.invoiceHTMLString(), designFailureText());
    probe->setValue("css", u""_qs);
    probe->setValue("item", Value());
    const QString page = html.invoiceHTMLString();
    EXPECT_TRUE(page.contains(u"ITEMSLIST=[\n"_qs + designFailureText() + u"]"_qs));
    EXPECT_EQ(html.itemsList(), designFailureText());
    context.remove(probe);  // no design at all
    EXPECT_EQ(html.currentDesign(), nullptr);
    EXPECT_EQ(html.invoiceHTMLString(), designFailureText());
}

TEST_F(RenderTest, NoDocumentRendersEmptyValues)
{
    const QString page = html.invoiceHTMLString();
    EXPECT_TRUE(page.contains(u"NUMBER=[] again []"));
    EXPECT_TRUE(page.contains(u"TOTAL=[0.00]"));
    EXPECT_TRUE(page.contains(u"LOCDUE=[{locDue}]"));
}

TEST_F(RenderTest, TheLogoIsWrittenAsPngBesideThePreviews)
{
    Record* d = document();
    select(d);
    QImage image(8, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bmp;
    QBuffer buffer(&bmp);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    settings.set(key::prefsLogo, bmp);

    const QString page = html.invoiceHTMLString();
    const QString path = session.applicationDataDirectory() + u"/Logo.png"_qs;
    EXPECT_TRUE(page.contains(u"LOGO=[<img src=\"file://"_qs + path + u"\" alt=\"logo\">]"_qs));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    EXPECT_TRUE(written.startsWith("\x89PNG"));
    EXPECT_EQ(QImage::fromData(written).pixelColor(1, 1), QColor(Qt::red));

    settings.remove(key::prefsLogo);
    EXPECT_TRUE(html.invoiceHTMLString().contains(u"Please provide a 'Logo Image'"));
    settings.set(key::prefsLogo, QByteArray("not an image"));
    EXPECT_TRUE(html.invoiceHTMLString().contains(u"Please provide a 'Logo Image'"));
}

}  // namespace
