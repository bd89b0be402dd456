#pragma once

#include <QDir>
#include <QFile>
#include <QLocale>

#include "render/designlibrary.h"
#include "render/invoicehtml.h"
#include "support/testsupport.h"

namespace tamo::test {

inline QString renderData(const QString& name)
{
    return QStringLiteral(TAMO_TEST_DATA "/render/") + name;
}

// Compares with tests/data/render/NAME; with TAMO_UPDATE_GOLDEN=1 in the environment the file
// is written instead (then read it through before committing it).
inline void expectGolden(const QString& name, const QString& actual)
{
    expectGoldenFile(renderData(name), actual);
}

// A session with English labels that name themselves, so that a golden file shows which
// setting went where, and a design that lists every placeholder.
class RenderTest : public SessionTest {
protected:
    RenderTest()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        for (const SettingKey& k : allSettingKeys()) {
            const std::string_view name = k.name;
            if (name.starts_with("loc") || (name.starts_with("tax") && name.ends_with("Title"))) {
                settings.set(k, QStringLiteral("{%1}").arg(QString::fromLatin1(k.name)));
            }
        }
        settings.set(key::prefsName, u"Studio Nord"_qs);
        settings.set(key::prefsSlogan, u"Good <em>design</em>"_qs);
        settings.set(key::prefsContact, u"Street 1\n12345 Town"_qs);
        settings.set(key::prefsLetterbox, u"Studio Nord · Street 1 · 12345 Town"_qs);
        settings.set(key::prefsDatePattern, u"%DAY%.%MONTHSHORT%.%YEARLONG%"_qs);
        for (const SettingKey* k : {&key::tax1Enabled, &key::tax2Enabled, &key::tempUseSKU,
                                    &key::showItemSubAmount, &key::showSingleTaxAmounts}) {
            settings.set(*k, true);
        }
        probe = design(readFile(renderData(u"probe/invoice.html"_qs)),
                       readFile(renderData(u"probe/item.html"_qs)),
                       readFile(renderData(u"probe/style.css"_qs)));
    }
    ~RenderTest() override { QLocale::setDefault(QLocale::c()); }

    Record* design(const QString& page, const QString& row, const QString& css)
    {
        Record* d = context.insert("Design");
        d->setValue("title", u"Probe"_qs);
        d->setValue("invoice", page);
        d->setValue("item", row);
        d->setValue("css", css);
        return d;
    }

    Record* document(int kind = 1)
    {
        Record* d = context.insert("Invoice");
        d->setValue("kind", kind);
        d->setValue("title", kind == 1 ? u"Invoice"_qs : u"Quote"_qs);
        d->setValue("number", u"2026-17"_qs);
        d->setValue("address", u"Ada Client\nMain Road 5\n54321 City"_qs);
        d->setValue("conditions", u"Pay within\n14 days"_qs);
        d->setValue("misc1", u"Thanks!"_qs);
        d->setValue("footer", u"Bank: <b>Nordbank</b>"_qs);
        d->setValue("dispatchNumber", u"D-9"_qs);
        d->setValue("date", QDateTime(QDate(2026, 3, 5), QTime(12, 0), Qt::UTC));
        d->setValue("due", QDateTime(QDate(2026, 3, 19), QTime(12, 0), Qt::UTC));
        d->setValue("dispatched", QDateTime(QDate(2026, 3, 2), QTime(12, 0), Qt::UTC));
        d->setValue("clientNumber", u"C-7"_qs);
        d->setValue("customerName", u"Ada Client"_qs);
        d->setValue("customerVATID", u"DE999"_qs);
        d->setValue("currency", u"EUR"_qs);
        d->setValue("subject", u"Spring campaign"_qs);
        d->setValue("subAmount", 1234.5);
        d->setValue("amount", 1469.06);
        d->setValue("paidAmount", 200.0);
        d->setValue("dueAmount", 1269.06);  // partly paid
        d->setValue("tax1Percent", 0.19);
        d->setValue("tax2Percent", 0.07);
        d->setValue("tax3Percent", 0.05);
        d->setValue("tax1Amount", 190.0);
        d->setValue("tax2Amount", 7.7);
        d->setValue("tax3Amount", 3.3);
        return d;
    }

    // taxes: which of the three taxes apply, as "1", "12", "2", "".
    Record* line(Record* document, const QString& title, double quantity, double price,
                 const QString& taxes)
    {
        Record* item = context.insert("Item");
        item->setValue("title", title);
        item->setValue("subtitle", u"first line\nsecond line"_qs);
        item->setValue("unit", u"h"_qs);
        item->setValue("sku", u"SKU-"_qs + title);
        item->setValue("unitCount", quantity);
        item->setValue("baseAmount", price);
        item->setValue("subAmount", quantity * price);
        item->setValue("amount", quantity * price * 1.1);
        const double rates[] = {0.19, 0.07, 0.05};
        for (int n = 1; n <= 3; ++n) {
            const std::string tax = "tax" + std::to_string(n);
            const bool applied = taxes.contains(QString::number(n));
            item->setValue("isTax" + std::to_string(n) + "Applied", applied);
            item->setValue(tax + "Percent", rates[n - 1]);
            item->setValue(tax + "Title", QStringLiteral("T%1").arg(n));
            item->setValue(tax + "Amount", applied ? quantity * price * rates[n - 1] : 0.0);
        }
        item->setToOne("invoice", document);
        return item;
    }

    void select(Record* document) { session.documents().setSelection({document}); }

    Context& context = *session.managedObjectContext();
    DesignLibrary designs{session};
    InvoiceHtml html{session, designs};
    Record* probe = nullptr;
};

}  // namespace tamo::test
