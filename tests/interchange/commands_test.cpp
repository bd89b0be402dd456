#include <QFile>
#include <QRegularExpression>

#include "cli/commandline.h"
#include "cli/commands.h"
#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class DataCommandsTest : public ::testing::Test {
protected:
    TempProfile dir;

    std::pair<int, QString> tamo(const QStringList& words)
    {
        const CommandOutcome run = runTamo(dir.path(u"store"_qs), words);
        return {run.code, run.out + run.err};
    }
    QString count()
    {
        return queryText(dir.path(u"store/Tamo.zqdb"_qs), u"SELECT COUNT(*) FROM Invoice"_qs);
    }
};

TEST_F(DataCommandsTest, FilesAreNamedOnTheCommandLineAndRestoresNeedYes)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"5"_qs}).first, 0);
    const QString backup = dir.path(u"invoices.tamoinvoices"_qs);
    ASSERT_EQ(tamo({u"backup-invoices"_qs, backup}).first, 0);
    ASSERT_TRUE(QFile::exists(backup));

    const auto refused = tamo({u"restore-invoices"_qs, backup});
    EXPECT_NE(refused.first, 0);
    EXPECT_TRUE(refused.second.contains(u"--yes"));
    EXPECT_TRUE(tamo({u"recover"_qs}).second.isEmpty());  // nothing replaced, no recovery copy

    const auto restored = tamo({u"restore-invoices"_qs, backup, u"--yes"_qs});
    EXPECT_EQ(restored.first, 0) << restored.second.toStdString();
    EXPECT_EQ(count(), u"5");
    const QString snapshot = tamo({u"recover"_qs}).second.trimmed();
    EXPECT_TRUE(snapshot.endsWith(u"before restoreTamoData.zqdb"));

    ASSERT_EQ(tamo({u"--yes"_qs, u"restore-invoices"_qs, dir.path(u"missing"_qs)}).first, 1);
    EXPECT_EQ(count(), u"0");
    // A recovery copy is named by the number it is listed with.
    EXPECT_TRUE(snapshot.startsWith(u"000001 "));
    EXPECT_EQ(tamo({u"recover"_qs, u"1"_qs, u"--yes"_qs}).first, 0);
    EXPECT_EQ(count(), u"5");

    EXPECT_EQ(tamo({u"backup-invoices"_qs}).first, kUsageError);
}

TEST_F(DataCommandsTest, ExportShownXmlWritesTheInvoicesTheFilterAndSearchList)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"6"_qs}).first, 0);
    const auto listed = runTamo(dir.path(u"store"_qs), {u"list"_qs, u"--json"_qs}).out;
    const QString number = listed.section(u"\"number\": \""_qs, 1, 1).section(u'"', 0, 0);
    ASSERT_FALSE(number.isEmpty());
    const QString file = dir.path(u"shown.tamoinvoices"_qs);
    const QRegularExpression document(u"<key>class</key>\\s*<string>Invoice</string>"_qs);
    ASSERT_EQ(tamo({u"export-shown-xml"_qs, file, u"--search"_qs, number}).first, 0);
    EXPECT_EQ(readFile(file).count(document), 1);
    ASSERT_EQ(tamo({u"export-shown-xml"_qs, file, u"--filter"_qs, u"0"_qs}).first, 0);
    EXPECT_EQ(readFile(file).count(document), 6);
    EXPECT_EQ(tamo({u"export-shown-xml"_qs, file, u"--filter"_qs, u"x"_qs}).first, kUsageError);
}

}  // namespace
