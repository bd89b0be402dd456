#include <QDir>
#include <QFile>

#include "interchange/keyedarchive.h"
#include "interchange/storefiles.h"
#include "interchangefixture.h"
#include "model/storelocation.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class BackupTest : public InterchangeTest {
protected:
    void SetUp() override
    {
        for (const char* number : {"A-1", "A-2", "B-1"}) {
            sampleInvoice(store(), QString::fromLatin1(number), QString::fromLatin1(number));
        }
        ASSERT_TRUE(session.saveContext());
    }
    QStringList filesIn(const QString& folder) const
    {
        return QDir(folder).entryList(QDir::Files | QDir::NoDotAndDotDot);
    }
};

TEST_F(BackupTest, RestoringTheSameInvoiceBackupTwiceLeavesOneCopy)
{
    user.queueFile(file(u"Tamo Invoices.tamoinvoices"_qs));
    ASSERT_EQ(ops.backupTamoData(), ActionResult::Done);
    EXPECT_EQ(user.fileRequests()[0].title, u"Backup Tamo Invoices");
    for (int round = 0; round < 2; ++round) {
        user.queueFile(file(u"Tamo Invoices.tamoinvoices"_qs));
        ASSERT_EQ(ops.restoreTamoData(), ActionResult::Done);
    }
    EXPECT_EQ(numbers(), (std::vector<QString>{u"A-1"_qs, u"A-2"_qs, u"B-1"_qs}));
    EXPECT_EQ(store().count("Item"), 6);
    EXPECT_FALSE(store().hasChanges());
    EXPECT_EQ(session.documents().size(), 3);
}

TEST_F(BackupTest, AFilterLimitsWhatExportItemsWritesAndWhatARestoreDeletes)
{
    user.queueFile(file(u"b.tamoinvoices"_qs));
    session.documents().setFilter(1, [](const Record& r) { return r.string("number") == u"B-1"; });
    ASSERT_EQ(ops.exportItems(), ActionResult::Done);  // only B-1, as a backup file
    session.documents().setFilter(
        1, [](const Record& r) { return r.string("number").startsWith(u'A'); });

    user.queueFile(file(u"b.tamoinvoices"_qs));
    ASSERT_EQ(ops.restoreTamoData(), ActionResult::Done);
    EXPECT_EQ(numbers(), (std::vector<QString>{u"B-1"_qs, u"B-1"_qs}));
}

TEST_F(BackupTest, DictionariesThatSayItemAreRestoredAsInvoices)
{
    ASSERT_TRUE(writeFileAtomically(
        file(u"items.tamoinvoices"_qs),
        "<plist version=\"1.0\"><array><dict><key>class</key><string>Item</string>"
        "<key>title</key><string>From a line</string><key>amount</key><real>12.5</real>"
        "</dict></array></plist>"));
    user.queueFile(file(u"items.tamoinvoices"_qs));
    ASSERT_EQ(ops.restoreTamoData(), ActionResult::Done);
    const auto invoices = store().fetch("Invoice");
    ASSERT_EQ(invoices.size(), 1u);
    EXPECT_EQ(invoices[0]->string("title"), u"From a line");
    EXPECT_EQ(invoices[0]->decimal("amount"), 12.5);
}

TEST_F(BackupTest, ItemsRoundTripThroughTheirBackup)
{
    store().insert("RecentItem")->setValue("title", u"Consulting"_qs);
    user.queueFile(file(u"Tamo Items.tamoitems"_qs));
    ASSERT_EQ(ops.backupItems(), ActionResult::Done);
    store().insert("RecentItem")->setValue("title", u"Added later"_qs);
    user.queueFile(file(u"Tamo Items.tamoitems"_qs));
    ASSERT_EQ(ops.restoreItems(), ActionResult::Done);
    const auto items = store().fetch("RecentItem");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0]->string("title"), u"Consulting");
    EXPECT_EQ(store().count("Invoice"), 3);
}

TEST_F(BackupTest, DecliningTheQuestionOrThePanelChangesNothing)
{
    user.queueAnswer(u"Cancel"_qs);
    EXPECT_EQ(ops.restoreTamoData(), ActionResult::Cancelled);
    EXPECT_TRUE(user.fileRequests().isEmpty());
    EXPECT_EQ(ops.restoreCompleteTamoData(), ActionResult::Cancelled);  // no file chosen
    EXPECT_EQ(store().count("Invoice"), 3);
    EXPECT_TRUE(ops.recoverySnapshots().isEmpty());
}

