#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "model/appsession.h"
#include "model/sqlite.h"
#include "model/storelock.h"
#include "support/scratchfs.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class StoreSafetyTest : public SessionTest {
protected:
    static constexpr AppSession::StoreUse kWindow{.lock = true, .window = true};

    // A store with `count` invoices of a few lines each, written and closed.
    void makeStore(int count)
    {
        QDir().mkpath(dir.profile().supportFolder);
        auto context = openContext(dir.storePath());
        for (int i = 0; i < count; ++i) {
            Record* invoice = context->insert("Invoice");
            invoice->setValue("number", QStringLiteral("RE-%1").arg(i));
            invoice->setValue("title", QString(200, u'x'));
            for (int j = 0; j < 5; ++j) {
                context->insert("Item")->setToOne("invoice", invoice);
            }
        }
        ASSERT_TRUE(context->save().has_value());
    }

    // A second session on the same profile, as another process would have.
    struct Other {
        Other(const Profile& profile, const AppSession::StoreUse& use)
            : settings(profile.settingsFile), session(profile, settings, clock, prompter)
        {
            session.setStoreUse(use);
        }
        Settings settings;
        FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC)};
        ScriptedPrompter prompter;
        AppSession session;
    };
};

TEST_F(StoreSafetyTest, ADamagedStoreIsAnErrorNotAnEmptyStore)
{
    makeStore(40);
    QFile file(dir.storePath());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(4096 * 3);
    file.write(QByteArray(4096, '\xff'));
    file.close();

    EXPECT_EQ(session.managedObjectContext(), nullptr);
    ASSERT_FALSE(prompter.errors().empty());
    const Error& error = prompter.errors()[0];
    EXPECT_TRUE(sql::isDamage(error.code));
    EXPECT_EQ(error.message, QStringLiteral("The store “%1” is damaged.").arg(dir.storePath()));
    EXPECT_TRUE(error.reason.contains(u"tamo recover"));
    ASSERT_TRUE(session.openFailure().has_value());
    EXPECT_EQ(session.documents().size(), 0u);
}

TEST_F(StoreSafetyTest, OneProcessWritesAStoreAtATime)
{
    makeStore(2);
    auto holder = std::make_unique<Other>(dir.profile(), kWindow);
    Context* window = holder->session.managedObjectContext();
    ASSERT_NE(window, nullptr);
    const QString lockFile = StoreLock::lockPathFor(dir.storePath());
    const LockHolder named = LockHolder::fromText(readFile(lockFile));
    EXPECT_EQ(named.pid, ::getpid());
    EXPECT_TRUE(named.window);

    // A command that writes is refused at once, with the holder named; the window keeps it.
    Other writer(dir.profile(), {.lock = true, .wait = std::chrono::seconds(5)});
    EXPECT_EQ(writer.session.managedObjectContext(), nullptr);
    ASSERT_EQ(writer.prompter.errors().size(), 1u);  // one line, no second message
    EXPECT_EQ(writer.prompter.errors()[0].message,
              QStringLiteral("The store “%1” is in use by the Tamo window (process %2, started "
                             "as “%3”).")
                  .arg(dir.storePath())
                  .arg(::getpid())
                  .arg(named.commandLine));
    ASSERT_TRUE(writer.session.lockHolder().has_value());
    EXPECT_EQ(writer.session.lockHolder()->pid, ::getpid());

    // A command that only reads runs beside it on the store as it was when it began.
    Other reader(dir.profile(), {.lock = true, .readsOnly = true});
    Context* snapshot = reader.session.managedObjectContext();
    ASSERT_NE(snapshot, nullptr);
    EXPECT_TRUE(reader.session.isReadOnly());
    EXPECT_TRUE(reader.session.readOnlyReason().contains(u"the Tamo window"));
    window->insert("Invoice");
    ASSERT_TRUE(holder->session.saveContext());
    EXPECT_EQ(snapshot->count("Invoice"), 2);
    EXPECT_EQ(snapshot->fetch("Item").size(), 10u);
    EXPECT_TRUE(reader.session.saveContext());  // nothing of the person's to keep

    // Once the window has let go, the lock file is gone and a command may write.
    holder.reset();
    EXPECT_FALSE(QFileInfo::exists(lockFile));
    Other next(dir.profile(), {.lock = true});
    ASSERT_NE(next.session.managedObjectContext(), nullptr);
    EXPECT_EQ(next.session.context()->count("Invoice"), 3);
}

TEST_F(StoreSafetyTest, TheLockOfAProcessThatEndedIsTakenOver)
{
    makeStore(1);
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    LockHolder dead = LockHolder::thisProcess(true);
    dead.pid = child;
    QFile lock(StoreLock::lockPathFor(dir.storePath()));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write(dead.toText().toUtf8());
    lock.close();

    session.setStoreUse({.lock = true});
    ASSERT_NE(session.managedObjectContext(), nullptr);
    EXPECT_EQ(LockHolder::fromText(readFile(lock.fileName())).pid, ::getpid());
}

TEST_F(StoreSafetyTest, AStoreInAReadOnlyFolderOpensForReading)
{
    makeStore(3);
    ReadOnlyFolder readOnly(dir.profile().supportFolder);
    if (!readOnly.available()) {
        GTEST_SKIP() << readOnly.reason().toStdString();
    }
    session.setStoreUse(kWindow);
    Context* context = session.managedObjectContext();
    ASSERT_NE(context, nullptr) << (prompter.errors().empty()
                                        ? std::string()
                                        : prompter.errors()[0].text().toStdString());
    EXPECT_TRUE(session.isReadOnly());
    EXPECT_TRUE(session.readOnlyReason().contains(dir.profile().supportFolder));
    EXPECT_EQ(session.documents().size(), 3u);
    EXPECT_EQ(context->fetch("Item").size(), 15u);

    // What the statistics pass works out stays in memory; an edit of the person is refused.
    {
        WithoutUndo automatic(*context);
        session.documents().at(0)->setValue("status", 2);
    }
    EXPECT_TRUE(session.saveContext());
    EXPECT_TRUE(prompter.errors().empty());
    Record* edited = session.documents().at(1);
    {
        UndoGroup group(*context, u"Edit Title"_qs);
        edited->setValue("title", u"changed"_qs);
    }
    EXPECT_FALSE(session.saveContext());
    ASSERT_EQ(prompter.errors().size(), 1u);
    EXPECT_TRUE(prompter.errors()[0].message.contains(u"open for reading only"));
    EXPECT_NE(edited->string("title"), u"changed");
}

}  // namespace
