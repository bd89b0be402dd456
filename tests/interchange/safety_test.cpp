// What must never lose a person's books: recovery copies that survive repeated failed restores,
// replacement stores that are Tamo's own and whole, damaged stores that write no backup, and
// writes that fail with the file and the cause named.

#include <QDir>
#include <QFile>

#include "interchange/storefiles.h"
#include "interchangefixture.h"
#include "model/sqlite.h"
#include "support/commandrunner.h"
#include "support/scratchfs.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class SafetyTest : public InterchangeTest {
protected:
    void SetUp() override
    {
        for (const char* number : {"A-1", "A-2", "B-1"}) {
            sampleInvoice(store(), QString::fromLatin1(number), QString::fromLatin1(number));
        }
        ASSERT_TRUE(session.saveContext());
    }

    // A complete backup of the store as it is, for tests to spoil.
    QString completeBackup(const QString& name)
    {
        user.queueFile(file(name + u".zqdb"_qs));
        EXPECT_EQ(ops.backupCompleteTamoData(), ActionResult::Done);
        return file(name + u".tamo2db"_qs);
    }

    // Overwrites the first page of the table's b-tree, so that reading it fails.
    static void spoilTable(const QString& path, const QString& table)
    {
        // Pages still in the write-ahead log would be read from there.
        execSql(path, u"PRAGMA wal_checkpoint(TRUNCATE)"_qs);
        const qint64 root =
            queryText(
                path,
                QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(table))
                .toLongLong();
        ASSERT_GT(root, 1);
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        f.seek((root - 1) * 4096);
        f.write(QByteArray(4096, '\x5a'));
    }
};

TEST_F(SafetyTest, RepeatedFailedRestoresKeepTheCopyThatHoldsTheData)
{
    ASSERT_TRUE(writeFileAtomically(file(u"typo.tamoinvoices"_qs), "<plist><array><dict>"));
    for (int attempt = 0; attempt < 12; ++attempt) {
        user.queueFile(file(u"typo.tamoinvoices"_qs));
        ASSERT_EQ(ops.restoreTamoData(), ActionResult::Failed);
    }
    // The first copy holds the invoices, the second the emptied store; the store did not
    // change after that, so no further copy pushed them out.
    const QStringList copies = ops.recoverySnapshots();
    ASSERT_EQ(copies.size(), 2);
    const QString withData = QFileInfo(copies.last()).fileName();
    EXPECT_TRUE(user.errors().last().reason.contains(
        QStringLiteral("tamo --yes recover \"%1\"").arg(withData)));

    // And it brings them back from the command line, as the message says.
    const auto recovered =
        runTamo(dir.profile().supportFolder, {u"--yes"_qs, u"recover"_qs, withData});
    EXPECT_EQ(recovered.code, 0) << recovered.err.toStdString();
    EXPECT_EQ(queryText(dir.storePath(), u"SELECT COUNT(*) FROM Invoice"_qs), u"3");
}

TEST_F(SafetyTest, PruningKeepsTheLastCopyBeforeDataWentMissing)
{
    RecoverySnapshots snapshots(session.profile().recoveryFolder);
    ASSERT_TRUE(snapshots.take(&store(), dir.storePath(), clock.now(), u"full"_qs));
    for (Record* invoice : store().fetch("Invoice")) {
        store().remove(invoice);
    }
    Record* client = store().insert("Address");
    for (int i = 0; i < 12; ++i) {
        client->setValue("customerName", QStringLiteral("Client %1").arg(i));
        ASSERT_TRUE(session.saveContext());
        ASSERT_TRUE(snapshots.take(&store(), dir.storePath(), clock.now(), u"later"_qs));
    }
    // An unchanged store makes no new copy.
    const auto again = snapshots.take(&store(), dir.storePath(), clock.now(), u"again"_qs);
    ASSERT_TRUE(again.has_value());
    EXPECT_TRUE(again->contains(u"000013 "));

    const QStringList kept = snapshots.list();
    ASSERT_EQ(kept.size(), RecoverySnapshots::kKept + 1);
    EXPECT_TRUE(kept.first().contains(u"000013 "));
    EXPECT_TRUE(kept.last().contains(u"000001 2026-03-01 09.00.00 before full"));
    EXPECT_TRUE(kept[RecoverySnapshots::kKept - 1].contains(u"000004 "));
}

