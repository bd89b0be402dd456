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

TEST_F(DocumentCommandsTest, WhatTheEditorEditsACommandEdits)
{
    ASSERT_EQ(tamo({u"settings"_qs, u"set"_qs, u"beforeTaxesBool"_qs, u"true"_qs}).code, 0);
    ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    const CommandOutcome set =
        tamo({u"set"_qs, u"R1"_qs, u"title=Final invoice"_qs, u"due=2026-04-30"_qs,
              u"isShippingEnabled=yes"_qs, u"shippingAmount=1.234,50"_qs,
              u"isDiscountEnabled=yes"_qs, u"discountKind=1"_qs, u"discountPercent=10"_qs});
    ASSERT_EQ(set.code, 0) << set.err.toStdString();
    EXPECT_EQ(set.out,
              u"R1: changed title, due, isShippingEnabled, shippingAmount, "
              u"isDiscountEnabled, discountKind, discountPercent; its total is now "
              u"1234.50\n");
    const QJsonObject listed =
        QJsonDocument::fromJson(tamo({u"list"_qs, u"--json"_qs}).out.toUtf8())
            .array()[0]
            .toObject();
    EXPECT_EQ(listed[u"title"].toString(), u"Final invoice");
    EXPECT_TRUE(listed[u"due"].toString().startsWith(u"2026-04-"));

    ASSERT_EQ(tamo({u"add-item"_qs, u"R1"_qs, u"--title"_qs, u"Logo"_qs, u"--price"_qs, u"100"_qs,
                    u"--quantity"_qs, u"2"_qs})
                  .code,
              0);
    ASSERT_EQ(tamo({u"add-item"_qs, u"R1"_qs, u"--title"_qs, u"Icons"_qs, u"--price"_qs, u"50"_qs,
                    u"--quantity"_qs, u"1"_qs})
                  .code,
              0);
    EXPECT_EQ(tamo({u"lines"_qs, u"R1"_qs}).out.count(u'\n'), 2);
    const CommandOutcome edited =
        tamo({u"edit-line"_qs, u"R1"_qs, u"2"_qs, u"price=60"_qs, u"title=Icon set"_qs});
    ASSERT_EQ(edited.code, 0) << edited.err.toStdString();
    EXPECT_TRUE(tamo({u"lines"_qs, u"R1"_qs}).out.contains(u"Icon set"));
    EXPECT_EQ(tamo({u"delete-line"_qs, u"R1"_qs, u"1"_qs}).code, 1);  // asked, not answered
    EXPECT_EQ(tamo({u"delete-line"_qs, u"R1"_qs, u"1"_qs, u"--yes"_qs}).code, 0);
    EXPECT_EQ(tamo({u"lines"_qs, u"R1"_qs}).out.count(u'\n'), 1);

    // Mistakes are refused before anything changes; a sent document keeps its fields.
    const std::pair<QStringList, int> refused[] = {
        {{u"set"_qs, u"R1"_qs, u"colour=red"_qs}, 2},
        {{u"set"_qs, u"R1"_qs, u"due=tomorrow"_qs}, 2},
        {{u"set"_qs, u"R1"_qs, u"status=2"_qs}, 2},
        {{u"edit-line"_qs, u"R1"_qs, u"5"_qs, u"price=1"_qs}, 1},
        // Amounts Tamo cannot calculate with, as in the editor.
        {{u"set"_qs, u"R1"_qs, u"discountPercent=150"_qs}, 2},
        {{u"edit-line"_qs, u"R1"_qs, u"2"_qs, u"price=nan"_qs}, 1},
        {{u"edit-line"_qs, u"R1"_qs, u"2"_qs, u"quantity=1e9"_qs, u"price=1e6"_qs}, 1},
    };
    for (const auto& [words, code] : refused) {
        EXPECT_EQ(tamo(words).code, code) << words.join(u' ').toStdString();
    }
    ASSERT_EQ(tamo({u"set-status"_qs, u"R1"_qs, u"1"_qs}).code, 0);
    const CommandOutcome locked = tamo({u"set"_qs, u"R1"_qs, u"title=Changed"_qs});
    EXPECT_EQ(locked.code, 1);
    EXPECT_TRUE(locked.err.contains(u"already sent"));
    EXPECT_EQ(tamo({u"set"_qs, u"R1"_qs, u"status=0"_qs, u"title=Changed"_qs}).code, 1);
    EXPECT_EQ(tamo({u"edit-line"_qs, u"R1"_qs, u"1"_qs, u"price=1"_qs}).code, 1);
}

// A command is a run of the application: the next start knows how it ended and what it left.
TEST_F(DocumentCommandsTest, ACommandStartsAndQuitsAsTheWindowDoes)
{
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    }
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"fetchedObjectsCount"_qs}).out, u"3\n");
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"isTerminatedFine"_qs}).out, u"true\n");
    ASSERT_EQ(tamo({u"--yes"_qs, u"delete"_qs, u"R3"_qs}).code, 0);
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"fetchedObjectsCount"_qs}).out, u"2\n");
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