TEST_F(BackupTest, AFileThatCannotBeWrittenIsReportedNotSkipped)
{
    user.queueFile(file(u"missing folder/Tamo Invoices.tamoinvoices"_qs));
    EXPECT_EQ(ops.backupTamoData(), ActionResult::Failed);
    EXPECT_EQ(user.errors().last().text(),
              QStringLiteral("The file “%1” could not be written. The folder does not exist.")
                  .arg(file(u"missing folder/Tamo Invoices.tamoinvoices"_qs)));

    // libplist keeps a date's seconds in 32 bits: a date it cannot hold stops the write.
    store().fetch("Invoice").front()->setValue("due", utc(2100, 1, 1));
    user.queueFile(file(u"Tamo Invoices.tamoinvoices"_qs));
    EXPECT_EQ(ops.backupTamoData(), ActionResult::Failed);
    EXPECT_TRUE(user.errors().last().message.contains(u"“due”"));
    EXPECT_FALSE(QFile::exists(file(u"Tamo Invoices.tamoinvoices"_qs)));
}

TEST_F(BackupTest, AnUnreadableRestoreFileIsExplainedAndTheRecoveryCopyBringsTheInvoicesBack)
{
    ASSERT_TRUE(writeFileAtomically(file(u"broken.tamoinvoices"_qs), "<plist><array><dict>"));
    user.queueFile(file(u"broken.tamoinvoices"_qs));
    EXPECT_EQ(ops.restoreTamoData(), ActionResult::Failed);
    ASSERT_EQ(user.errors().size(), 1);
    EXPECT_TRUE(user.errors()[0].text().contains(u"broken.tamoinvoices"));
    EXPECT_TRUE(user.errors()[0].text().contains(u"Recover Previous Database"));
    EXPECT_EQ(store().count("Invoice"), 0);  // deleted before reading, as always

    ASSERT_EQ(ops.recoverySnapshots().size(), 1);
    user.queueFile(ops.recoverySnapshots()[0]);
    ASSERT_EQ(ops.recoverPreviousDatabase(), ActionResult::Done);
    EXPECT_EQ(numbers(), (std::vector<QString>{u"A-1"_qs, u"A-2"_qs, u"B-1"_qs}));
    EXPECT_EQ(session.documents().size(), 3);
}

TEST_F(BackupTest, TheCompleteBackupLeavesOneFileAndTheLiveStoreCarriesOn)
{
    QDir().mkpath(file(u"chosen"_qs));
    user.queueFile(file(u"chosen/Archive.zqdb"_qs));
    ASSERT_EQ(ops.backupCompleteTamoData(), ActionResult::Done);
    EXPECT_EQ(filesIn(file(u"chosen"_qs)), QStringList{u"Archive.tamo2db"_qs});
    EXPECT_EQ(queryText(file(u"chosen/Archive.tamo2db"_qs), u"SELECT COUNT(*) FROM Invoice"_qs),
              u"3");
    EXPECT_EQ(filesIn(session.profile().supportFolder).filter(u"incoming"_qs), QStringList());

    store().insert("Invoice");  // the reopened store works as before
    ASSERT_TRUE(session.saveContext());
    EXPECT_EQ(queryText(dir.storePath(), u"SELECT COUNT(*) FROM Invoice"_qs), u"4");
}

TEST_F(BackupTest, TheCompleteRestoreReplacesTheStoreAndKeepsTheBackupFile)
{
    user.queueFile(file(u"Archive.zqdb"_qs));
    ASSERT_EQ(ops.backupCompleteTamoData(), ActionResult::Done);
    store().remove(store().fetch("Invoice").front());
    ASSERT_TRUE(session.saveContext());

    user.queueFile(file(u"Archive.tamo2db"_qs));
    ASSERT_EQ(ops.restoreCompleteTamoData(), ActionResult::Done);
    EXPECT_EQ(store().count("Invoice"), 3);
    EXPECT_EQ(session.documents().size(), 3);
    EXPECT_TRUE(QFile::exists(file(u"Archive.tamo2db"_qs)));
    EXPECT_EQ(ops.recoverySnapshots().size(), 1);
}

TEST_F(BackupTest, AFileThatIsNoTamoDatabaseReplacesNothing)
{
    ASSERT_TRUE(writeFileAtomically(file(u"notes.tamo2db"_qs), "just some text"));
    execSql(file(u"other.sqlite"_qs), u"CREATE TABLE t (x)"_qs);
    for (const QString& candidate : {file(u"notes.tamo2db"_qs), file(u"other.sqlite"_qs)}) {
        SCOPED_TRACE(candidate.toStdString());
        user.queueFile(candidate);
        EXPECT_EQ(ops.restoreCompleteTamoData(), ActionResult::Failed);
        EXPECT_TRUE(user.errors().last().message.contains(u"is not a Tamo database"));
        EXPECT_EQ(store().count("Invoice"), 3);
    }
    EXPECT_TRUE(ops.recoverySnapshots().isEmpty());
}

