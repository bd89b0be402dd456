#include <QJsonObject>

#include "reports/reportfigures.h"
#include "reports/salesreport.h"
#include "reportsfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

enum Kind { Quote = 0, Invoice = 1 };

class ReportFiguresTest : public ReportsTest {};

TEST_F(ReportFiguresTest, CountsAndSumsFollowTheStatusOfEachInvoice)
{
    struct Case {
        const char* name;
        std::vector<Values> documents;
        ReportFigures expected;
    };
    const Case cases[] = {
        {"an empty list", {}, {}},
        // Quotes are skipped, so nothing is divided by anything: the averages show 0.
        {"only quotes",
         {{Quote, 1, 100, 90}, {Quote, 3, 50, 40, 0, 50}},
         {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"created invoices are counted, never summed",
         {{Invoice, 0, 100, 80}, {Invoice, 0, 7, 7}, {Invoice, 1, 50, 40}},
         {2, 1, 0, 0, 0, 1, 50, 40, 0, 0, 50, 40}},
        {"a partly paid invoice is due and paid at once",
         {{Invoice, 4, 100, 80, 70, 30}},
         {0, 0, 0, 0, 1, 1, 100, 80, 70, 30, 100, 80}},
        {"due and paid totals come from their own statuses",
         {{Invoice, 2, 200, 160, 200, 0}, {Invoice, 3, 300, 250, 0, 300}, {Invoice, 1, 100, 90}},
         {0, 1, 1, 1, 0, 3, 600, 500, 200, 300, 200, 500.0f / 3}},
        {"a status outside 0 to 4 counts nowhere",
         {{Invoice, 7, 100, 100}, {Invoice, 1, 10, 10}},
         {0, 1, 0, 0, 0, 1, 10, 10, 0, 0, 10, 10}},
        // Single precision: 2^24 + 1 + 1 stays 2^24, where doubles would give 16777218.
        {"sums are added in single precision",
         {{Invoice, 1, 16777216}, {Invoice, 1, 1}, {Invoice, 1, 1}},
         {0, 3, 0, 0, 0, 3, 16777216, 0, 0, 0, 16777216.0f / 3, 0}},
    };
    for (const Case& c : cases) {
        std::vector<Record*> documents;
        for (const Values& v : c.documents) {
            documents.push_back(add(v));
        }
        const ReportFigures f = accumulateReport(documents);
        const ReportFigures& e = c.expected;
        SCOPED_TRACE(c.name);
        EXPECT_EQ(f.createdCount, e.createdCount);
        EXPECT_EQ(f.sentCount, e.sentCount);
        EXPECT_EQ(f.dueCount, e.dueCount);
        EXPECT_EQ(f.paidCount, e.paidCount);
        EXPECT_EQ(f.partialCount, e.partialCount);
        EXPECT_EQ(f.invoiceCount, e.invoiceCount);
        EXPECT_EQ(f.total, e.total);
        EXPECT_EQ(f.netTotal, e.netTotal);
        EXPECT_EQ(f.dueTotal, e.dueTotal);
        EXPECT_EQ(f.paidTotal, e.paidTotal);
        EXPECT_EQ(f.average, e.average);
        EXPECT_EQ(f.netAverage, e.netAverage);
    }
}

TEST_F(ReportFiguresTest, PlaceholdersShowTruncatedDigitsAndLocaleMoney)
{
    ReportFigures f;
    f.total = 1234.99f;
    f.netTotal = -5.7f;
    f.dueTotal = 12345678.0f;
    f.paidTotal = 0.4f;
    f.invoiceCount = 3;
    f.createdCount = 2;
    const auto values = reportPlaceholders(f, u"SCRIPT"_qs, u"COMMENT"_qs);
    const auto value = [&](const QString& placeholder) {
        for (const auto& [p, v] : values) {
            if (p == placeholder) {
                return v;
            }
        }
        return u"(absent)"_qs;
    };
    const std::pair<QString, QString> expected[] = {
        {u"%FLOATTOTAL%"_qs, u"1234"_qs},  // truncated, not rounded
        {u"%FLOATTOTALCOMMA%"_qs, u"1,234.99"_qs},
        {u"%FLOATTOTALNET%"_qs, u"-5"_qs},  // toward zero
        {u"%FLOATTOTALNETCOMMA%"_qs, u"-5.70"_qs},
        {u"%FLOATDUE%"_qs, u"12345678"_qs},  // plain digits for the chart script
        {u"%FLOATDUECOMMA%"_qs, u"12,345,678.00"_qs},
        {u"%FLOATPAID%"_qs, u"0"_qs},
        {u"%FLOATAVERAGE%"_qs, u"0"_qs},
        {u"%FLOATAVERAGECOMMA%"_qs, u"0.00"_qs},
        {u"%INVOICES%"_qs, u"3"_qs},
        {u"%CREATED%"_qs, u"2"_qs},
        {u"%JSSCRIPT%"_qs, u"SCRIPT"_qs},
        {u"%REPORTCOMMENT%"_qs, u"COMMENT"_qs},
        {u"%LOCTOTALUP%"_qs, u"TOTAL"_qs},
        {u"%LOCDUE%"_qs, u"Due"_qs},
    };
    for (const auto& [placeholder, want] : expected) {
        EXPECT_EQ(value(placeholder), want) << placeholder.toStdString();
    }
    EXPECT_EQ(values.size(), 29u);
    EXPECT_EQ(stringFromNumberWithoutComma(-0.0), u"0"_qs);
    EXPECT_EQ(commaStringFromNumber(1234.5, QLocale(QLocale::German, QLocale::Germany)),
              u"1.234,50"_qs);
}

TEST_F(ReportFiguresTest, PlaceholdersAreFilledInTheirOrderOnce)
{
    ReportFigures f;
    f.sentCount = 4;
    // The chart script comes before the counts, so a count it names is filled; the comment comes
    // last, so nothing in it is; a template's placeholder is filled wherever it stands.
    const QString page =
        fillReportTemplate(u"%SENT%|%JSSCRIPT%|%REPORTCOMMENT%|%SENT%|%UNKNOWN%"_qs,
                           reportPlaceholders(f, u"sent=%SENT%"_qs, u"%SENT% %FLOATTOTAL%"_qs));
    EXPECT_EQ(page, u"4|sent=4|%SENT% %FLOATTOTAL%|4|%UNKNOWN%"_qs);
}

TEST_F(ReportFiguresTest, TheDateRangeIncludesBothEndsToTheMillisecond)
{
    const QDateTime left(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC);
    const QDateTime right(QDate(2026, 3, 31), QTime(18, 30), Qt::UTC);
    Record* before = add({Invoice, 1, 1, 1, 0, 0, left.addMSecs(-1)});
    Record* atRight = add({Invoice, 1, 2, 2, 0, 0, right});
    Record* atLeft = add({Invoice, 1, 4, 4, 0, 0, left});
    Record* after = add({Invoice, 1, 8, 8, 0, 0, right.addMSecs(1)});
    const std::vector<Record*> list{after, atRight, before, atLeft};

    // In range: the list's order; the first-use range of one moment holds only that moment.
    EXPECT_EQ(reportDocuments(list, ReportRange{left, right}),
              (std::vector<Record*>{atRight, atLeft}));
    EXPECT_EQ(reportDocuments(list, ReportRange{left, left}), (std::vector<Record*>{atLeft}));
    EXPECT_EQ(reportDocuments(list, ReportRange{{}, left}), (std::vector<Record*>{before, atLeft}));
    // Without a range: every document, oldest first.
    EXPECT_EQ(reportDocuments(list, std::nullopt),
              (std::vector<Record*>{before, atLeft, atRight, after}));
    EXPECT_EQ(accumulateReport(reportDocuments(list, ReportRange{left, right})).total, 6.0f);
}

TEST_F(ReportFiguresTest, TheSessionReportReadsTheRangeSettingsAndTheArrangedList)
{
    add({Invoice, 3, 100, 80, 0, 100, QDateTime(QDate(2026, 2, 1), QTime(12, 0), Qt::UTC)});
    add({Invoice, 4, 50, 40, 30, 20, QDateTime(QDate(2026, 2, 20), QTime(12, 0), Qt::UTC)});
    Record* quote = add({Quote, 1, 999, 999});
    quote->setValue("customerName", u"Quote Client"_qs);
    settings.set(key::prefsName, u"Studio Nord"_qs);
    SalesReport report(session);

    settings.set(key::useReportDateRange, true);
    settings.set(key::reportDateL, QDateTime(QDate(2026, 2, 10), QTime(0, 0), Qt::UTC));
    settings.set(key::reportDateR, QDateTime(QDate(2026, 2, 28), QTime(0, 0), Qt::UTC));
    SalesReport::Page page = report.generateReport(report.rangeFromSettings());
    EXPECT_EQ(page.documents, 1);
    EXPECT_EQ(page.figures.dueTotal, 30.0f);
    EXPECT_EQ(page.figures.paidTotal, 20.0f);
    EXPECT_TRUE(page.html.contains(u"Report - Studio Nord - "_qs));

    settings.set(key::useReportDateRange, false);
    session.documents().setSearchText(u"Quote Client"_qs);
    page = report.generateReport(report.rangeFromSettings());
    EXPECT_EQ(page.documents, 1);
    EXPECT_EQ(page.figures.invoiceCount, 0);
    const QJsonObject json = reportJson(page, std::nullopt);
    EXPECT_EQ(json[u"documents"_qs].toInt(), 1);
    EXPECT_EQ(json[u"average"_qs].toDouble(), 0.0);
}

TEST(ReportPrintMargins, FollowThePrintersImageableAreaWithTheExtraPoints)
{
    // A4 with 18 points unprintable at the sides, 36 at the bottom and 36 at the top.
    EXPECT_EQ(reportPrintMargins(QSizeF(595, 842), QRectF(18, 36, 559, 770)),
              QMarginsF(18, 46, 38, 36));
    // An area larger than the paper is taken as the whole paper.
    EXPECT_EQ(reportPrintMargins(QSizeF(612, 792), QRectF(-5, -5, 700, 900)),
              QMarginsF(0, 10, 20, 0));
}

}  // namespace
