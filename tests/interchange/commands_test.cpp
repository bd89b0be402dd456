#include <QFile>

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

    const auto restored = tamo({u"--yes"_qs, u"restore-invoices"_qs, backup});
    EXPECT_EQ(restored.first, 0) << restored.second.toStdString();
    EXPECT_EQ(count(), u"5");
    const QString snapshot = tamo({u"recover"_qs}).second.trimmed();
    EXPECT_TRUE(snapshot.endsWith(u"before restoreTamoData.zqdb"));

    ASSERT_EQ(tamo({u"--yes"_qs, u"restore-invoices"_qs, dir.path(u"missing"_qs)}).first, 1);
    EXPECT_EQ(count(), u"0");
    EXPECT_EQ(tamo({u"--yes"_qs, u"recover"_qs, snapshot}).first, 0);
    EXPECT_EQ(count(), u"5");

    EXPECT_EQ(tamo({u"backup-invoices"_qs}).first, kUsageError);
}

}  // namespace
