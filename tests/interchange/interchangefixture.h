#pragma once

#include <QTimeZone>

#include "interchange/datainterchange.h"
#include "interchange/recorddictionary.h"
#include "support/testsupport.h"

namespace tamo::test {

inline QDateTime utc(int y, int m, int d, int h = 9, int min = 0, int s = 0)
{
    return QDateTime(QDate(y, m, d), QTime(h, min, s), QTimeZone::utc());
}

// An invoice with fixed identities and values, and two lines.
inline Record* sampleInvoice(Context& context, const QString& id, const QString& number)
{
    Record* invoice = context.insert("Invoice");
    invoice->setValue("uniqueID", id);
    invoice->setValue("kind", 1);
    invoice->setValue("number", number);
    invoice->setValue("title", u"Grüße & <Söhne> 𝄞"_qs);
    invoice->setValue("date", utc(2026, 3, 1));
    invoice->setValue("amount", 0.1 + 0.2);
    invoice->setValue("isPaid", false);
    for (int i = 1; i <= 2; ++i) {
        Record* line = context.insert("Item");
        line->setValue("uniqueID", QStringLiteral("%1-%2").arg(id).arg(i));
        line->setValue("title", QStringLiteral("Line %1").arg(i));
        line->setValue("unitCount", 2.5 * i);
        line->setToOne("invoice", invoice);
    }
    return invoice;
}

// A session whose data operations ask `user`, who answers questions with their default button
// unless told otherwise and panels with the queued files.
class InterchangeTest : public SessionTest {
protected:
    Context& store()
    {
        Context* context = session.managedObjectContext();
        EXPECT_NE(context, nullptr);
        return *context;
    }
    QString file(const QString& name) const { return dir.path(name); }
    std::vector<QString> numbers()
    {
        std::vector<QString> list;
        for (const Record* r : session.context()->fetch("Invoice", {}, {{"number"}})) {
            list.push_back(r->string("number"));
        }
        return list;
    }

    ScriptedPrompter user{ScriptedPrompter::Fallback::DefaultButton};
    DataInterchange ops{session, user};
};

}  // namespace tamo::test
