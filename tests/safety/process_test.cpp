// Real `tamo` processes on one store: a window beside commands, commands beside each other,
// processes killed while they write, a first start killed half-way, a full disk.

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <csignal>

#include "model/storelock.h"
#include "support/scratchfs.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

// The program under test; TAMO_TEST_BINARY runs the same tests against another build.
QString program()
{
    return qEnvironmentVariable("TAMO_TEST_BINARY", QStringLiteral(TAMO_BINARY));
}

struct Outcome {
    int code = -1;
    QString out;
    QString err;
};

class ProcessTest : public ::testing::Test {
protected:
    QTemporaryDir dir;
    QString store = dir.filePath(u"profile"_qs);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();

    QString storeFile() const { return store + u"/Tamo.zqdb"_qs; }

    Outcome tamo(const QStringList& words, const QString& profile = {})
    {
        QProcess p;
        p.setProcessEnvironment(environment);
        p.start(program(), QStringList{u"--store"_qs, profile.isEmpty() ? store : profile} + words);
        EXPECT_TRUE(p.waitForFinished(120000)) << words.join(u' ').toStdString();
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
                QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }

    QString firstDocument()
    {
        const Outcome listed = tamo({u"list"_qs, u"--json"_qs});
        const auto match = QRegularExpression(u"\"uniqueID\": \"([^\"]+)\""_qs).match(listed.out);
        return match.captured(1);
    }

    int count(const QString& table)
    {
        return queryText(storeFile(), u"SELECT COUNT(*) FROM "_qs + table).toInt();
    }

    // A process in a session of its own, so that a kill reaches everything it started.
    static void killGroup(QProcess& p)
    {
        ::kill(-pid_t(p.processId()), SIGKILL);
        p.waitForFinished(10000);
    }
};

TEST_F(ProcessTest, AWindowHoldsItsStoreAndCommandsThatOnlyReadRunBesideIt)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"4"_qs}).code, 0);
    const QString created = tamo({u"new-invoice"_qs}).out;
    // "Created invoice NUMBER (ID)", or without a number "Created invoice ID".
    const QString document = created.trimmed().section(u' ', -1).remove(u'(').remove(u')');
    ASSERT_FALSE(document.isEmpty()) << created.toStdString();

    QProcess window;
    window.start(program(), {u"--store"_qs, store});
    ASSERT_TRUE(window.waitForStarted());
    const QString lockFile = StoreLock::lockPathFor(storeFile());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return LockHolder::fromText(readFile(lockFile)).pid == window.processId(); }, 60000));

    // A command that changes the store is refused with one line naming the window.
    const Outcome refused = tamo({u"add-item"_qs, document, u"--title"_qs, u"Late"_qs,
                                  u"--price"_qs, u"10"_qs, u"--quantity"_qs, u"1"_qs});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.err.count(u'\n'), 1) << refused.err.toStdString();
    EXPECT_TRUE(refused.err.startsWith(
        QStringLiteral("tamo: The store “%1” is in use by the Tamo window (process %2, started as "
                       "“tamo --store %3”).")
            .arg(storeFile())
            .arg(window.processId())
            .arg(store)))
        << refused.err.toStdString();

    // Commands that only read run beside it.
    const Outcome listed = tamo({u"list"_qs});
    EXPECT_EQ(listed.code, 0) << listed.err.toStdString();
    EXPECT_EQ(listed.out.count(u'\n'), 6);
    EXPECT_EQ(tamo({u"backup-invoices"_qs, dir.filePath(u"b.tamoinvoices"_qs)}).code, 0);
    const Outcome complete = tamo({u"backup-complete"_qs, dir.filePath(u"c.zqdb"_qs)});
    EXPECT_EQ(complete.code, 0) << complete.err.toStdString();
    EXPECT_EQ(queryText(dir.filePath(u"c.tamo2db"_qs), u"SELECT COUNT(*) FROM Invoice"_qs), u"5");
    EXPECT_EQ(window.state(), QProcess::Running);

    // A file to open goes to the window, as from the file manager.
    const QString note = dir.filePath(u"note.txt"_qs);
    QFile file(note);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("a note") == 6);
    file.close();
    const Outcome handed = tamo({u"open"_qs, note});
    EXPECT_EQ(handed.code, 0) << handed.err.toStdString();
    EXPECT_EQ(handed.out, QStringLiteral("Handed “%1” to the Tamo window (process %2, started as "
                                         "“tamo --store %3”).\n")
                              .arg(note)
                              .arg(window.processId())
                              .arg(store));

    // A window that died leaves a lock that the next command takes over.
    window.kill();
    window.waitForFinished();
    EXPECT_TRUE(QFile::exists(lockFile));
    const Outcome added = tamo({u"add-item"_qs, document, u"--title"_qs, u"Late"_qs, u"--price"_qs,
                                u"10"_qs, u"--quantity"_qs, u"1"_qs});
    EXPECT_EQ(added.code, 0) << added.err.toStdString();
    EXPECT_FALSE(QFile::exists(lockFile));
}

