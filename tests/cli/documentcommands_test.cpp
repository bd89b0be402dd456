#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class DocumentCommandsTest : public ::testing::Test {
protected:
    TempProfile dir;
    QString store = dir.path(u"store"_qs);

    CommandOutcome tamo(const QStringList& words) { return runTamo(store, words); }
    QStringList numbers()
    {
        QStringList n;
        const auto docs = QJsonDocument::fromJson(tamo({u"list"_qs, u"--json"_qs}).out.toUtf8());
        for (const QJsonValue& d : docs.array()) {
            n << d[u"number"].toString();
        }
        n.sort();
        return n;
    }
    void SetUp() override
    {
        for (auto [k, v] : {std::pair{u"invHaveNumber"_qs, u"true"_qs},
                            {u"invPattern"_qs, u"R%COUNT%"_qs},
                            {u"quotHaveNumber"_qs, u"true"_qs},
                            {u"quotPattern"_qs, u"Q%COUNT%"_qs}}) {
            ASSERT_EQ(tamo({u"settings"_qs, u"set"_qs, k, v}).code, 0);
        }
    }
};

// Each command is its own process in real use: the numbers must come out right across them.
TEST_F(DocumentCommandsTest, ADayOfWorkFromTheCommandLine)
{
    EXPECT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    EXPECT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    EXPECT_EQ(tamo({u"new-quote"_qs}).code, 0);
    EXPECT_EQ(numbers(), (QStringList{u"Q1"_qs, u"R1"_qs, u"R2"_qs}));

    // Questions are refused without --yes, and the store stays as it was.
    const CommandOutcome refused = tamo({u"convert"_qs, u"Q1"_qs});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.err.contains(u"Convert Into Invoice"));
    EXPECT_EQ(tamo({u"--yes"_qs, u"convert"_qs, u"Q1"_qs}).code, 0);
    EXPECT_EQ(numbers(), (QStringList{u"R1"_qs, u"R2"_qs, u"R3"_qs}));

    EXPECT_EQ(tamo({u"duplicate"_qs, u"R1"_qs}).out.section(u' ', 0, 2), u"Created invoice R4");
    EXPECT_EQ(tamo({u"--yes"_qs, u"delete"_qs, u"R4"_qs, u"--adjust-counter"_qs}).code, 0);
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"invCount"_qs}).out, u"1\n");
    EXPECT_EQ(tamo({u"--yes"_qs, u"delete"_qs, u"R3"_qs}).code, 0);  // counter question: Cancel
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"invCount"_qs}).out, u"1\n");

    EXPECT_EQ(tamo({u"set-status"_qs, u"R2"_qs, u"4"_qs, u"--paid-amount"_qs, u"10"_qs}).code, 0);
    const QJsonArray partly =
        QJsonDocument::fromJson(tamo({u"filter"_qs, u"2"_qs, u"--json"_qs}).out.toUtf8()).array();
    ASSERT_EQ(partly.size(), 1);
    EXPECT_EQ(partly[0][u"number"].toString(), u"R2");
    EXPECT_EQ(tamo({u"dispatch"_qs, u"R1"_qs}).code, 0);
}

TEST_F(DocumentCommandsTest, NamingADocumentThatIsNotThereChangesNothing)
{
    tamo({u"new-invoice"_qs});
    const CommandOutcome missing = tamo({u"--yes"_qs, u"delete"_qs, u"R9"_qs});
    EXPECT_EQ(missing.code, 1);
    EXPECT_EQ(missing.err, u"tamo: there is no document R9\n");
    EXPECT_EQ(tamo({u"set-status"_qs, u"R1"_qs, u"7"_qs}).code, 2);
    EXPECT_EQ(numbers(), (QStringList{u"R1"_qs}));
}

}  // namespace
