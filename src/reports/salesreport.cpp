#include "reports/salesreport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QLoggingCategory>
#include <charconv>

#include "calc/numbering.h"
#include "calc/totals.h"
#include "model/appsession.h"

Q_LOGGING_CATEGORY(lcReports, "tamo.reports", QtInfoMsg)

namespace tamo {

namespace {

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A single-precision sum as the number it shows: 1234.99, not 1234.989990234375.
double shown(float value)
{
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
    double result = value;
    std::from_chars(buffer, end.ptr, result);
    return result;
}

}  // namespace

SalesReport::SalesReport(AppSession& session) : session_(session) {}

QString SalesReport::chartScriptPath() const
{
    return QDir(session_.applicationDataDirectory()).filePath(QStringLiteral("charts.js"));
}

void SalesReport::loadChartScript()
{
    const QString path = chartScriptPath();
    if (!QFile::exists(path)) {
        QDir().mkpath(session_.applicationDataDirectory());
        if (!QFile::copy(QStringLiteral(":/reports/charts.js"), path)) {
            qCWarning(lcReports).noquote() << "Unable to copy the chart script to" << path;
        }
        // Copies of resources are read-only; the person may want to edit this one.
        QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOwner);
    }
    chartScript_ = readText(path);
}

std::optional<ReportRange> SalesReport::rangeFromSettings() const
{
    const Settings& s = session_.settings();
    if (!s.boolean(key::useReportDateRange)) {
        return std::nullopt;
    }
    return ReportRange{s.date(key::reportDateL), s.date(key::reportDateR)};
}

SalesReport::Page SalesReport::generateReport(const std::optional<ReportRange>& range)
{
    Totals(session_).refreshStatistics();
    Page page;
    const auto documents = reportDocuments(session_.documents().arranged(), range);
    page.documents = int(documents.size());
    page.figures = accumulateReport(documents);
    const QString comment =
        QStringLiteral("%1 - %2 - %3")
            .arg(QCoreApplication::translate("tamo::SalesReport", "Report"),
                 session_.settings().string(key::prefsName),
                 getPatternDateStringFromDate(session_.settings(), session_.clock().now()));
    page.html = fillReportTemplate(readText(QStringLiteral(":/reports/chart.html")),
                                   reportPlaceholders(page.figures, chartScript_, comment));
    return page;
}

QJsonObject reportJson(const SalesReport::Page& page, const std::optional<ReportRange>& range)
{
    const ReportFigures& f = page.figures;
    QJsonObject json{
        {QStringLiteral("documents"), page.documents},
        {QStringLiteral("invoices"), qint64(f.invoiceCount)},
        {QStringLiteral("created"), qint64(f.createdCount)},
        {QStringLiteral("sent"), qint64(f.sentCount)},
        {QStringLiteral("due"), qint64(f.dueCount)},
        {QStringLiteral("paid"), qint64(f.paidCount)},
        {QStringLiteral("partiallyPaid"), qint64(f.partialCount)},
        {QStringLiteral("total"), shown(f.total)},
        {QStringLiteral("netTotal"), shown(f.netTotal)},
        {QStringLiteral("dueTotal"), shown(f.dueTotal)},
        {QStringLiteral("paidTotal"), shown(f.paidTotal)},
        {QStringLiteral("average"), shown(f.average)},
        {QStringLiteral("netAverage"), shown(f.netAverage)},
    };
    if (range) {
        const auto end = [](const QDateTime& date) {
            return date.isValid() ? QJsonValue(date.toUTC().toString(Qt::ISODateWithMs))
                                  : QJsonValue();
        };
        json.insert(QStringLiteral("from"), end(range->from));
        json.insert(QStringLiteral("to"), end(range->to));
    }
    return json;
}

}  // namespace tamo
