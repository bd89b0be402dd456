#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>

#include "reports/reportfigures.h"

namespace tamo {

class AppSession;

// The sales report: counts and sums of the invoices listed in the main window (after its search
// and filter), optionally within a date range, as an HTML page with charts. The page comes from
// the template ":/reports/chart.html"; its chart script is the file "charts.js" of the data
// folder, copied there from the application once, so a person may replace it.
class SalesReport {
public:
    explicit SalesReport(AppSession& session);

    // Makes sure "charts.js" is in the data folder and reads it; called when the application
    // starts. A file that cannot be read leaves the script empty.
    void loadChartScript();
    const QString& chartScript() const { return chartScript_; }
    QString chartScriptPath() const;

    // The range of the settings (useReportDateRange, reportDateL, reportDateR), if on.
    std::optional<ReportRange> rangeFromSettings() const;

    struct Page {
        QString html;
        ReportFigures figures;
        int documents = 0;  // listed documents the report read
    };
    // Recalculates the list's totals and builds the page over the listed documents within
    // `range`.
    Page generateReport(const std::optional<ReportRange>& range);

private:
    AppSession& session_;
    QString chartScript_;
};

// Every count and sum of the page, for scripts.
QJsonObject reportJson(const SalesReport::Page& page, const std::optional<ReportRange>& range);

}  // namespace tamo
