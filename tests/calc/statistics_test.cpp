#include "calcfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

using StatisticsTest = CalcTest;

TEST_F(StatisticsTest, MovesSentInvoicesAroundTheDueDateAndRecordsFirstPayments)
{
    // Now is 2026-03-01 09:00 UTC.
    document(u"kind=0 status=1 amount=500 due=2025-01-01T12:00:00Z");
    Record* created = document(u"kind=1 status=0 amount=50 due=2025-01-01T12:00:00Z");
    Record* late = document(u"kind=1 status=1 amount=119.99 paidAmount=5 due=2026-02-28T09:00:00Z");
    Record* early = document(u"kind=1 status=2 amount=200 due=2026-03-02T09:00:00Z");
    Record* dueNow = document(u"kind=1 status=1 amount=10 due=2026-03-01T09:00:00Z");
    Record* paid = document(u"kind=1 status=3 amount=80.5 isPaid=false paid=2025-01-01T12:00:00Z");
    Record* partly = document(u"kind=1 status=4 amount=100 paidAmount=30.1 isPaid=false");
    // Beyond what a float holds exactly: the sums are taken in single precision.
    Record* paidBefore =
        document(u"kind=1 status=3 amount=16777217 isPaid=true paid=2025-01-01T12:00:00Z");

    totals.calculateDatabase();
    expectValues(created, u"status=0 dueAmount=null");
    expectValues(late, u"status=2 dueAmount=119.99 paidAmount=0");
    expectValues(early, u"status=1 dueAmount=0 paidAmount=null");
    expectValues(dueNow, u"status=1 dueAmount=0");
    expectValues(paid, u"paidAmount=80.5 dueAmount=0 isPaid=true paid=2026-03-01T09:00:00Z");
    // 100 − 30.1 in single precision.
    expectValues(partly,
                 u"paidAmount=30.1 dueAmount=69.9000015258789 isPaid=true "
                 u"paid=2026-03-01T09:00:00Z");
    expectValues(paidBefore, u"paidAmount=16777217 paid=2025-01-01T12:00:00Z");
    EXPECT_EQ(session.statistics(),
              (DocumentStatistics{16777726.0f, 16777326.0f, 189.88999938964844f, 6, 7, 1}));

    clock.advance(2 * 24 * 3600);
    totals.calculateDatabase();
    expectValues(early, u"status=2 dueAmount=200 paidAmount=0");
    expectValues(paid, u"paid=2026-03-01T09:00:00Z");  // dated once only
}

TEST_F(StatisticsTest, CountsOnlyTheListedDocuments)
{
    document(u"kind=1 status=1 amount=10 due=2026-03-02T09:00:00Z number=A");
    Record* hidden = document(u"kind=1 status=1 amount=20 due=2026-02-01T09:00:00Z number=B");
    document(u"kind=0 number=C");
    session.documents().setFilter(1, [](const Record& r) { return r.string("number") != u"B"; });

    totals.calculateDatabase();
    EXPECT_EQ(session.statistics(), (DocumentStatistics{10.0f, 0.0f, 0.0f, 1, 1, 1}));
    expectValues(hidden, u"status=1");  // not listed, so not moved to overdue
}

}  // namespace
