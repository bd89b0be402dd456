#include <QDir>
#include <QFile>
#include <QImage>

#include "pdf/pdfrenderer.h"
#include "render/pagelayout.h"
#include "reports/salesreport.h"
#include "reportsfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// The sales report page as the window and `report --pdf` print it: through the web engine.
class ReportPageTest : public ReportsTest {
protected:
    ReportPageTest()
    {
        settings.set(key::prefsName, u"Studio Nord"_qs);
        add({1, 3, 1234.99, 1000, 0, 1234.99});
        add({1, 4, 500, 420, 300, 200});
        add({1, 0, 80, 80});
        report.loadChartScript();
    }

    std::unique_ptr<QPdfDocument> print(const QString& html, bool scripts)
    {
        const auto pdf =
            renderer.renderAndWait(html, pageLayoutFor(2, false), PdfPageOptions{scripts});
        EXPECT_TRUE(pdf.has_value()) << (pdf ? "" : pdf.error().text().toStdString());
        return loadPdf(pdf.value_or(QByteArray()));
    }

    // Pixels of the first page near `colour`: the charts are pictures, not text.
    static int pixelsNear(QPdfDocument& pdf, QColor colour)
    {
        const QImage page = pdf.render(0, QSize(620, 800)).convertToFormat(QImage::Format_RGB32);
        int count = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                const QColor c = page.pixelColor(x, y);
                count += std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green()) +
                             std::abs(c.blue() - colour.blue()) <
                         24;
            }
        }
        return count;
    }

    SalesReport report{session};
    PdfRenderer renderer{session.applicationDataDirectory()};
};

// Only the chart gives a partly paid invoice its colour.
const QColor kPartlyPaid(0xe6, 0xa2, 0x3c);

TEST_F(ReportPageTest, ThePrintedPageShowsTheFiguresAndItsScriptDrawsTheCharts)
{
    const SalesReport::Page page = report.generateReport(std::nullopt);
    const auto pdf = print(page.html, true);
    ASSERT_EQ(pdf->pageCount(), 1);
    const QString text = pageText(*pdf, 0);
    for (const QString& shown : {u"Report - Studio Nord -"_qs, u"TOTAL"_qs, u"1,734.99"_qs,
                                 u"PAID"_qs, u"1,434.99"_qs, u"300.00"_qs}) {
        EXPECT_TRUE(text.contains(compact(shown)))
            << shown.toStdString() << " in " << text.toStdString();
    }
    EXPECT_GT(pixelsNear(*pdf, kPartlyPaid), 200);

    // Documents print with scripts off; the same page would lose its charts there.
    EXPECT_EQ(pixelsNear(*print(page.html, false), kPartlyPaid), 0);
}

TEST_F(ReportPageTest, TheChartScriptIsCopiedOnceAndReadFromTheDataFolder)
{
    const QString path = report.chartScriptPath();
    EXPECT_EQ(QFileInfo(path).dir().absolutePath(),
              QDir(session.applicationDataDirectory()).absolutePath());
    EXPECT_TRUE(report.chartScript().startsWith(u"/*!\n * Chart.js"_qs));
    EXPECT_TRUE(report.chartScript().contains(u"window.tamoReportCharts"_qs));

    // A person's own chart code is kept and used.
    {
        QFile own(path);
        ASSERT_TRUE(own.open(QIODevice::WriteOnly | QIODevice::Truncate));
        own.write(
            "window.tamoReportCharts = function (doc) {\n"
            "  doc.getElementById('report').insertAdjacentHTML('beforeend',\n"
            "      '<p>Drawn by my own script: ' + doc.getElementById('report')\n"
            "          .getAttribute('data-invoices') + ' invoices</p>');\n"
            "};\n");
    }
    SalesReport again(session);
    again.loadChartScript();
    const auto pdf = print(again.generateReport(std::nullopt).html, true);
    EXPECT_TRUE(pageText(*pdf, 0).contains(compact(u"Drawn by my own script: 2 invoices"_qs)));

    // Without a readable script the page still shows its figures.
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkpath(path));
    SalesReport without(session);
    without.loadChartScript();
    EXPECT_TRUE(without.chartScript().isEmpty());
    const SalesReport::Page page = without.generateReport(std::nullopt);
    EXPECT_FALSE(page.html.contains(u"%JSSCRIPT%"_qs));
    EXPECT_TRUE(pageText(*print(page.html, true), 0).contains(u"1,734.99"_qs));
}

}  // namespace
