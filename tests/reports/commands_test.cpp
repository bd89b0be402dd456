#include <QJsonDocument>
#include <QJsonObject>
#include <QPdfDocument>

#include "cli/commandargs.h"
#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// The commands run in this process on a store of their own.
class ReportCommandsTest : public ::testing::Test {
protected:
    CommandOutcome tamo(const QStringList& words) { return runTamo(dir.path(u"store"_qs), words); }
    TempProfile dir;
};

TEST_F(ReportCommandsTest, ReportAndAccountBookFromTheCommandLine)
{
    ASSERT_EQ(
        tamo({u"generate-sample"_qs, u"--documents"_qs, u"30"_qs, u"--seed"_qs, u"3"_qs}).code, 0);
    const CommandOutcome all = tamo({u"report"_qs, u"--json"_qs});
    ASSERT_EQ(all.code, 0) << all.err.toStdString();
    const QJsonObject json = QJsonDocument::fromJson(all.out.toUtf8()).object();
    EXPECT_EQ(json[u"documents"_qs].toInt(), 30);
    EXPECT_EQ(json[u"invoices"_qs].toInt(), json[u"sent"_qs].toInt() + json[u"due"_qs].toInt() +
                                                json[u"paid"_qs].toInt() +
                                                json[u"partiallyPaid"_qs].toInt());

    const QJsonObject paid =
        QJsonDocument::fromJson(
            tamo({u"report"_qs, u"--filter"_qs, u"3"_qs, u"--json"_qs}).out.toUtf8())
            .object();
    EXPECT_EQ(paid[u"invoices"_qs].toInt(), paid[u"paid"_qs].toInt());
    EXPECT_EQ(paid[u"total"_qs].toDouble(), paid[u"paidTotal"_qs].toDouble());

    const QJsonObject none =
        QJsonDocument::fromJson(tamo({u"report"_qs, u"--from"_qs, u"1990-01-01"_qs, u"--to"_qs,
                                      u"1990-01-31"_qs, u"--json"_qs})
                                    .out.toUtf8())
            .object();
    EXPECT_EQ(none[u"documents"_qs].toInt(), 0);
    EXPECT_TRUE(none[u"from"_qs].toString().startsWith(u"1990-01-"_qs));

    const CommandOutcome html = tamo({u"report"_qs, u"--html"_qs, u"-"_qs});
    EXPECT_TRUE(html.out.contains(u"window.tamoReportCharts"_qs));
    EXPECT_FALSE(html.out.contains(u"%INVOICES%"_qs));

    const QString reportPdf = dir.path(u"report.pdf"_qs);
    ASSERT_EQ(tamo({u"report"_qs, u"--pdf"_qs, reportPdf}).code, 0);
    QPdfDocument report;
    ASSERT_EQ(report.load(reportPdf), QPdfDocument::Error::None);
    EXPECT_EQ(report.pageCount(), 1);

    const QString bookPdf = dir.path(u"book.pdf"_qs);
    const CommandOutcome book =
        tamo({u"account-book"_qs, u"--search"_qs, u"RE-"_qs, u"--pdf"_qs, bookPdf});
    ASSERT_EQ(book.code, 0) << book.err.toStdString();
    EXPECT_TRUE(book.out.contains(u"pages)"_qs) || book.out.contains(u"page)"_qs));
    QPdfDocument pages;
    ASSERT_EQ(pages.load(bookPdf), QPdfDocument::Error::None);
    EXPECT_GE(pages.pageCount(), 1);

    for (const QStringList& wrong : {QStringList{u"report"_qs},
                                     {u"report"_qs, u"--json"_qs, u"--html"_qs, u"x"_qs},
                                     {u"report"_qs, u"--json"_qs, u"--filter"_qs, u"9"_qs},
                                     {u"report"_qs, u"--json"_qs, u"--from"_qs, u"March"_qs},
                                     {u"account-book"_qs}}) {
        EXPECT_EQ(tamo(wrong).code, kUsageError) << wrong.join(u' ').toStdString();
    }
}

}  // namespace
