#include "reports/accountbook.h"
#include "reportsfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class AccountBookTest : public ReportsTest {
protected:
    AccountBookTest()
    {
        settings.set(key::prefsName, u"Studio Nord €"_qs);
        settings.set(key::locInvoiceNumber, u"Invoice no."_qs);
        settings.set(key::locInvoice, u"Invoice"_qs);
        settings.set(key::locTotal, u"Total"_qs);
        settings.set(key::locSubtotal, u"Subtotal"_qs);
        settings.set(key::locDescription, u"Description"_qs);
        settings.set(key::locDue, u"Due"_qs);
    }

    Record* document(int n, const QString& subject = u"Logo"_qs)
    {
        Record* d = add({n % 5 == 0 ? 0 : 1, 1, 1190.5 + n, 1000.0 + n, 0, 0,
                         QDateTime(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC).addDays(n)});
        d->setValue("number", QStringLiteral("RE-%1").arg(n, 4, 10, QChar(u'0')));
        d->setValue("title", u"Invoice"_qs);
        d->setValue("subject", subject);
        d->setValue("clientNumber", QStringLiteral("K-%1").arg(n));
        d->setValue("address", u"Anna Berg\nHafenstraße 1\n20457 Hamburg"_qs);
        d->setValue("due", d->date("date").addDays(14));
        return d;
    }

    std::unique_ptr<QPdfDocument> book()
    {
        return loadPdf(AccountBook(session).accountBookDocument()->PDFDocument());
    }
};

TEST_F(AccountBookTest, SubjectsAndClientLinesAreShortenedForTheRow)
{
    const QString s89(89, u's');
    EXPECT_EQ(accountBookSubject(s89), s89);
    EXPECT_EQ(accountBookSubject(QString(90, u's')), QString(88, u's') + u" &hellip;"_qs);
    EXPECT_EQ(accountBookSubject(QString()), QString());

    Record* d = document(1);
    EXPECT_EQ(accountBookClientLine(*d),
              u"K-1 - Anna Berg &middot; Hafenstraße 1 &middot; 20457 Hamburg"_qs);
    d->setValue("address", QString(104, u'a') + u"\r\nB"_qs);
    // "K-1 - " and 104 letters are 110 characters: the line break's dot would be cut in half, so
    // the cut moves before it.
    EXPECT_EQ(accountBookClientLine(*d), u"K-1 - "_qs + QString(104, u'a') + u" &hellip;"_qs);
    d->setValue("address", QString(120, u'b'));
    EXPECT_EQ(accountBookClientLine(*d).size(), 110 + 9);
}

TEST_F(AccountBookTest, AnEmptyListPrintsOnePageWithTitleHeaderAndRule)
{
    const auto pdf = book();
    ASSERT_EQ(pdf->pageCount(), 1);
    const QString text = pageText(*pdf, 0);
    for (const QString& part : {u"Studio Nord €"_qs, u"Invoice no."_qs, u"Subtotal"_qs,
                                u"Description"_qs, QString(20, u'_'), u"1 / 1"_qs}) {
        EXPECT_TRUE(text.contains(compact(part)))
            << part.toStdString() << " in " << text.toStdString();
    }
}

TEST_F(AccountBookTest, EveryListedDocumentGetsARowOldestFirstOnNumberedPages)
{
    for (int n = 40; n >= 1; --n) {
        document(n, n == 7 ? u"Price 5 € per <b>hour</b>"_qs : u"Logo"_qs);
    }
    const auto pdf = book();
    const int pages = pdf->pageCount();
    ASSERT_GE(pages, 3);
    QString all;
    for (int page = 0; page < pages; ++page) {
        const QString text = pageText(*pdf, page);
        EXPECT_TRUE(text.contains(QStringLiteral("%1/%2").arg(page + 1).arg(pages)))
            << page << text.toStdString();
        all += text;
    }
    // Rows in date order, numbered from 1, quotes too; amounts in the user's locale.
    EXPECT_LT(all.indexOf(u"RE-0001"_qs), all.indexOf(u"RE-0002"_qs));
    EXPECT_LT(all.indexOf(u"RE-0039"_qs), all.indexOf(u"RE-0040"_qs));
    EXPECT_TRUE(all.contains(u"RE-0005"_qs));
    EXPECT_TRUE(all.contains(u"1,191.50"_qs));
    EXPECT_TRUE(all.contains(u"Price5€perhour"_qs));
    EXPECT_TRUE(all.contains(u"AnnaBerg·Hafenstraße1·20457Hamburg"_qs));
    EXPECT_TRUE(all.contains(QLocale().toString(QDate(2026, 1, 2), QLocale::ShortFormat)));

    // The book follows the list's search.
    session.documents().setSearchText(u"RE-0007"_qs);
    const auto one = book();
    EXPECT_EQ(one->pageCount(), 1);
    EXPECT_TRUE(pageText(*one, 0).contains(u"RE-0007"_qs));
    EXPECT_FALSE(pageText(*one, 0).contains(u"RE-0008"_qs));
}

TEST_F(AccountBookTest, TheHintIsShownOnFirstUse)
{
    AccountBook book(session);
    book.printAccountBook();
    book.printAccountBook();
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts()[0].title, u"Hint!"_qs);
    EXPECT_TRUE(prompter.alerts()[0].text.startsWith(u"This feature is bound to the arranged"_qs));
    EXPECT_TRUE(settings.boolean(key::isAccountBookPrintHintShown));
}

}  // namespace
