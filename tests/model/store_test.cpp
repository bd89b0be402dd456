#include <QDateTime>
#include <cmath>

#include "model/context.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class StoreTest : public ::testing::Test {
protected:
    TempProfile dir;
    QString file = dir.path(QStringLiteral("Tamo.zqdb"));
};

TEST_F(StoreTest, EveryAttributeOfEveryEntityRoundTripsThroughTheFile)
{
    QMap<QString, QString> ids;
    {
        auto context = openContext(file);
        for (const EntityDescription& entity : context->model().entities()) {
            Record* r = context->insert(entity.name());
            for (size_t i = 1; i < entity.attributes().size(); ++i) {  // keep the uniqueID
                r->setValueAt(int(i), sampleValue(entity.attributes()[i].type, i));
            }
            ids[entity.qName()] = r->uniqueID();
        }
        ASSERT_TRUE(context->save());
    }
    auto context = openContext(file);
    for (const EntityDescription& entity : context->model().entities()) {
        SCOPED_TRACE(entity.name());
        const auto records = context->fetch(entity.name());
        ASSERT_EQ(records.size(), 1u);
        EXPECT_EQ(records[0]->uniqueID(), ids[entity.qName()]);
        for (size_t i = 1; i < entity.attributes().size(); ++i) {
            EXPECT_EQ(records[0]->valueAt(int(i)), sampleValue(entity.attributes()[i].type, i))
                << entity.attributes()[i].key;
        }
    }
}

TEST_F(StoreTest, MissingValuesStayMissingAndEmptyTextStaysEmpty)
{
    {
        auto context = openContext(file);
        Record* r = context->insert("Invoice");
        r->setValue("title", u""_qs);
        ASSERT_TRUE(context->save());
    }
    auto context = openContext(file);
    Record* r = context->fetch("Invoice").front();
    EXPECT_TRUE(r->value("number").isNull());
    EXPECT_FALSE(r->value("title").isNull());
    EXPECT_TRUE(r->value("amount").isNull());
    EXPECT_EQ(r->decimal("amount"), 0.0);
    EXPECT_FALSE(r->boolean("isPaid"));
    EXPECT_FALSE(r->date("due").isValid());
}

TEST_F(StoreTest, NumbersAreStoredInTheAttributesType)
{
    auto context = openContext(file);
    Record* r = context->insert("Invoice");
    r->setValue("amount", 3);    // an integer into a decimal
    r->setValue("status", 2.9);  // a decimal into an integer truncates
    r->setValue("isPaid", 1);    // a number into a boolean
    EXPECT_EQ(r->value("amount").type(), AttributeType::Decimal);
    EXPECT_EQ(r->integer("status"), 2);
    EXPECT_EQ(r->value("isPaid"), Value(true));
    r->setValue("status", 1e12);  // from a foreign file: saturates rather than wrapping
    EXPECT_EQ(r->integer("status"), std::numeric_limits<qint32>::max());
    EXPECT_EQ(Value(-1e300).toInt(), std::numeric_limits<qint32>::min());
}

TEST_F(StoreTest, NewRecordsGetDistinctUniqueIDs)
{
    auto context = openContext(file);
    QSet<QString> ids;
    for (int i = 0; i < 100; ++i) {
        ids.insert(context->insert("Item")->uniqueID());
    }
    EXPECT_EQ(ids.size(), 100);
}

TEST_F(StoreTest, DeletingADocumentDeletesItsLinesAndUndoBringsThemBack)
{
    auto context = openContext(file);
    Record* invoice = context->insert("Invoice");
    for (int i = 0; i < 3; ++i) {
        context->insert("Item")->setToOne("invoice", invoice);
    }
    ASSERT_TRUE(context->save());

    context->remove(invoice);
    EXPECT_TRUE(context->fetch("Item").empty());
    ASSERT_TRUE(context->save());
    EXPECT_EQ(queryText(file, QStringLiteral("SELECT COUNT(*) FROM Item")), u"0");

    context->undo();  // after the save, as a user may
    EXPECT_EQ(context->fetch("Invoice").size(), 1u);
    EXPECT_EQ(invoice->toMany("items").size(), 3u);
    ASSERT_TRUE(context->save());
    auto reopened = openContext(file);
    EXPECT_EQ(reopened->fetch("Invoice").front()->toMany("items").size(), 3u);
}

TEST_F(StoreTest, LinesLoadOnlyWhenTheirDocumentIsOpened)
{
    {
        auto context = openContext(file);
        for (int d = 0; d < 5; ++d) {
            Record* invoice = context->insert("Invoice");
            for (int i = 0; i < 4; ++i) {
                context->insert("Item")->setToOne("invoice", invoice);
            }
        }
        ASSERT_TRUE(context->save());
    }
    auto context = openContext(file);
    const auto documents = context->fetch("Invoice");
    EXPECT_EQ(documents.size(), 5u);
    EXPECT_EQ(context->materialisedCount("Item"), 0);
    const auto& lines = documents[2]->toMany("items");
    EXPECT_EQ(lines.size(), 4u);
    EXPECT_EQ(context->materialisedCount("Item"), 4);
    EXPECT_EQ(lines.front()->toOne("invoice"), documents[2]);
}

