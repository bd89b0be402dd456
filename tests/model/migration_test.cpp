#include <QFile>

#include "model/context.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class MigrationTest : public ::testing::Test {
protected:
    TempProfile dir;
    QString file = dir.path(QStringLiteral("Tamo.zqdb"));

    void SetUp() override
    {
        execSql(file, readFile(QStringLiteral(TAMO_TEST_DATA "/store-v1.sql")));
    }
};

TEST_F(MigrationTest, AStoreOfTheFirstLayoutOpensAndGainsWhatIsNew)
{
    auto context = openContext(file);
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(queryText(file, u"SELECT value FROM meta WHERE key = 'schemaVersion'"_qs),
              QString::number(Model::kSchemaVersion));

    const auto documents = context->fetch("Invoice", {}, {{"number", true}});
    ASSERT_EQ(documents.size(), 2u);
    Record* invoice = documents[1];
    EXPECT_EQ(invoice->string("number"), u"RE-2019-0042");
    EXPECT_EQ(invoice->string("customerName"), u"Bäckerei Horn");
    EXPECT_EQ(invoice->decimal("amount"), 119.0);
    EXPECT_EQ(invoice->date("date").toMSecsSinceEpoch(), 1546300800500);
    EXPECT_TRUE(invoice->boolean("isPaid"));
    EXPECT_TRUE(invoice->value("taxExclusiveAmount").isNull());  // new, not yet calculated
    ASSERT_EQ(invoice->toMany("items").size(), 1u);
    EXPECT_EQ(invoice->toMany("items").front()->decimal("unitCount"), 2.5);
    EXPECT_EQ(context->fetch("Address").front()->string("city"), u"Lübeck");
    EXPECT_EQ(context->fetch("Design").front()->string("title"), u"Classic");

    // What is new can be written and read back.
    invoice->setValue("taxExclusiveAmount", 100.0);
    Record* preset = context->insert("Template");
    preset->addToMany("items", context->insert("Item"));
    ASSERT_TRUE(context->save());
    auto reopened = openContext(file);
    EXPECT_EQ(reopened->fetch("Invoice", {}, {{"number", true}})[1]->decimal("taxExclusiveAmount"),
              100.0);
    EXPECT_EQ(reopened->fetch("Template").front()->toMany("items").size(), 1u);
}

TEST_F(MigrationTest, AStoreFromANewerVersionIsRefusedAndLeftAlone)
{
    execSql(file, QStringLiteral("UPDATE meta SET value = '%1' WHERE key = 'schemaVersion'")
                      .arg(Model::kSchemaVersion + 1));
    auto context = Context::open(file);
    ASSERT_FALSE(context);
    EXPECT_TRUE(context.error().message.contains(u"newer version of Tamo"));
    EXPECT_EQ(queryText(file, u"SELECT COUNT(*) FROM sqlite_master WHERE name = 'Template'"_qs),
              u"0");
}

}  // namespace
