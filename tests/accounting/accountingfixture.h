#pragma once

#include <QDir>
#include <QTimeZone>

#include "accounting/ledrix.h"
#include "support/testsupport.h"

namespace tamo::test {

inline QDateTime localAt(int y, int m, int d, int h, int min = 0)
{
    return QDateTime(QDate(y, m, d), QTime(h, min));
}

// A store with invoices made to measure, and a stand-in for the desktop's opener that records
// what it was given.
class AccountingTest : public SessionTest {
protected:
    AccountingTest() { settings.set(key::tempPaperSize, 2); }

    Record* invoice(const QString& number, const QDateTime& date, int status, int kind = 1)
    {
        Record* d = context.insert("Invoice");
        d->setValue("uniqueID", u"id-"_qs + number);
        d->setValue("kind", kind);
        d->setValue("status", status);
        if (!number.isNull()) {
            d->setValue("number", number);
        }
        d->setValue("title", u"Invoice "_qs + number);
        d->setValue("date", date);
        d->setValue("amount", 119.0);
        d->setValue("subAmount", 100.0);
        d->setValue("tax1Amount", 19.0);
        d->setValue("tax1Percent", 0.19);
        d->setValue("tax2Amount", 0.0);
        d->setValue("tax2Percent", 0.07);
        d->setValue("tax3Amount", 0.0);
        d->setValue("tax3Percent", 0.0);
        Record* line = context.insert("Item");
        line->setValue("title", u"Work"_qs);
        line->setValue("unitCount", 2.0);
        line->setValue("baseAmount", 50.0);
        line->setValue("isTax1Applied", true);
        line->setToOne("invoice", d);
        return d;
    }

    // Saves and lists the documents as the window does (newest first).
    void list()
    {
        ASSERT_TRUE(session.saveContext());
        session.documents().setSortDescriptors({{"date", false}});
    }

    DesktopOpener recordingOpener(bool succeeds = true)
    {
        return [this, succeeds](const QString& target, OpenDone done) {
            opened << target;
            done(succeeds ? Result<void>() : fail(u"test"_qs, 1, u"No application opened it."_qs));
        };
    }

    Context& context = *session.managedObjectContext();
    QStringList opened;
};

}  // namespace tamo::test