// A German freelancer reads the command line's own refusals and the core's messages in German.
TEST_F(ProcessTest, ACommandRunInGermanAnswersInGerman)
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"}) {
        environment.remove(QString::fromLatin1(name));
    }
    environment.insert(u"LANG"_qs, u"de_DE.UTF-8"_qs);
    const QString broken = dir.filePath(u"Kaputt.tamo"_qs);
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("kein Archiv");
    file.close();

    EXPECT_EQ(tamo({u"list"_qs, u"--xml"_qs}).err,
              u"tamo: list: unbekannte Option --xml\nAufruf: tamo list [--json]\n");
    const Outcome imported = tamo({u"--yes"_qs, u"import-document"_qs, broken});
    EXPECT_EQ(imported.code, 1);
    EXPECT_TRUE(
        imported.err.contains(u"Das Dokument „Kaputt.tamo“ konnte nicht importiert werden."))
        << imported.err.toStdString();
    EXPECT_TRUE(tamo({u"list"_qs}).out.startsWith(u"Status          Nummer"));
}

TEST_F(ProcessTest, CommandsOnOneStoreTakeTurns)
{
    ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    const QString document = firstDocument();
    std::vector<std::unique_ptr<QProcess>> running;
    for (int i = 0; i < 24; ++i) {
        auto p = std::make_unique<QProcess>();
        p->start(program(), {u"--store"_qs, store, u"add-item"_qs, document, u"--title"_qs,
                             QStringLiteral("Line %1").arg(i), u"--price"_qs, u"1"_qs,
                             u"--quantity"_qs, u"1"_qs});
        running.push_back(std::move(p));
    }
    for (auto& p : running) {
        ASSERT_TRUE(p->waitForFinished(180000));
        EXPECT_EQ(p->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(p->exitCode(), 0) << p->readAllStandardError().toStdString();
    }
    EXPECT_EQ(count(u"Item"_qs), 24);
    EXPECT_EQ(count(u"RecentItem"_qs), 24);
}

// Writes killed at random moments: the store stays whole, and every write a command reported
// done is in it.
TEST_F(ProcessTest, KillingTamoWhileItWritesLosesNothingReportedDone)
{
    ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    const QString document = firstDocument();
    const QString done = dir.filePath(u"done.log"_qs);
    const int trials = qEnvironmentVariableIntValue("TAMO_KILL_TRIALS") > 0
                           ? qEnvironmentVariableIntValue("TAMO_KILL_TRIALS")
                           : 30;
    QRandomGenerator random(20261123);
    for (int trial = 0; trial < trials; ++trial) {
        SCOPED_TRACE(trial);
        QProcess writer;
        writer.start(
            u"setsid"_qs,
            {u"bash"_qs, u"-c"_qs,
             QStringLiteral("for i in $(seq 1 40); do \"$0\" --store \"$1\" add-item \"$2\" "
                            "--title \"T%1-$i\" --price 1 --quantity 1 >/dev/null && "
                            "echo \"T%1-$i\" >> \"$3\"; done")
                 .arg(trial),
             program(), store, document, done});
        ASSERT_TRUE(writer.waitForStarted());
        QThread::msleep(random.bounded(100, 1500));
        killGroup(writer);

        const Outcome check = tamo({u"list"_qs});
        ASSERT_EQ(check.code, 0) << check.err.toStdString();
        ASSERT_EQ(queryText(storeFile(), u"PRAGMA integrity_check"_qs), u"ok");
        QStringList titles;
        for (const QString& title : readFile(done).split(u'\n', Qt::SkipEmptyParts)) {
            titles << title;
            ASSERT_EQ(
                queryText(
                    storeFile(),
                    QStringLiteral("SELECT COUNT(*) FROM Item WHERE title = '%1'").arg(title)),
                u"1")
                << title.toStdString();
        }
    }
}

TEST_F(ProcessTest, AFirstStartKilledHalfWayLoadsTheDesignsOnce)
{
    QRandomGenerator random(7);
    for (int trial = 0; trial < 12; ++trial) {
        SCOPED_TRACE(trial);
        const QString profile = dir.filePath(QStringLiteral("first-%1").arg(trial));
        QProcess first;
        first.start(u"setsid"_qs, {program(), u"--store"_qs, profile, u"list"_qs});
        ASSERT_TRUE(first.waitForStarted());
        QThread::msleep(random.bounded(20, 600));
        killGroup(first);
        ASSERT_EQ(tamo({u"list"_qs}, profile).code, 0);
        EXPECT_EQ(queryText(profile + u"/Tamo.zqdb"_qs, u"SELECT COUNT(*) FROM Design"_qs), u"13");
    }
}

TEST_F(ProcessTest, AFullDiskFailsTheBackupWithTheFileAndTheCause)
{
    ScratchFileSystem disk(512 << 10);
    if (!disk.available()) {
        GTEST_SKIP() << disk.reason().toStdString();
    }
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"400"_qs, u"--items-per-document"_qs,
                    u"8"_qs})
                  .code,
              0);
    const Outcome backup = tamo({u"backup-complete"_qs, disk.filePath(u"Archive.zqdb"_qs)});
    EXPECT_EQ(backup.code, 1);
    EXPECT_TRUE(backup.err.endsWith(
        QStringLiteral("\ntamo: The copy “%1” could not be written. The disk is full.\n")
            .arg(disk.filePath(u"Archive.tamo2db"_qs))))
        << backup.err.toStdString();
    EXPECT_EQ(QDir(disk.path()).entryList(QDir::Files | QDir::Hidden), QStringList());

    const QString created = tamo({u"new-invoice"_qs}).out;
    const QString document = created.trimmed().section(u' ', -1).remove(u'(').remove(u')');
    disk.fill();
    const Outcome einvoice =
        tamo({u"einvoice"_qs, document, disk.filePath(u"A.xml"_qs), u"--force"_qs});
    EXPECT_EQ(einvoice.code, 1);
    EXPECT_TRUE(einvoice.err.endsWith(
        QStringLiteral("tamo: The e-invoice could not be saved at %1. The disk is full.\n")
            .arg(disk.filePath(u"A.xml"_qs))))
        << einvoice.err.toStdString();
    EXPECT_EQ(QDir(disk.path()).entryList(QDir::Files), QStringList());
}

TEST_F(ProcessTest, AStoreInAReadOnlyFolderIsReadAndNotChanged)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"3"_qs}).code, 0);
    const QString document = firstDocument();
    ReadOnlyFolder readOnly(store);
    if (!readOnly.available()) {
        GTEST_SKIP() << readOnly.reason().toStdString();
    }
    const Outcome listed = tamo({u"list"_qs});
    EXPECT_EQ(listed.code, 0) << listed.err.toStdString();
    EXPECT_EQ(listed.out.count(u'\n'), 4);
    EXPECT_EQ(tamo({u"backup-invoices"_qs, dir.filePath(u"b.tamoinvoices"_qs)}).code, 0);
    const Outcome changed = tamo({u"add-item"_qs, document, u"--title"_qs, u"X"_qs, u"--price"_qs,
                                  u"1"_qs, u"--quantity"_qs, u"1"_qs});
    EXPECT_EQ(changed.code, 1);
    EXPECT_EQ(changed.err.count(u'\n'), 1) << changed.err.toStdString();
    EXPECT_TRUE(changed.err.contains(u"may only be read")) << changed.err.toStdString();
}

}  // namespace
