#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <functional>

#include "model/appsession.h"

namespace tamo {

// Numbers of new invoices, quotes and clients from the user's patterns. There is no running
// counter: a number counts the documents the last statistics pass saw, plus an offset the user
// (or the deletion of a document) raises. The date tokens take today from the clock.
class Numbering {
public:
    explicit Numbering(AppSession& session) : session_(session) {}

    QString invoiceNumberString() const;
    // The converted quote already counts as an invoice, so no one is added.
    QString convertedInvoiceNumberString() const;
    QString quoteNumberString() const;
    QString clientNumberString() const;
    // Hands a new client number to the client panel's number field.
    void generateClientNumber(const std::function<void(const QString&)>& setField) const;

    // So that the next number skips the one of a deleted document.
    void raiseInvoiceCounter() const;
    void raiseQuoteCounter() const;

private:
    AppSession& session_;
};

// Fills a number pattern's %COUNT%, %YEAR%, %MONTH% and %DAY% without padding.
QString numberFromPattern(QString pattern, int count, const QDate& today);

// The numbers the preferences show while a pattern is edited: the offset + 1, no documents are
// counted.
QString previewInvoiceNumberString(const Settings& settings, const Clock& clock);
QString previewNumberString(const Settings& settings, const Clock& clock, const SettingKey& pattern,
                            const SettingKey& offset);

// `date` printed through the user's date pattern (prefsDatePattern), whose tokens %DAY%,
// %MONTHSHORT%, %MONTHLONG%, %YEARSHORT% and %YEARLONG% become CLDR date-format fields; other
// letters are format letters too. The preferences preview uses the same.
QString getPatternDateStringFromDate(const Settings& settings, const QDateTime& date,
                                     const QLocale& locale = QLocale());

}  // namespace tamo
