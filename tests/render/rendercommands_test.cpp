#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPdfDocument>
#include <QPdfSelection>

#include "cli/commands.h"
#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class RenderCommandsTest : public ::testing::Test {
protected:
    TempProfile dir;

    CommandOutcome tamo(const QStringList& words) { return runTamo(dir.path(u"store"_qs), words); }
    QString pdfText(const QString& path)
    {
        QPdfDocument pdf;
        EXPECT_EQ(pdf.load(path), QPdfDocument::Error::None) << path.toStdString();
        QString text;
        for (int page = 0; page < pdf.pageCount(); ++page) {
            text += pdf.getAllText(page).text();
        }
        return text;
    }
};

TEST_F(RenderCommandsTest, DesignsAreListedExportedImportedAndChosen)
{
    const CommandOutcome list = tamo({u"designs"_qs, u"list"_qs});
    ASSERT_EQ(list.code, 0) << list.err.toStdString();
    const QStringList lines = list.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[0], u" 0 * Classic Letter (default)");
    EXPECT_EQ(lines[12], u"12   Business (default)");

    const QString file = dir.path(u"modern.design"_qs);
    ASSERT_EQ(tamo({u"designs"_qs, u"export"_qs, u"Modern"_qs, file}).code, 0);
    const CommandOutcome imported = tamo({u"designs"_qs, u"import"_qs, file});
    ASSERT_EQ(imported.code, 0) << imported.err.toStdString();
    EXPECT_EQ(imported.out, u"13 Modern\n");
    ASSERT_EQ(tamo({u"designs"_qs, u"default"_qs, u"13"_qs}).code, 0);
    const QStringList after =
        tamo({u"designs"_qs, u"list"_qs}).out.split(u'\n', Qt::SkipEmptyParts);
    EXPECT_EQ(after[13], u"13 * Modern (default)");
    EXPECT_EQ(after[0], u" 0   Classic Letter");

    EXPECT_NE(tamo({u"designs"_qs, u"delete"_qs, u"13"_qs}).code, 0);  // asks; no answer given
    EXPECT_EQ(tamo({u"--yes"_qs, u"designs"_qs, u"delete"_qs, u"13"_qs}).code, 0);
    EXPECT_EQ(tamo({u"designs"_qs, u"list"_qs}).out.count(u'\n'), 13);

    const CommandOutcome broken = tamo({u"designs"_qs, u"import"_qs, dir.path(u"none.design"_qs)});
    EXPECT_EQ(broken.code, 1);
    EXPECT_TRUE(broken.err.contains(u"none.design"));
    EXPECT_EQ(tamo({u"designs"_qs, u"export"_qs, u"Nothing"_qs, file}).code, 1);
    EXPECT_EQ(tamo({u"designs"_qs, u"rename"_qs}).code, kUsageError);
}

TEST_F(RenderCommandsTest, ADocumentBecomesHtmlOrPdfInEachMode)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"3"_qs}).code, 0);
    const QString listed = tamo({u"list"_qs, u"--json"_qs}).out;
    const QString number =
        QJsonDocument::fromJson(listed.toUtf8()).array().at(0).toObject()[u"number"_qs].toString();
    ASSERT_FALSE(number.isEmpty());

    const CommandOutcome page = tamo({u"render"_qs, number, u"--html"_qs, u"-"_qs});
    ASSERT_EQ(page.code, 0) << page.err.toStdString();
    EXPECT_TRUE(page.out.startsWith(u"<!DOCTYPE html>"));
    EXPECT_TRUE(page.out.contains(number));

    const QString pdf = dir.path(u"slip.pdf"_qs);
    ASSERT_EQ(tamo({u"designs"_qs, u"select"_qs, u"2"_qs}).code, 0);
    const CommandOutcome slip =
        tamo({u"render"_qs, number, u"--pdf"_qs, pdf, u"--slip"_qs, u"--design"_qs, u"6"_qs});
    ASSERT_EQ(slip.code, 0) << slip.err.toStdString();
    EXPECT_TRUE(pdfText(pdf).contains(number));
    // A one-off rendering leaves the person's choice of design alone.
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"selectedDesign"_qs}).out, u"2\n");

    EXPECT_EQ(tamo({u"render"_qs, number}).code, kUsageError);
    EXPECT_EQ(tamo({u"render"_qs, number, u"--pdf"_qs, pdf, u"--reminder"_qs, u"--slip"_qs}).code,
              kUsageError);
    EXPECT_EQ(tamo({u"render"_qs, u"nope"_qs, u"--pdf"_qs, pdf}).code, 1);
}

TEST_F(RenderCommandsTest, ExportPdfsWritesEveryListedDocument)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"4"_qs}).code, 0);
    const QString folder = dir.path(u"pdfs"_qs);
    const CommandOutcome all = tamo({u"export-pdfs"_qs, folder});
    ASSERT_EQ(all.code, 0) << all.err.toStdString();
    const QStringList files = QDir(folder).entryList({u"*.pdf"_qs}, QDir::Files);
    EXPECT_EQ(files.size(), 4);
    for (const QString& f : files) {
        EXPECT_TRUE(f.endsWith(u".pdf"));
        EXPECT_FALSE(pdfText(QDir(folder).filePath(f)).isEmpty());
    }
    EXPECT_EQ(tamo({u"export-pdfs"_qs}).code, kUsageError);
}

}  // namespace
