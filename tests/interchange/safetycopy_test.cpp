#include <QDir>
#include <QFile>

#include "interchangefixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class SafetyCopyTest : public InterchangeTest {
protected:
    void invoices(int count)
    {
        for (int i = 0; i < count; ++i) {
            sampleInvoice(store(), QStringLiteral("S-%1").arg(i), QStringLiteral("S-%1").arg(i));
        }
        ASSERT_TRUE(session.saveContext());
    }
};

TEST_F(SafetyCopyTest, TheStartUpChecksDecideWhetherTheCopyIsWritten)
{
    const struct {
        const char* name;
        bool migrated;
        int countAtQuit;  // -1: no orderly quit recorded
        bool cloud;
        bool written;
    } cases[] = {
        {"the very first start", false, 11, false, false},
        {"no orderly quit yet", true, -1, false, false},
        {"12 at quit, 11 now", true, 12, false, false},
        {"11 at quit, 11 now", true, 11, false, true},
        {"12 at quit, 11 now, cloud store on", true, 12, true, true},
    };
    invoices(11);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QFile::remove(ops.backupPath());
        settings.set(key::isDatabase2Migrated, c.migrated);
        settings.set(key::USMCloudEnabledKey, c.cloud);
        settings.set(key::justMigratedFrommFree, true);
        if (c.countAtQuit < 0) {
            settings.remove(key::fetchedObjectsCount);
        } else {
            settings.set(key::fetchedObjectsCount, c.countAtQuit);
        }
        ops.createBackup();
        EXPECT_EQ(QFile::exists(ops.backupPath()), c.written);
        EXPECT_TRUE(settings.boolean(key::isDatabase2Migrated));
    }
}

TEST_F(SafetyCopyTest, ADifferentCountClearsTheMigrationFlagAndKeepsTheOldCopy)
{
    invoices(2);
    ASSERT_EQ(ops.doTheNewBackup(), ActionResult::Done);
    const QString before = readFile(ops.backupPath());
    invoices(1);
    settings.set(key::isDatabase2Migrated, true);
    settings.set(key::fetchedObjectsCount, 2);
    settings.set(key::justMigratedFrommFree, true);
    EXPECT_EQ(ops.createBackup(), ActionResult::Cancelled);
    EXPECT_FALSE(settings.boolean(key::justMigratedFrommFree));
    EXPECT_EQ(readFile(ops.backupPath()), before);
}

TEST_F(SafetyCopyTest, TheCopyIsAnInvoiceBackupInTheDocumentsFolder)
{
    invoices(3);
    EXPECT_EQ(ops.backupPath(), session.profile().documentsFolder + u"/Tamo_Backup.zqdb"_qs);
    ASSERT_EQ(ops.doTheNewBackup(), ActionResult::Done);
    store().remove(store().fetch("Invoice").front());
    user.queueFile(ops.backupPath());  // read by the invoice restore as it is
    ASSERT_EQ(ops.restoreTamoData(), ActionResult::Done);
    EXPECT_EQ(store().count("Invoice"), 3);

    store().remove(store().fetch("Invoice").front());
    ASSERT_EQ(ops.restoreFromBackup(), ActionResult::Done);
    EXPECT_EQ(store().count("Invoice"), 3);
    EXPECT_EQ(store().count("Item"), 6);
}

TEST_F(SafetyCopyTest, RestoringFromAMissingCopyShowsTheErrorAndDeletesNothing)
{
    invoices(2);
    EXPECT_EQ(ops.restoreFromBackup(), ActionResult::Failed);
    ASSERT_EQ(user.alerts().size(), 1);
    EXPECT_EQ(user.alerts()[0].title, u"Error!");
    EXPECT_TRUE(user.alerts()[0].text.startsWith(u"No valid backup file available."));
    EXPECT_EQ(store().count("Invoice"), 2);
}

TEST_F(SafetyCopyTest, TheFlatpakStoreIsMovedHereOnce)
{
    EXPECT_FALSE(ops.canRestoreFromSandbox());
    EXPECT_EQ(ops.restoreAutomaticallyFromSandbox(), ActionResult::Failed);
    EXPECT_TRUE(user.alerts().last().text.startsWith(u"Could not restore Tamo database"));

    const QString source = ops.sandboxStorePath();
    EXPECT_TRUE(source.endsWith(u"/.var/app/app.tamo.Tamo/data/app.tamo.Tamo/Tamo.zqdb"));
    QDir().mkpath(QFileInfo(source).absolutePath());
    {
        auto flatpak = openContext(source);
        sampleInvoice(*flatpak, u"F"_qs, u"F-1"_qs);
        ASSERT_TRUE(flatpak->save());
    }
    invoices(2);
    ASSERT_TRUE(ops.canRestoreFromSandbox());
    ASSERT_EQ(ops.restoreAutomaticallyFromSandbox(), ActionResult::Done);
    EXPECT_EQ(numbers(), std::vector<QString>{u"F-1"_qs});
    EXPECT_FALSE(ops.canRestoreFromSandbox());
    EXPECT_TRUE(QFile::exists(source));
}

}  // namespace
