#include <QSignalSpy>

#include "model/context.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class UndoTest : public ::testing::Test {
protected:
    TempProfile dir;
    std::unique_ptr<Context> context = openContext(dir.path(QStringLiteral("Tamo.zqdb")));
};

TEST_F(UndoTest, AGroupIsUndoneAndRedoneAsOneStep)
{
    Record* invoice = context->insert("Invoice");
    invoice->setValue("title", u"Draft"_qs);
    {
        UndoGroup group(*context, QStringLiteral("Add Line"));
        Record* line = context->insert("Item");
        line->setValue("title", u"Design"_qs);
        invoice->addToMany("items", line);
        invoice->setValue("title", u"Invoice"_qs);
    }
    EXPECT_EQ(context->undoManager().undoActionName(), u"Add Line");

    context->undo();
    EXPECT_EQ(invoice->string("title"), u"Draft");
    EXPECT_TRUE(invoice->toMany("items").empty());
    EXPECT_EQ(context->fetch("Item").size(), 0u);

    context->redo();
    EXPECT_EQ(invoice->string("title"), u"Invoice");
    ASSERT_EQ(invoice->toMany("items").size(), 1u);
    EXPECT_EQ(invoice->toMany("items").front()->string("title"), u"Design");
}

TEST_F(UndoTest, EachUngroupedChangeIsItsOwnStep)
{
    Record* invoice = context->insert("Invoice");
    invoice->setValue("number", u"1"_qs);
    invoice->setValue("number", u"2"_qs);
    context->undo();
    EXPECT_EQ(invoice->string("number"), u"1");
    context->undo();
    EXPECT_TRUE(invoice->value("number").isNull());
    context->undo();
    EXPECT_TRUE(invoice->isDeleted());
    EXPECT_FALSE(context->undoManager().canUndo());
}

TEST_F(UndoTest, ANewChangeClearsWhatCouldBeRedone)
{
    Record* invoice = context->insert("Invoice");
    invoice->setValue("title", u"a"_qs);
    context->undo();
    EXPECT_TRUE(context->undoManager().canRedo());
    invoice->setValue("subject", u"b"_qs);
    EXPECT_FALSE(context->undoManager().canRedo());
}

TEST_F(UndoTest, UndoingAnEditMadeBeforeASaveMakesTheStoreChangedAgain)
{
    Record* invoice = context->insert("Invoice");
    invoice->setValue("title", u"a"_qs);
    ASSERT_TRUE(context->save());
    context->undo();
    EXPECT_TRUE(context->hasChanges());
    ASSERT_TRUE(context->save());
    auto reopened = openContext(context->path());
    EXPECT_TRUE(reopened->fetch("Invoice").front()->value("title").isNull());
}

TEST_F(UndoTest, ChangesAreAnnouncedOncePerGroup)
{
    QSignalSpy spy(context.get(), &Context::objectsDidChange);
    {
        UndoGroup group(*context, QStringLiteral("New Invoice"));
        Record* invoice = context->insert("Invoice");
        invoice->setValue("title", u"a"_qs);
        invoice->setValue("subject", u"b"_qs);
        EXPECT_EQ(spy.count(), 0);
    }
    ASSERT_EQ(spy.count(), 1);
    const auto changes = spy.front().front().value<ChangeSet>();
    EXPECT_EQ(changes.inserted.size(), 1u);
    context->undo();
    ASSERT_EQ(spy.count(), 2);
    EXPECT_EQ(spy.back().front().value<ChangeSet>().deleted.size(), 1u);
}

TEST_F(UndoTest, BulkChangesCanBeMadeWithoutUndo)
{
    {
        WithoutUndo bulk(*context);
        for (int i = 0; i < 10; ++i) {
            context->insert("Invoice");
        }
    }
    EXPECT_FALSE(context->undoManager().canUndo());
    EXPECT_TRUE(context->hasChanges());
}

}  // namespace
