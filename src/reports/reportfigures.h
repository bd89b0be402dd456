#pragma once

#include <QDateTime>
#include <QLocale>
#include <QMarginsF>
#include <QRectF>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

namespace tamo {

class Record;

// The counts and sums of the sales report. The sums are single precision, added in that
// precision as the report has always shown them.
struct ReportFigures {
    long createdCount = 0;
    long sentCount = 0;
    long dueCount = 0;
    long paidCount = 0;
    long partialCount = 0;
    long invoiceCount = 0;  // sent, due, paid and partly paid; created invoices are not counted
    float total = 0;
    float netTotal = 0;
    float dueTotal = 0;
    float paidTotal = 0;
    float average = 0;
    float netAverage = 0;
};

// The report's date range, both ends included; an end that is not a valid date is open.
struct ReportRange {
    QDateTime from;
    QDateTime to;
};

// The documents the report reads: with a range those of the list dated within it, in the list's
// order; without one the whole list by date, oldest first.
std::vector<Record*> reportDocuments(const std::vector<Record*>& arranged,
                                     const std::optional<ReportRange>& range);
// Counts and sums the invoices among `documents`; quotes are skipped.
ReportFigures accumulateReport(const std::vector<Record*>& documents);

// A whole number as plain digits: no grouping, no fraction, the same in every locale.
QString stringFromNumberWithoutComma(double value);
// Money for display: the locale's grouping and exactly two fraction digits.
QString commaStringFromNumber(double value, const QLocale& locale = QLocale());

// The report template's placeholders with their values, in the order they are filled.
std::vector<std::pair<QString, QString>> reportPlaceholders(const ReportFigures& figures,
                                                            const QString& chartScript,
                                                            const QString& comment,
                                                            const QLocale& locale = QLocale());
// `page` with every placeholder replaced, one after the other; each value is inserted as it is.
QString fillReportTemplate(QString page, const std::vector<std::pair<QString, QString>>& values);

// The margins of the printed report, in points, for `paper` and the printer's imageable area
// (measured from the paper's bottom left corner, as printers report it). The extra 10 points at
// the top and 20 at the right are deliberate.
QMarginsF reportPrintMargins(const QSizeF& paper, QRectF imageable);

}  // namespace tamo
