#pragma once

#include <QLocale>
#include <QPdfDocument>
#include <QRegularExpression>
#include <memory>

#include "interchange/plistfile.h"
#include "model/appsession.h"
#include "support/testsupport.h"

namespace tamo::test {

// A session with an open store, English number formats and the document values the reports
// read set directly (no calculation runs behind them).
class ReportsTest : public SessionTest {
protected:
    ReportsTest()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        context = session.managedObjectContext();
    }

    struct Values {
        int kind = 1;
        int status = 1;
        double amount = 0;
        double subAmount = 0;
        double dueAmount = 0;
        double paidAmount = 0;
        QDateTime date{};
    };
    Record* add(const Values& v)
    {
        Record* d = context->insert("Invoice");
        d->setValue("kind", v.kind);
        d->setValue("status", v.status);
        d->setValue("amount", v.amount);
        d->setValue("subAmount", v.subAmount);
        d->setValue("dueAmount", v.dueAmount);
        d->setValue("paidAmount", v.paidAmount);
        d->setValue("date", v.date.isValid() ? v.date : clock.now());
        return d;
    }

    // Loads PDF bytes through a file, as Qt PDF reads them.
    std::unique_ptr<QPdfDocument> loadPdf(const QByteArray& pdf)
    {
        const QString path = dir.path(QStringLiteral("check-%1.pdf").arg(++loads_));
        EXPECT_TRUE(writeFileAtomically(path, pdf).has_value());
        auto document = std::make_unique<QPdfDocument>();
        EXPECT_EQ(document->load(path), QPdfDocument::Error::None);
        return document;
    }
    // The text of a page without its spaces and line breaks: Qt PDF breaks the text of table
    // cells into lines of single characters, but keeps their order.
    static QString pageText(QPdfDocument& pdf, int page)
    {
        return compact(pdf.getAllText(page).text());
    }
    static QString compact(QString text)
    {
        return text.remove(QRegularExpression(QStringLiteral("\\s+")));
    }

    Context* context = nullptr;

private:
    int loads_ = 0;
};

}  // namespace tamo::test
