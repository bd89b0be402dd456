#include <QDir>
#include <QFile>

#include "model/appsession.h"
#include "model/storelocation.h"
#include "platform/scriptedprompter.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

using StoreLocationTest = SessionTest;

TEST_F(StoreLocationTest, TheStoreLivesInTheSupportFolderByDefault)
{
    ASSERT_NE(session.managedObjectContext(), nullptr);
    EXPECT_EQ(session.context()->path(), dir.storePath());
    EXPECT_TRUE(QFile::exists(dir.storePath()));
    EXPECT_EQ(queryText(dir.storePath(), QStringLiteral("PRAGMA journal_mode")), u"wal");
}

TEST_F(StoreLocationTest, AFileWhereTheSupportFolderBelongsIsError101AndNoStore)
{
    writeFile(dir.profile().supportFolder, "not a folder");
    EXPECT_EQ(session.managedObjectContext(), nullptr);
    ASSERT_EQ(prompter.errors().size(), 2);
    EXPECT_EQ(prompter.errors()[0].code, 101);
    EXPECT_EQ(prompter.errors()[0].domain, u"YOUR_ERROR_DOMAIN");
    EXPECT_EQ(prompter.errors()[0].message,
              QStringLiteral("Expected a folder to store application data, found a file (%1).")
                  .arg(dir.profile().supportFolder));
    EXPECT_EQ(prompter.errors()[1].message, u"Failed to initialize the store");
    EXPECT_EQ(prompter.errors()[1].reason, u"There was an error building up the data file.");
    // The file is left alone and no store appears anywhere else.
    EXPECT_EQ(readFile(dir.profile().supportFolder), u"not a folder");
    EXPECT_EQ(session.managedObjectContext(), nullptr);
}

TEST_F(StoreLocationTest, ACustomFolderIsCreatedAndUsed)
{
    const QString custom = dir.path(QStringLiteral("Sync/Books"));
    settings.set(key::useCustomPath, true);
    settings.set(key::customDatabasePath, custom);
    ASSERT_NE(session.managedObjectContext(), nullptr);
    EXPECT_EQ(session.context()->path(), custom + u"/Tamo.zqdb"_qs);
    EXPECT_TRUE(QFile::exists(custom + u"/Tamo.zqdb"_qs));
}

TEST_F(StoreLocationTest, MovingTheStoreReplacesOldFilesAtTheTargetAfterABackup)
{
    QStringList steps;
    session.hooks().completeBackup = [&] {
        steps << u"backup"_qs;
        return true;
    };
    session.hooks().relaunch = [&] { steps << u"relaunch"_qs; };
    session.hooks().selectedDesignIndex = [] { return 4; };
    Context* context = session.managedObjectContext();
    context->insert("Invoice")->setValue("number", u"RE-1"_qs);
    ASSERT_TRUE(session.saveContext());
    context->insert("Invoice")->setValue("number", u"RE-2"_qs);  // not yet saved

    const QString target = dir.path(QStringLiteral("elsewhere"));
    writeFile(target + u"/Tamo.zqdb"_qs, "an old store");
    writeFile(target + u"/Tamo.zqdb-wal"_qs, "stale");
    settings.set(key::useCustomPath, true);
    settings.set(key::customDatabasePath, target);

    ASSERT_TRUE(session.customPathChanged());
    EXPECT_EQ(steps, (QStringList{u"backup"_qs, u"relaunch"_qs}));
    EXPECT_EQ(settings.integer(key::selectedDesign), 4);
    EXPECT_FALSE(QFile::exists(target + u"/Tamo.zqdb-wal"_qs));
    auto moved = openContext(target + u"/Tamo.zqdb"_qs);
    EXPECT_EQ(moved->count("Invoice"), 2);
}

TEST_F(StoreLocationTest, AFailedMoveKeepsTheSettingsPointingAtTheData)
{
    Context* context = session.managedObjectContext();
    ASSERT_NE(context, nullptr);
    const QString blocked = dir.path(QStringLiteral("blocked"));
    writeFile(blocked, "a file where the folder should be");
    settings.set(key::useCustomPath, true);
    settings.set(key::customDatabasePath, blocked);

    EXPECT_FALSE(session.customPathChanged());
    ASSERT_EQ(prompter.errors().size(), 1);
    EXPECT_EQ(prompter.errors()[0].code, 101);
    EXPECT_FALSE(settings.boolean(key::useCustomPath));
    EXPECT_EQ(storeFilePath(settings, dir.profile()), dir.storePath());
}

TEST_F(StoreLocationTest, ChoosingTheFolderTheStoreIsAlreadyInMovesNothing)
{
    bool relaunched = false;
    session.hooks().relaunch = [&] { relaunched = true; };
    ASSERT_NE(session.managedObjectContext(), nullptr);
    settings.set(key::useCustomPath, true);
    settings.set(key::customDatabasePath, dir.profile().supportFolder + u"/"_qs);
    EXPECT_TRUE(session.customPathChanged());
    EXPECT_FALSE(relaunched);
    EXPECT_TRUE(QFile::exists(dir.storePath()));
}

}  // namespace
