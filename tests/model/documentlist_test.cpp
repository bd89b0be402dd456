#include <QSignalSpy>

#include "model/documentlist.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class DocumentListTest : public ::testing::Test {
protected:
    TempProfile dir;
    std::unique_ptr<Context> context = openContext(dir.path(QStringLiteral("Tamo.zqdb")));
    DocumentList list;

    Record* add(const char16_t* number, const char16_t* client, int day)
    {
        UndoGroup action(*context, u"New Invoice"_qs);  // the list re-sorts once per action
        Record* r = context->insert("Invoice");
        r->setValue("number", QString::fromUtf16(number));
        r->setValue("customerName", QString::fromUtf16(client));
        r->setValue("date", QDateTime(QDate(2026, 1, day), QTime(12, 0), Qt::UTC));
        return r;
    }
    QStringList numbers() const
    {
        QStringList n;
        for (const Record* r : list.arranged()) {
            n << r->string("number");
        }
        return n;
    }
};

TEST_F(DocumentListTest, ListsNewestFirstAndFollowsInsertsAndDeletes)
{
    add(u"1", u"Acme", 1);
    Record* second = add(u"2", u"Müller GmbH", 3);
    list.setContext(context.get());
    EXPECT_EQ(numbers(), (QStringList{u"2"_qs, u"1"_qs}));

    add(u"3", u"Acme", 2);
    EXPECT_EQ(numbers(), (QStringList{u"2"_qs, u"3"_qs, u"1"_qs}));
    list.setSelection({second});
    QSignalSpy selection(&list, &DocumentList::selectionChanged);
    context->remove(second);
    EXPECT_EQ(numbers(), (QStringList{u"3"_qs, u"1"_qs}));
    EXPECT_EQ(list.current(), nullptr);
    EXPECT_EQ(selection.count(), 1);
    context->undo();
    EXPECT_EQ(numbers().size(), 3);
}

TEST_F(DocumentListTest, SearchAndFilterNarrowTheList)
{
    add(u"RE-1", u"Acme", 1);
    add(u"RE-2", u"Müller GmbH", 2)->setValue("kind", 1);
    add(u"AN-3", u"müller & Söhne", 3);
    list.setContext(context.get());
    list.setSearchText(QStringLiteral("MÜLLER"));
    EXPECT_EQ(numbers(), (QStringList{u"AN-3"_qs, u"RE-2"_qs}));
    list.setFilter(1, [](const Record& r) { return r.integer("kind") == 1; });
    EXPECT_EQ(numbers(), (QStringList{u"RE-2"_qs}));
    list.setSearchText({});
    list.setFilter(0, {});
    EXPECT_EQ(numbers().size(), 3);
}

TEST_F(DocumentListTest, EditsAreAnnouncedWithoutReordering)
{
    Record* a = add(u"1", u"Acme", 1);
    add(u"2", u"Bolt", 2);
    list.setContext(context.get());
    QSignalSpy changed(&list, &DocumentList::documentsChanged);
    a->setValue("date", QDateTime(QDate(2026, 2, 1), QTime(12, 0), Qt::UTC));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(numbers(), (QStringList{u"2"_qs, u"1"_qs}));  // until the list is re-sorted
    list.rearrange();
    EXPECT_EQ(numbers(), (QStringList{u"1"_qs, u"2"_qs}));
}

}  // namespace
