#include "model/appsession.h"
#include "platform/scriptedprompter.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class AppSessionTest : public SessionTest {
protected:
    // An unsaved edit whose save the store file refuses.
    Record* unsavableEdit()
    {
        Context* context = session.managedObjectContext();
        Record* r = context->insert("Invoice");
        EXPECT_TRUE(session.saveContext());
        execSql(dir.storePath(),
                QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON Invoice "
                               "BEGIN SELECT RAISE(ABORT, 'disk I/O error'); END"));
        r->setValue("title", u"unsaved"_qs);
        return r;
    }
};

TEST_F(AppSessionTest, LaunchMarksTheRunUncleanAndAppliesOneTimeSteps)
{
    int assistant = 0, notice = 0;
    session.hooks().showSetupAssistant = [&] { ++assistant; };
    session.hooks().showEinvoiceNotice = [&] { ++notice; };
    settings.set(key::isTerminatedFine, true);

    session.applicationDidFinishLaunching();
    EXPECT_FALSE(settings.boolean(key::isTerminatedFine));
    EXPECT_EQ(assistant, 1);
    EXPECT_EQ(notice, 1);
    EXPECT_EQ(settings.integer(key::itemSortOrder), 1);

    settings.set(key::firstStartEverDone, true);
    session.applicationDidFinishLaunching();
    EXPECT_EQ(assistant, 1);
    EXPECT_EQ(notice, 1);  // shown once ever
}

TEST_F(AppSessionTest, QuittingWithoutAStoreEndsCleanly)
{
    EXPECT_EQ(session.applicationShouldTerminate(), AppSession::TerminateReply::Now);
    EXPECT_TRUE(settings.boolean(key::isTerminatedFine));
    EXPECT_EQ(settings.integer(key::fetchedObjectsCount), 0);
}

TEST_F(AppSessionTest, QuittingSavesAndCountsTheDocuments)
{
    Context* context = session.managedObjectContext();
    for (int i = 0; i < 3; ++i) {
        context->insert("Invoice");
    }
    EXPECT_EQ(session.applicationShouldTerminate(), AppSession::TerminateReply::Now);
    EXPECT_TRUE(settings.boolean(key::isTerminatedFine));
    EXPECT_EQ(settings.integer(key::fetchedObjectsCount), 3);
    EXPECT_FALSE(context->hasChanges());
    EXPECT_EQ(queryText(dir.storePath(), QStringLiteral("SELECT COUNT(*) FROM Invoice")), u"3");
}

TEST_F(AppSessionTest, AnEditThatCannotBeCommittedKeepsTheApplicationOpen)
{
    session.managedObjectContext();
    session.hooks().commitEditing = [] { return false; };
    EXPECT_EQ(session.applicationShouldTerminate(), AppSession::TerminateReply::Cancel);
    EXPECT_FALSE(settings.boolean(key::isTerminatedFine));
}

TEST_F(AppSessionTest, AFailedSaveThenCancelKeepsTheChangesInMemory)
{
    Record* edited = unsavableEdit();
    prompter.queueAnswer(QStringLiteral("Cancel"));

    EXPECT_EQ(session.applicationShouldTerminate(), AppSession::TerminateReply::Cancel);
    ASSERT_EQ(prompter.errors().size(), 1);
    EXPECT_TRUE(prompter.errors()[0].text().contains(u"disk I/O error"));
    ASSERT_EQ(prompter.alerts().size(), 1);
    const Alert& question = prompter.alerts()[0];
    EXPECT_EQ(question.title, u"Could not save changes while quitting. Quit anyway?");
    EXPECT_EQ(question.text,
              u"Quitting now will lose any changes you have made since the last successful save");
    EXPECT_EQ(question.buttons, (QStringList{u"Quit anyway"_qs, u"Cancel"_qs}));
    EXPECT_FALSE(settings.boolean(key::isTerminatedFine));
    EXPECT_TRUE(session.context()->hasChanges());
    EXPECT_EQ(edited->string("title"), u"unsaved");
}

TEST_F(AppSessionTest, AFailedSaveThenQuitAnywayQuits)
{
    unsavableEdit();
    prompter.queueAnswer(QStringLiteral("Quit anyway"));
    EXPECT_EQ(session.applicationShouldTerminate(), AppSession::TerminateReply::Now);
}

TEST_F(AppSessionTest, ARecoveredSaveErrorCancelsWithoutAsking)
{
    unsavableEdit();
    prompter.setErrorRecovery(true);
    EXPECT_EQ(session.applicationShouldTerminate(), AppSession::TerminateReply::Cancel);
    EXPECT_TRUE(prompter.alerts().isEmpty());
    EXPECT_FALSE(settings.boolean(key::isTerminatedFine));
}

TEST_F(AppSessionTest, WillTerminateRemembersTheSelectedDesign)
{
    session.hooks().selectedDesignIndex = [] { return 7; };
    session.applicationWillTerminate();
    EXPECT_EQ(settings.integer(key::selectedDesign), 7);
}

TEST_F(AppSessionTest, AFailedSaveIsPresentedAndTheEditKept)
{
    Record* edited = unsavableEdit();
    EXPECT_FALSE(session.saveContext());
    EXPECT_EQ(prompter.errors().size(), 1);
    EXPECT_EQ(edited->string("title"), u"unsaved");
}

}  // namespace
