#include "calc/numbering.h"

#include <unicode/smpdtfmt.h>

#include "calc/icutext.h"

namespace tamo {

namespace {

void replaceEvery(QString& text, QStringView token, const QString& value)
{
    while (text.contains(token)) {
        text.replace(token.toString(), value);
    }
}

}  // namespace

QString numberFromPattern(QString pattern, int count, const QDate& today)
{
    replaceEvery(pattern, u"%COUNT%", QString::number(count));
    replaceEvery(pattern, u"%YEAR%", QString::number(today.year()));
    replaceEvery(pattern, u"%MONTH%", QString::number(today.month()));
    replaceEvery(pattern, u"%DAY%", QString::number(today.day()));
    return pattern;
}

namespace {

QString fromPattern(const AppSession& session, const SettingKey& pattern, int count)
{
    return numberFromPattern(session.settings().string(pattern), count,
                             session.clock().now().toLocalTime().date());
}

void raise(Settings& settings, const SettingKey& counter)
{
    settings.set(counter, QString::number(settings.integer(counter) + 1));
}

}  // namespace

QString Numbering::invoiceNumberString() const
{
    const int offset = session_.settings().integer(key::invCount);
    return fromPattern(session_, key::invPattern,
                       offset + session_.statistics().invoiceCountForNumber + 1);
}

QString Numbering::convertedInvoiceNumberString() const
{
    const int offset = session_.settings().integer(key::invCount);
    return fromPattern(session_, key::invPattern,
                       offset + session_.statistics().invoiceCountForNumber);
}

QString Numbering::quoteNumberString() const
{
    const int offset = session_.settings().integer(key::quotCount);
    return fromPattern(session_, key::quotPattern, offset + session_.statistics().quoteCount + 1);
}

QString Numbering::clientNumberString() const
{
    const int offset = session_.settings().integer(key::clientCount);
    Context* context = session_.context();
    const int clients = context ? context->count("Address") : 0;
    return fromPattern(session_, key::clientPattern, offset + clients + 1);
}

void Numbering::generateClientNumber(const std::function<void(const QString&)>& setField) const
{
    setField(clientNumberString());
}

void Numbering::raiseInvoiceCounter() const
{
    raise(session_.settings(), key::invCount);
}

void Numbering::raiseQuoteCounter() const
{
    raise(session_.settings(), key::quotCount);
}

QString previewInvoiceNumberString(const Settings& settings, const Clock& clock)
{
    return previewNumberString(settings, clock, key::invPattern, key::invCount);
}

QString previewNumberString(const Settings& settings, const Clock& clock, const SettingKey& pattern,
                            const SettingKey& offset)
{
    return numberFromPattern(settings.string(pattern), settings.integer(offset) + 1,
                             clock.now().toLocalTime().date());
}

QString getPatternDateStringFromDate(const Settings& settings, const QDateTime& date,
                                     const QLocale& locale)
{
    QString pattern = settings.string(key::prefsDatePattern);
    replaceEvery(pattern, u"%MONTHSHORT%", QStringLiteral("MM"));
    replaceEvery(pattern, u"%MONTHLONG%", QStringLiteral("MMMM"));
    replaceEvery(pattern, u"%DAY%", QStringLiteral("dd"));
    replaceEvery(pattern, u"%YEARSHORT%", QStringLiteral("yy"));
    replaceEvery(pattern, u"%YEARLONG%", QStringLiteral("yyyy"));

    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(icutext::toIcu(pattern), icutext::locale(locale), status);
    if (U_FAILURE(status) || !date.isValid()) {
        return {};  // a pattern the formatter refuses prints nothing
    }
    icu::UnicodeString text;
    format.format(UDate(date.toMSecsSinceEpoch()), text);
    return icutext::fromIcu(text);
}

}  // namespace tamo
