#include "reports/reportfigures.h"

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "calc/numberformat.h"
#include "model/record.h"
#include "platform/translations.h"

namespace tamo {

namespace {

enum Status { Created = 0, Sent = 1, Due = 2, Paid = 3, PartlyPaid = 4 };

}  // namespace

std::vector<Record*> reportDocuments(const std::vector<Record*>& arranged,
                                     const std::optional<ReportRange>& range)
{
    std::vector<Record*> documents;
    if (range) {
        const qint64 from = range->from.isValid() ? range->from.toMSecsSinceEpoch()
                                                  : std::numeric_limits<qint64>::min();
        const qint64 to = range->to.isValid() ? range->to.toMSecsSinceEpoch()
                                              : std::numeric_limits<qint64>::max();
        std::copy_if(arranged.begin(), arranged.end(), std::back_inserter(documents),
                     [&](const Record* d) {
                         const QDateTime date = d->date("date");
                         return date.isValid() && date.toMSecsSinceEpoch() >= from &&
                                date.toMSecsSinceEpoch() <= to;
                     });
        return documents;
    }
    documents = arranged;
    std::stable_sort(documents.begin(), documents.end(), [](const Record* a, const Record* b) {
        return a->date("date").toMSecsSinceEpoch() < b->date("date").toMSecsSinceEpoch();
    });
    return documents;
}

ReportFigures accumulateReport(const std::vector<Record*>& documents)
{
    ReportFigures f;
    for (const Record* d : documents) {
        if (d->integer("kind") != 1) {
            continue;
        }
        const float amount = float(d->decimal("amount"));
        const float net = float(d->decimal("subAmount"));
        const float due = float(d->decimal("dueAmount"));
        const float paid = float(d->decimal("paidAmount"));
        switch (d->integer("status")) {
        case Created:
            ++f.createdCount;
            break;
        case Sent:
            ++f.sentCount;
            f.total += amount;
            f.netTotal += net;
            break;
        case Due:
            ++f.dueCount;
            f.total += amount;
            f.netTotal += net;
            f.dueTotal += due;
            break;
        case Paid:
            ++f.paidCount;
            f.total += amount;
            f.netTotal += net;
            f.paidTotal += paid;
            break;
        case PartlyPaid:
            ++f.partialCount;
            f.total += amount;
            f.netTotal += net;
            f.dueTotal += due;
            f.paidTotal += paid;
            break;
        default:
            break;
        }
    }
    if (documents.empty()) {
        return {};
    }
    f.invoiceCount = f.sentCount + f.partialCount + f.dueCount + f.paidCount;
    // A list of quotes and created invoices has no invoice to divide by; it shows 0.
    if (f.invoiceCount > 0) {
        f.average = f.total / float(f.invoiceCount);
        f.netAverage = f.netTotal / float(f.invoiceCount);
    }
    return f;
}

QString stringFromNumberWithoutComma(double value)
{
    char buffer[512];
    // Adding 0 turns a negative zero into zero.
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value + 0.0, std::chars_format::fixed, 0);
    return end.ec == std::errc() ? QString::fromLatin1(buffer, end.ptr - buffer) : QString();
}

QString commaStringFromNumber(double value, const QLocale& locale)
{
    return stringFromNumber(value, locale);
}

std::vector<std::pair<QString, QString>> reportPlaceholders(const ReportFigures& f,
                                                            const QString& chartScript,
                                                            const QString& comment,
                                                            const QLocale& locale)
{
    const auto whole = [](float value) { return stringFromNumberWithoutComma(std::trunc(value)); };
    const auto money = [&](float value) { return commaStringFromNumber(value, locale); };
    const auto count = [](long value) { return QString::asprintf("%li", value); };
    return {
        {u"%LOCINVOICES%"_qs, tr("Invoices")},
        {u"%LOCAVERAGE%"_qs, tr("Average")},
        {u"%LOCTOTAL%"_qs, tr("Total")},
        {u"%LOCSENT%"_qs, tr("Sent")},
        {u"%LOCDUE%"_qs, tr("Due")},
        {u"%LOCPAID%"_qs, tr("Paid")},
        {u"%LOCTOTALUP%"_qs, tr("TOTAL")},
        {u"%LOCDUEUP%"_qs, tr("DUE")},
        {u"%LOCPAIDUP%"_qs, tr("PAID")},
        {u"%LOCAVERAGEUP%"_qs, tr("AVERAGE")},
        {u"%FLOATTOTAL%"_qs, whole(f.total)},
        {u"%FLOATTOTALNET%"_qs, whole(f.netTotal)},
        {u"%FLOATDUE%"_qs, whole(f.dueTotal)},
        {u"%FLOATPAID%"_qs, whole(f.paidTotal)},
        {u"%FLOATAVERAGE%"_qs, whole(f.average)},
        {u"%FLOATAVERAGENET%"_qs, whole(f.netAverage)},
        {u"%FLOATTOTALCOMMA%"_qs, money(f.total)},
        {u"%FLOATTOTALNETCOMMA%"_qs, money(f.netTotal)},
        {u"%FLOATDUECOMMA%"_qs, money(f.dueTotal)},
        {u"%FLOATPAIDCOMMA%"_qs, money(f.paidTotal)},
        {u"%FLOATAVERAGECOMMA%"_qs, money(f.average)},
        {u"%FLOATAVERAGENETCOMMA%"_qs, money(f.netAverage)},
        {u"%JSSCRIPT%"_qs, chartScript},
        {u"%INVOICES%"_qs, count(f.invoiceCount)},
        {u"%CREATED%"_qs, count(f.createdCount)},
        {u"%SENT%"_qs, count(f.sentCount)},
        {u"%DUE%"_qs, count(f.dueCount)},
        {u"%PAID%"_qs, count(f.paidCount)},
        {u"%REPORTCOMMENT%"_qs, comment},
    };
}

QString fillReportTemplate(QString page, const std::vector<std::pair<QString, QString>>& values)
{
    for (const auto& [placeholder, value] : values) {
        page.replace(placeholder, value);
    }
    return page;
}

QMarginsF reportPrintMargins(const QSizeF& paper, QRectF imageable)
{
    if (imageable.width() > paper.width()) {
        imageable.setX(0);
        imageable.setWidth(paper.width());
    }
    if (imageable.height() > paper.height()) {
        imageable.setY(0);
        imageable.setHeight(paper.height());
    }
    const qreal bottom = imageable.y();
    const qreal top = paper.height() - imageable.y() - imageable.height() + 10;
    const qreal left = imageable.x();
    const qreal right = paper.width() - imageable.x() - imageable.width() + 20;
    return QMarginsF(left, top, right, bottom);
}

}  // namespace tamo