TEST_F(StoreTest, MovingALineUpdatesBothDocumentsBeforeAndAfterSaving)
{
    Record *a, *b, *line;
    auto context = openContext(file);
    a = context->insert("Invoice");
    b = context->insert("Invoice");
    line = context->insert("Item");
    a->addToMany("items", line);
    ASSERT_TRUE(context->save());
    auto reopened = openContext(file);
    const auto docs = reopened->fetch("Invoice", {}, {});
    Record* ra = docs[0];
    Record* rb = docs[1];
    Record* rl = ra->toMany("items").front();
    rl->setToOne("invoice", rb);  // rb's lines were never loaded
    EXPECT_TRUE(ra->toMany("items").empty());
    ASSERT_EQ(rb->toMany("items").size(), 1u);
    ASSERT_TRUE(reopened->save());
    auto third = openContext(file);
    EXPECT_TRUE(third->fetch("Invoice")[0]->toMany("items").empty());
    EXPECT_EQ(third->fetch("Invoice")[1]->toMany("items").size(), 1u);
    (void)b;
    (void)line;
}

TEST_F(StoreTest, AFailedSaveWritesNothingAndKeepsTheChangesInMemory)
{
    auto context = openContext(file);
    Record* kept = context->insert("Invoice");
    kept->setValue("title", u"before"_qs);
    ASSERT_TRUE(context->save());

    // Another program refuses the update, as a full disk or a locked file would.
    execSql(file, QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON Invoice "
                                 "BEGIN SELECT RAISE(ABORT, 'database or disk is full'); END"));
    context->insert("Invoice")->setValue("title", u"new"_qs);
    kept->setValue("title", u"after"_qs);
    auto saved = context->save();
    ASSERT_FALSE(saved);
    EXPECT_TRUE(saved.error().text().contains(u"disk is full"));
    EXPECT_TRUE(context->hasChanges());
    EXPECT_EQ(kept->string("title"), u"after");
    EXPECT_EQ(queryText(file, QStringLiteral("SELECT COUNT(*) FROM Invoice")), u"1");

    execSql(file, QStringLiteral("DROP TRIGGER refuse"));
    ASSERT_TRUE(context->save());
    EXPECT_FALSE(context->hasChanges());
    EXPECT_EQ(
        queryText(
            file,
            QStringLiteral("SELECT title FROM Invoice WHERE pk = %1").arg(kept->primaryKey())),
        u"after");
}

TEST_F(StoreTest, SaveWritesOnlyWhatChanged)
{
    auto context = openContext(file);
    for (int i = 0; i < 3; ++i) {
        context->insert("Invoice")->setValue("title", u"t"_qs);
    }
    ASSERT_TRUE(context->save());
    execSql(file, QStringLiteral("CREATE TABLE log (pk INTEGER);"
                                 "CREATE TRIGGER spy AFTER UPDATE ON Invoice "
                                 "BEGIN INSERT INTO log VALUES (new.pk); END"));
    Record* second = context->fetch("Invoice")[1];
    second->setValue("title", u"changed"_qs);
    ASSERT_TRUE(context->save());
    EXPECT_EQ(queryText(file, QStringLiteral("SELECT group_concat(pk) FROM log")),
              QString::number(second->primaryKey()));
}

TEST_F(StoreTest, RollbackForgetsEveryUnsavedChange)
{
    auto context = openContext(file);
    Record* kept = context->insert("Invoice");
    kept->setValue("title", u"saved"_qs);
    Record* line = context->insert("Item");
    line->setToOne("invoice", kept);
    ASSERT_TRUE(context->save());

    kept->setValue("title", u"edited"_qs);
    Record* added = context->insert("Invoice");
    context->remove(line);
    context->rollback();

    EXPECT_FALSE(context->hasChanges());
    EXPECT_EQ(kept->string("title"), u"saved");
    EXPECT_TRUE(added->isDeleted());
    EXPECT_EQ(context->fetch("Invoice").size(), 1u);
    EXPECT_EQ(kept->toMany("items"), std::vector<Record*>{line});
    EXPECT_FALSE(context->undoManager().canUndo());
}

TEST_F(StoreTest, FetchFiltersAndSorts)
{
    auto context = openContext(file);
    for (auto [number, amount] : {std::pair{u"B", 5.0}, {u"A", 5.0}, {u"C", 1.0}}) {
        Record* r = context->insert("Invoice");
        r->setValue("number", QString::fromUtf16(number));
        r->setValue("amount", amount);
    }
    context->insert("Invoice");  // no number: sorts first
    const auto sorted =
        context->fetch("Invoice", [](const Record& r) { return r.decimal("amount") < 10; },
                       {{"amount", false}, {"number", true}});
    QStringList numbers;
    for (const Record* r : sorted) {
        numbers << r->string("number");
    }
    EXPECT_EQ(numbers, (QStringList{u"A"_qs, u"B"_qs, u"C"_qs, QString()}));
}

using StoreDeathTest = StoreTest;

TEST_F(StoreDeathTest, AKeyTheEntityLacksStopsTheProgram)
{
    auto context = openContext(file);
    Record* r = context->insert("Invoice");
    EXPECT_DEATH(r->value("totl"), "Invoice has no attribute \"totl\"");
    EXPECT_DEATH(r->setValue("title", 3), "Invoice.title holds string values, not integer");
    EXPECT_DEATH(r->toMany("lines"), "Invoice has no to-many relationship \"lines\"");
}

}  // namespace
