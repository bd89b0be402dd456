#pragma once

#include <utility>

#include "calc/calcfixture.h"
#include "einvoice/einvoiceactions.h"

namespace tamo::test {

using Texts = std::initializer_list<std::pair<const char*, const char16_t*>>;

inline Record* setTexts(Record* record, Texts texts)
{
    for (const auto& [key, text] : texts) {
        record->setValue(key, QString::fromUtf16(text));
    }
    return record;
}

// A session whose supplier settings are complete, with an invoice that has every customer value
// an e-invoice needs; the lines and amounts are each test's own.
class EinvoiceTest : public CalcTest {
public:
    // For the builders of table-driven cases.
    using CalcTest::context;
    using SessionTest::session;
    using SessionTest::settings;

    EinvoiceTest()
    {
        clock.set(QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC));
        settings.set(key::beforeTaxesBool, true);
        settings.set(key::itemSortOrder, 1);
        settings.set(key::markInvoiceAsSent, true);
        const std::pair<const SettingKey&, const char16_t*> supplier[] = {
            {key::prefsName, u"Muster Design Studio"},
            {key::prefsSupplierLegalName, u"Maria Muster Design"},
            {key::prefsSupplierID, u"DE123456789"},
            {key::prefsSupplierTaxID, u"214/5678/9012"},
            {key::prefsSupplierTaxScheme, u"VAT"},
            {key::prefsSupplierStreet, u"Hauptstraße 5"},
            {key::prefsSupplierCity, u"Köln"},
            {key::prefsSupplierPostalZone, u"50667"},
            {key::prefsSupplierCountryCode, u"DE"},
            {key::prefsSupplierContact, u"Maria Muster"},
            {key::prefsSupplierContactPhone, u"+49 221 123456"},
            {key::prefsSupplierElectronicMail, u"maria@muster-design.de"},
            {key::prefsSupplierEndpointID, u"4000001123452"},
            {key::prefsSupplierIBAN, u"DE02120300000000202051"},
            {key::prefsSupplierCurrency, u"EUR"},
        };
        for (const auto& [k, text] : supplier) {
            settings.set(k, QString::fromUtf16(text));
        }
    }

    Record* invoice(const char16_t* assignments = u"")
    {
        Record* d = document(
            u"kind=1 status=0 date=2026-02-10T12:00:00Z due=2026-03-15T12:00:00Z "
            u"isDispatched=true dispatched=2026-02-11T12:00:00Z");
        setTexts(d, {{"number", u"RE-2026-017"},
                     {"title", u"Invoice"},
                     {"emailAddress", u"rechnung@stadtwerke-beispiel.de"},
                     {"evoiceLegalName", u"Stadtwerke Beispiel GmbH"},
                     {"customerVATID", u"DE987654321"},
                     {"evoiceCurrency", u"EUR"},
                     {"evoiceTaxScheme", u"VAT"},
                     {"evoiceCountryCode", u"DE"},
                     {"evoiceStreet", u"Am Markt 1"},
                     {"evoicePostalCode", u"10115"},
                     {"evoiceCity", u"Berlin"},
                     {"evoiceContact", u"Jonas Beispiel"}});
        set(d, assignments);
        session.documents().setSelection({d});
        return d;
    }

    Record* item(Record* d, const char16_t* title, const char16_t* assignments)
    {
        // Entered a minute apart, in the order of the calls unless misc5 says otherwise.
        const QDateTime entered = QDateTime(QDate(2026, 2, 9), QTime(8, 0), Qt::UTC)
                                      .addSecs(60 * qint64(d->toMany("items").size()));
        Record* line = this->line(d, assignments);
        if (line->value("misc5").isNull()) {
            line->setValue("misc5", entered);
        }
        return setTexts(line, {{"title", title}});
    }
};

}  // namespace tamo::test
