#include <gtest/gtest.h>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include "accounting/ledriximport.h"
#include "accountingfixture.h"
#include "pdf/pdfrenderer.h"
#include "render/designlibrary.h"

namespace tamo::test {
namespace {

class LedrixImportTest : public AccountingTest {
protected:
    LedrixImportTest() { import.setOpener(recordingOpener()); }

    QStringList numbers(const std::vector<Record*>& records)
    {
        QStringList n;
        for (const Record* r : records) {
            n << r->string("number");
        }
        return n;
    }

    // Runs a request to its end, as the application's event loop would; returns its outcome.
    std::optional<bool> request(const QString& start, const QString& end, const QString& kind)
    {
        std::optional<bool> outcome;
        QEventLoop loop;
        QObject::connect(&import, &LedrixImport::finished, &loop, [&](bool exported) {
            outcome = exported;
            loop.quit();
        });
        import.doTheNewLedrixExport(start, end, kind, u"req-7"_qs);
        if (!outcome) {
            loop.exec();
        }
        return outcome;
    }

    LedrixImport import{session};
};

TEST_F(LedrixImportTest, TheRangeRunsFromTheFirstDaysStartToTheLastDaysEnd)
{
    invoice(u"before"_qs, localAt(2024, 3, 4, 23, 59), 3);
    invoice(u"early"_qs, localAt(2024, 3, 5, 0, 0), 3);
    invoice(u"late"_qs, localAt(2024, 3, 5, 23, 59), 3);
    invoice(u"after"_qs, localAt(2024, 3, 6, 0, 0), 3);
    invoice(u"unpaid"_qs, localAt(2024, 3, 5, 12), 2);
    invoice(u"created"_qs, localAt(2024, 3, 5, 13), 0);
    invoice(u"quote"_qs, localAt(2024, 3, 5, 14), 3, 0);
    list();
    const QDateTime noon = localAt(2024, 3, 5, 12);
    const std::pair<QString, QStringList> kinds[] = {
        {u"paid"_qs, {u"late"_qs, u"early"_qs}},
        {u"sent"_qs, {u"unpaid"_qs}},
        {u"kind"_qs, {u"late"_qs, u"unpaid"_qs, u"early"_qs}},
    };
    for (const auto& [kind, expected] : kinds) {
        const auto found = import.newLedrixArray(noon, noon, kind);
        ASSERT_TRUE(found) << kind.toStdString();
        EXPECT_EQ(numbers(*found), expected) << kind.toStdString();
    }
    for (const QString& kind : {u"Paid"_qs, u""_qs, u"all"_qs}) {
        const auto found = import.newLedrixArray(noon, noon, kind);
        ASSERT_FALSE(found) << kind.toStdString();
        EXPECT_EQ(found.error().code, kUnknownKind);
    }
}

TEST_F(LedrixImportTest, WritesThePdfsAndTheListThenCallsBack)
{
    DesignLibrary(session).loadTemplates();
    settings.set(key::selectedDesign, 3);
    invoice(QString(), localAt(2024, 3, 7, 9), 3);
    invoice(u""_qs, localAt(2024, 3, 6, 9), 3);
    invoice(u"2024/17"_qs, localAt(2024, 3, 5, 9), 3);
    invoice(u"2024/18"_qs, localAt(2024, 3, 5, 10), 1);  // not paid
    list();
    const QString folder = session.applicationDataDirectory();
    // A file of an earlier request under a name this one uses is replaced.
    QDir().mkpath(folder);
    QFile stale(folder + u"/202417_3.pdf"_qs);
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write("stale");
    stale.close();

    int progress = 0;
    QObject::connect(&import, &LedrixImport::pdfFinished, [&](int done, int count) {
        EXPECT_EQ(count, 3);
        progress = done;
    });
    EXPECT_EQ(request(u"2024-03-01"_qs, u"March 31, 2024"_qs, u"paid"_qs), true);
    EXPECT_EQ(progress, 3);

    const QStringList names = {u"MissingInvoiceNumber_1.pdf"_qs, u"MissingInvoiceNumber_2.pdf"_qs,
                               u"202417_3.pdf"_qs};
    for (const QString& name : names) {
        QFile pdf(folder + u'/' + name);
        ASSERT_TRUE(pdf.open(QIODevice::ReadOnly)) << name.toStdString();
        const QByteArray bytes = pdf.readAll();
        EXPECT_GT(bytes.size(), 2000) << name.toStdString();
        EXPECT_EQ(pdfPageCount(bytes), 1) << name.toStdString();
    }
    EXPECT_EQ(opened, QStringList{LedrixImport::callbackUrl(import.importListPath(), u"req-7"_qs)});
    EXPECT_EQ(settings.integer(key::selectedDesign), 3) << "the user's design stays chosen";
    EXPECT_TRUE(prompter.alerts().isEmpty());

    // The list, as another program reads it.
    const QString python = QStandardPaths::findExecutable(u"python3"_qs);
    if (python.isEmpty()) {
        GTEST_SKIP() << "python3 is not installed";
    }
    QProcess reader;
    reader.start(python, {u"-c"_qs,
                          u"import json, plistlib, sys\n"
                          u"rows = plistlib.load(open(sys.argv[1], 'rb'))\n"
                          u"print(json.dumps([{'class': r['class'], 'path': r['path'], "
                          u"'number': r.get('number'), 'items': len(r['items'])} "
                          u"for r in rows]))"_qs,
                          import.importListPath()});
    ASSERT_TRUE(reader.waitForFinished(30000));
    ASSERT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    const QJsonArray rows = QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
    ASSERT_EQ(rows.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const QJsonObject row = rows[i].toObject();
        EXPECT_EQ(row[u"class"].toString(), u"Invoice");
        EXPECT_EQ(row[u"path"].toString(), folder + u'/' + names[i]);
        EXPECT_EQ(row[u"items"].toInt(), 1);
    }
    EXPECT_EQ(rows[2].toObject()[u"number"].toString(), u"2024/17");
}

TEST_F(LedrixImportTest, NothingToExportShowsTheErrorAndWritesNothing)
{
    invoice(u"R-1"_qs, localAt(2024, 3, 5, 9), 2);
    list();
    const std::pair<QString, QString> requests[] = {
        {u"2024-03-01"_qs, u"paid"_qs},          // nothing matches
        {u"the first of March"_qs, u"paid"_qs},  // no date
        {u"2024-03-01"_qs, u"overdue"_qs},       // no such kind
    };
    for (const auto& [start, kind] : requests) {
        EXPECT_EQ(request(start, u"2024-03-31"_qs, kind), false) << kind.toStdString();
    }
    ASSERT_EQ(prompter.alerts().size(), 3);
    for (const Alert& alert : prompter.alerts()) {
        EXPECT_EQ(alert.title, u"Error!");
        EXPECT_EQ(alert.text,
                  u"Could not generate import data.\nPlease check your import settings in "
                  u"Ledrix.");
    }
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_FALSE(QFile::exists(import.importListPath()));
}

}  // namespace
}  // namespace tamo::test
