#include "accounting/lenientdate.h"

#include <QLocale>
#include <QRegularExpression>

namespace tamo {

namespace {

QDateTime dayAt(const QDate& day, DayPart part)
{
    return part == DayPart::Start ? day.startOfDay() : day.endOfDay();
}

int fullYear(int year, qsizetype digits)
{
    return digits <= 2 ? 2000 + year : year;
}

// 1 to 12 for a month name or its abbreviation in one of the interface's languages; 0 otherwise.
int monthFromName(QString name)
{
    name = name.toCaseFolded();
    if (name.endsWith(u'.')) {
        name.chop(1);
    }
    if (name.isEmpty()) {
        return 0;
    }
    static const QLocale locales[] = {QLocale(QLocale::English), QLocale(QLocale::German),
                                      QLocale(QLocale::French), QLocale(QLocale::Spanish)};
    for (const QLocale& locale : locales) {
        for (int month = 1; month <= 12; ++month) {
            for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
                QString known = locale.standaloneMonthName(month, format).toCaseFolded();
                QString inText = locale.monthName(month, format).toCaseFolded();
                for (QString* candidate : {&known, &inText}) {
                    if (candidate->endsWith(u'.')) {
                        candidate->chop(1);
                    }
                }
                if (name == known || name == inText) {
                    return month;
                }
            }
        }
    }
    return 0;
}

std::optional<QDate> numericDate(const QString& text)
{
    static const QRegularExpression dotted(uR"(^(\d{1,2})\.(\d{1,2})\.(\d{2}|\d{4})$)"_qs);
    static const QRegularExpression slashed(uR"(^(\d{1,2})/(\d{1,2})/(\d{2}|\d{4})$)"_qs);
    static const QRegularExpression yearFirst(uR"(^(\d{4})[/.](\d{1,2})[/.](\d{1,2})$)"_qs);
    if (const auto m = dotted.match(text); m.hasMatch()) {
        return QDate(fullYear(m.captured(3).toInt(), m.capturedLength(3)), m.captured(2).toInt(),
                     m.captured(1).toInt());
    }
    if (const auto m = slashed.match(text); m.hasMatch()) {
        int month = m.captured(1).toInt();
        int day = m.captured(2).toInt();
        if (month > 12) {
            std::swap(month, day);
        }
        return QDate(fullYear(m.captured(3).toInt(), m.capturedLength(3)), month, day);
    }
    if (const auto m = yearFirst.match(text); m.hasMatch()) {
        return QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    }
    return std::nullopt;
}

std::optional<QDate> writtenDate(const QString& text)
{
    // "5 March 2024", "5. März 2024", "5 de marzo de 2024"
    static const QRegularExpression dayFirst(
        uR"(^(\d{1,2})\.?\s+(?:de\s+)?([^\d\s,]+)\s+(?:de\s+)?(\d{4})$)"_qs,
        QRegularExpression::UseUnicodePropertiesOption);
    // "March 5, 2024", "Mar 5 2024"
    static const QRegularExpression monthFirst(uR"(^([^\d\s,]+)\s+(\d{1,2}),?\s+(\d{4})$)"_qs,
                                               QRegularExpression::UseUnicodePropertiesOption);
    if (const auto m = dayFirst.match(text); m.hasMatch()) {
        if (const int month = monthFromName(m.captured(2))) {
            return QDate(m.captured(3).toInt(), month, m.captured(1).toInt());
        }
    }
    if (const auto m = monthFirst.match(text); m.hasMatch()) {
        if (const int month = monthFromName(m.captured(1))) {
            return QDate(m.captured(3).toInt(), month, m.captured(2).toInt());
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<QDateTime> dateFromString(const QString& input, DayPart part)
{
    const QString text = input.simplified();
    // A request never needs more; longer input is no date.
    if (text.isEmpty() || text.size() > 64) {
        return std::nullopt;
    }
    // Qt reads the date at the head of a longer text too; only the whole text is a day.
    if (const QDate day = QDate::fromString(text, Qt::ISODate);
        day.isValid() && text.size() == 10) {
        return dayAt(day, part);
    }
    static const QRegularExpression isoStart(uR"(^\d{4}-\d\d-\d\d[T ])"_qs);
    if (isoStart.match(text).hasMatch()) {
        QString iso = text;
        iso[10] = u'T';
        const QDateTime moment = QDateTime::fromString(iso, Qt::ISODateWithMs);
        return moment.isValid() ? std::optional(moment) : std::nullopt;
    }
    for (const auto& read : {numericDate, writtenDate}) {
        if (const auto day = read(text)) {
            return day->isValid() ? std::optional(dayAt(*day, part)) : std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace tamo