TEST_F(SafetyTest, AReplacementStoreMustBeTamosOwnAndWhole)
{
    const QString good = completeBackup(u"good"_qs);
    struct Case {
        const char* name;
        QString sql;
        const char16_t* named;  // what the refusal says
    };
    const Case cases[] = {
        {"trigger", u"CREATE TRIGGER wipe AFTER INSERT ON Item BEGIN DELETE FROM Invoice; END"_qs,
         u"a trigger “wipe”"},
        {"view", u"CREATE VIEW everything AS SELECT * FROM Invoice"_qs, u"a view “everything”"},
        {"column", u"ALTER TABLE Invoice ADD COLUMN extra TEXT"_qs, u"a column “extra”"},
        {"table", u"CREATE TABLE notes (x)"_qs, u"a table “notes”"},
        {"index", u"CREATE INDEX byTitle ON Invoice (title)"_qs, u"an index “byTitle”"},
        {"constraint",
         u"DROP INDEX Item_invoice; DROP INDEX Item_template; ALTER TABLE Item RENAME TO old; "
         u"CREATE TABLE Item (pk INTEGER PRIMARY KEY CHECK (pk < 0)); DROP TABLE old"_qs,
         u"not defined as Tamo defines it"},
        {"damaged", {}, u"It is damaged"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const QString candidate = file(QString::fromLatin1(c.name) + u".tamo2db"_qs);
        ASSERT_TRUE(QFile::copy(good, candidate));
        if (c.sql.isEmpty()) {
            spoilTable(candidate, u"Item"_qs);
        } else {
            execSql(candidate, c.sql);
        }
        user.queueFile(candidate);
        EXPECT_EQ(ops.restoreCompleteTamoData(), ActionResult::Failed);
        EXPECT_TRUE(user.errors().last().text().contains(QString::fromUtf16(c.named)))
            << user.errors().last().text().toStdString();
        EXPECT_EQ(store().count("Invoice"), 3);
    }
    // The raw import takes the same way in.
    user.queueFile(file(u"trigger.tamo2db"_qs));
    EXPECT_EQ(ops.restoreCDAction(), ActionResult::Failed);
    EXPECT_TRUE(ops.recoverySnapshots().isEmpty());
    EXPECT_EQ(queryText(dir.storePath(),
                        u"SELECT COUNT(*) FROM sqlite_master WHERE type = "
                        u"'trigger'"_qs),
              u"0");
}

TEST_F(SafetyTest, ADamagedStoreWritesNoBackupAndKeepsTheSafetyCopy)
{
    ASSERT_EQ(ops.doTheNewBackup(), ActionResult::Done);
    const QString safetyCopy = readFile(ops.backupPath());

    // Damage found while Tamo runs: a session that has not read the lines yet cannot read them
    // any more (another program wrote since, so nothing read before is taken from memory).
    Settings otherSettings(dir.profile().settingsFile);
    AppSession running(dir.profile(), otherSettings, clock, user);
    DataInterchange runningOps(running, user);
    ASSERT_NE(running.managedObjectContext(), nullptr);
    spoilTable(dir.storePath(), u"Item"_qs);
    execSql(dir.storePath(), u"INSERT INTO meta VALUES ('touched', '1')"_qs);
    user.queueFile(file(u"while open.tamoinvoices"_qs));
    EXPECT_EQ(runningOps.backupTamoData(), ActionResult::Failed);
    EXPECT_TRUE(user.errors().last().message.contains(u"could not be read completely"));
    EXPECT_FALSE(QFile::exists(file(u"while open.tamoinvoices"_qs)));
    EXPECT_EQ(runningOps.doTheNewBackup(), ActionResult::Failed);
    EXPECT_EQ(readFile(ops.backupPath()), safetyCopy);

    // Damage found at the start: every command fails with the reason, and writes nothing.
    const QString folder = dir.profile().supportFolder;
    for (const QStringList& words : {QStringList{u"list"_qs, u"--json"_qs},
                                     {u"backup-invoices"_qs, file(u"b.tamoinvoices"_qs)},
                                     {u"backup-complete"_qs, file(u"c.zqdb"_qs)},
                                     {u"safety-copy"_qs}}) {
        SCOPED_TRACE(words.join(u' ').toStdString());
        const auto outcome = runTamo(folder, words);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.out.isEmpty()) << outcome.out.toStdString();
        EXPECT_TRUE(outcome.err.contains(u"is damaged")) << outcome.err.toStdString();
    }
    EXPECT_FALSE(QFile::exists(file(u"b.tamoinvoices"_qs)));
    EXPECT_FALSE(QFile::exists(file(u"c.tamo2db"_qs)));
    EXPECT_EQ(readFile(ops.backupPath()), safetyCopy);
}

TEST_F(SafetyTest, AFullOrReadOnlyDiskIsNamedAndLeavesNoPartialFile)
{
    ScratchFileSystem disk(1 << 20);
    if (!disk.available()) {
        GTEST_SKIP() << disk.reason().toStdString();
    }
    // A store larger than the disk's free space.
    for (int i = 0; i < 300; ++i) {
        sampleInvoice(store(), QStringLiteral("X-%1").arg(i), QStringLiteral("X-%1").arg(i))
            ->setValue("notes", QString(2000, u'n'));
    }
    ASSERT_TRUE(session.saveContext());
    user.queueFile(disk.filePath(u"Archive.zqdb"_qs));
    EXPECT_EQ(ops.backupCompleteTamoData(), ActionResult::Failed);
    EXPECT_EQ(user.errors().last().message, QStringLiteral("The copy “%1” could not be written.")
                                                .arg(disk.filePath(u"Archive.tamo2db"_qs)));
    EXPECT_EQ(user.errors().last().reason, u"The disk is full.");

    disk.fill();
    user.queueFile(disk.filePath(u"Tamo Invoices.tamoinvoices"_qs));
    EXPECT_EQ(ops.backupTamoData(), ActionResult::Failed);
    EXPECT_EQ(user.errors().last().text(),
              QStringLiteral("The file “%1” could not be written. The disk is full.")
                  .arg(disk.filePath(u"Tamo Invoices.tamoinvoices"_qs)));
    EXPECT_EQ(QDir(disk.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u".filler"_qs});

    disk.drain();
    ASSERT_TRUE(disk.remountReadOnly());
    const auto written = writeFileAtomically(disk.filePath(u"x.xml"_qs), "<plist/>");
    ASSERT_FALSE(written.has_value());
    EXPECT_EQ(written.error().reason, u"The file system is read-only.");
    for (const Error& e : user.errors()) {
        EXPECT_FALSE(e.text().contains(u"Unknown error"));
    }
}

}  // namespace