TEST_F(BackupTest, ARawCopyOfTheStoreRestores)
{
    user.queueFile(file(u"raw.sqlite"_qs));
    ASSERT_EQ(ops.backupCDAction(), ActionResult::Done);
    EXPECT_EQ(user.fileRequests()[0].proposedName, u"E-Tamo Database Backup.sqlite");
    store().insert("Invoice");
    ASSERT_TRUE(session.saveContext());

    user.queueFile(file(u"raw.sqlite"_qs));
    ASSERT_EQ(ops.restoreCDAction(), ActionResult::Done);
    EXPECT_EQ(store().count("Invoice"), 3);
}

TEST_F(BackupTest, MovingTheStoreWritesACompleteBackupFirst)
{
    session.hooks().completeBackup = [this] {
        return ops.backupCompleteTamoData() == ActionResult::Done;
    };
    user.queueFile(file(u"before move.zqdb"_qs));
    settings.set(key::useCustomPath, true);
    settings.set(key::customDatabasePath, file(u"moved"_qs));
    ASSERT_TRUE(session.customPathChanged());
    EXPECT_TRUE(QFile::exists(file(u"before move.tamo2db"_qs)));
    EXPECT_EQ(queryText(file(u"moved/Tamo.zqdb"_qs), u"SELECT COUNT(*) FROM Invoice"_qs), u"3");
}

TEST_F(BackupTest, TheDumpHoldsEveryEntityInItsOrder)
{
    store().insert("Address");
    user.queueFile(file(u"Invoices Dump.invdump"_qs));
    ASSERT_EQ(ops.exportAsInvoiceFile(), ActionResult::Done);
    auto dump = keyedUnarchive(*readWholeFile(file(u"Invoices Dump.invdump"_qs)));
    ASSERT_TRUE(dump);
    QStringList keys;
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(dump->get(), &it);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dump->get(), it, &key, &value);
        if (!value) {
            break;
        }
        keys << QString::fromUtf8(key);
        free(key);
    }
    free(it);
    EXPECT_EQ(keys.join(u' '), u"invoices items designs addresses shippings templates");
    EXPECT_EQ(plist_array_get_size(plist_dict_get_item(dump->get(), "invoices")), 3u);
    EXPECT_EQ(plist_array_get_size(plist_dict_get_item(dump->get(), "addresses")), 1u);
}

TEST_F(BackupTest, AnImportedDocumentKeepsItsNumberAndABrokenOneChangesNothing)
{
    Plist root(plist_new_dict());
    plist_dict_set_item(root.get(), "tamoDic",
                        toDictionary(*store().fetch("Invoice").front())->release());
    ASSERT_TRUE(writeFileAtomically(file(u"doc.tamo"_qs), *keyedArchive(root.get())));
    user.queueFile(file(u"doc.tamo"_qs));
    ASSERT_EQ(ops.importInvoice(), ActionResult::Done);
    EXPECT_EQ(store().count("Invoice"), 4);
    EXPECT_EQ(store().count("Item"), 8);

    ASSERT_TRUE(
        writeFileAtomically(file(u"bad.tamo"_qs), *keyedArchive(Plist(plist_new_array()).get())));
    user.queueFile(file(u"bad.tamo"_qs));
    EXPECT_EQ(ops.importInvoice(), ActionResult::Failed);
    EXPECT_TRUE(user.errors().last().text().contains(u"holds no document"));
    EXPECT_EQ(store().count("Invoice"), 4);
    EXPECT_FALSE(store().hasChanges());
}

TEST_F(BackupTest, AskedToOpenAFileTamoExplainsAndOpensNothing)
{
    EXPECT_TRUE(ops.openFile(file(u"doc.tamo"_qs)));
    ASSERT_EQ(user.alerts().size(), 1);
    EXPECT_EQ(user.alerts()[0].title, u"Tamo, Tamo Documents, and the Tamo Database");
    EXPECT_EQ(store().count("Invoice"), 3);
}

TEST_F(BackupTest, TheTenNewestRecoveryCopiesAreKept)
{
    RecoverySnapshots snapshots(session.profile().recoveryFolder);
    for (int i = 0; i < 12; ++i) {
        store().insert("RecentItem");
        ASSERT_TRUE(session.saveContext());
        ASSERT_TRUE(snapshots.take(&store(), dir.storePath(), clock.now(), u"test"_qs));
    }
    const QStringList kept = snapshots.list();
    ASSERT_EQ(kept.size(), RecoverySnapshots::kKept);
    EXPECT_TRUE(kept.first().contains(u"000012 2026-03-01"));
    EXPECT_TRUE(kept.last().contains(u"000003 "));
}

}  // namespace
