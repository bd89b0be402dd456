#include <functional>

#include "calc/totals.h"
#include "documents/lifecycle.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class LifecycleTest : public SessionTest {
protected:
    void SetUp() override
    {
        ASSERT_NE(session.managedObjectContext(), nullptr);
        settings.set(key::invHaveNumber, true);
        settings.set(key::invPattern, u"RE-%COUNT%"_qs);
        settings.set(key::quotHaveNumber, true);
        settings.set(key::quotPattern, u"AN-%COUNT%"_qs);
        settings.set(key::locInvoice, u"Rechnung"_qs);
        settings.set(key::locQuote, u"Angebot"_qs);
        settings.set(key::tempInvConditions, u"Zahlbar innerhalb von 14 Tagen."_qs);
        settings.set(key::tempQuotConditions, u"Gültig 30 Tage."_qs);
        settings.set(key::tax1Rate, 0.19);
        settings.set(key::prefsCurrency, u"EUR"_qs);
    }
    DocumentLifecycle lifecycle{session};
    Context& context() { return *session.context(); }
    QStringList numbers()
    {
        QStringList n;
        for (const Record* r : session.documents().arranged()) {
            n << r->string("number");
        }
        n.sort();
        return n;
    }
};

TEST_F(LifecycleTest, ANewInvoiceTakesItsDefaultsFromTheSettings)
{
    Record* d = lifecycle.addInvoice();
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(session.documents().current(), d);
    EXPECT_EQ(d->string("number"), u"RE-1");
    EXPECT_EQ(d->string("title"), u"Rechnung");
    EXPECT_EQ(d->string("conditions"), u"Zahlbar innerhalb von 14 Tagen.");
    EXPECT_EQ(d->string("footer"), u"");
    EXPECT_EQ(d->string("currency"), u"EUR");
    EXPECT_EQ(d->integer("kind"), 1);
    EXPECT_EQ(d->integer("status"), 0);
    EXPECT_EQ(d->date("due"), clock.now());  // no due date wanted
    // Rates pass through single precision on their way into a new document.
    EXPECT_EQ(d->decimal("tax1Percent"), double(0.19f));
    EXPECT_TRUE(settings.boolean(key::isFirstInvoiceEverCreated));
    EXPECT_FALSE(context().hasChanges());

    EXPECT_EQ(lifecycle.addInvoice()->string("number"), u"RE-2");
    context().undo();
    EXPECT_EQ(numbers(), (QStringList{u"RE-1"_qs}));
}

TEST_F(LifecycleTest, DueDatesFollowTheChosenPeriod)
{
    settings.set(key::invHaveDueDate, true);
    const int days[] = {7, 14, 21, 28, 7};
    for (int choice = 0; choice < 5; ++choice) {
        settings.set(key::invDefaultDueDate, choice);
        EXPECT_EQ(clock.now().daysTo(lifecycle.addInvoice()->date("due")), days[choice]) << choice;
    }
    settings.set(key::quotHaveValidity, true);
    settings.set(key::quotDefaultValidity, 3);
    Record* quote = lifecycle.addQuote();
    EXPECT_EQ(clock.now().daysTo(quote->date("due")), 28);
    EXPECT_EQ(quote->string("number"), u"AN-1");
    EXPECT_EQ(quote->string("title"), u"Angebot");
    EXPECT_EQ(quote->string("conditions"), u"Gültig 30 Tage.");
    EXPECT_TRUE(quote->value("subject").isNull());  // a quote's subject is left unset
}

TEST_F(LifecycleTest, DuplicatingAQuoteGivesACreatedCopyNumberedAsAnInvoice)
{
    Record* quote = lifecycle.addQuote();
    for (int i = 0; i < 2; ++i) {
        Record* line = context().insert("Item");
        line->setValue("title", QStringLiteral("Line %1").arg(i));
        line->setValue("misc5", clock.now().addSecs(i));
        line->setToOne("invoice", quote);
    }
    quote->setValue("status", 4);
    quote->setValue("isPaid", true);
    quote->setValue("paidAmount", 50.0);

    Record* copy = lifecycle.duplicateInvoice(true);
    EXPECT_EQ(copy->integer("kind"), 0);
    EXPECT_EQ(copy->string("number"), u"RE-1");
    EXPECT_EQ(copy->integer("status"), 0);
    EXPECT_EQ(copy->decimal("paidAmount"), 0.0);
    EXPECT_TRUE(copy->boolean("isPaid"));  // not among what a copy leaves out
    EXPECT_NE(copy->uniqueID(), quote->uniqueID());
    ASSERT_EQ(copy->toMany("items").size(), 2u);
    for (const Record* line : copy->toMany("items")) {
        EXPECT_NE(line->toOne("invoice"), quote);
        EXPECT_TRUE(line->date("misc5") == clock.now() ||
                    line->date("misc5") == clock.now().addSecs(1));
        for (const Record* original : quote->toMany("items")) {
            EXPECT_NE(line->uniqueID(), original->uniqueID());
        }
    }
    session.documents().setSelection({quote});
    EXPECT_TRUE(lifecycle.duplicateInvoice(false)->toMany("items").empty());
}

TEST_F(LifecycleTest, ConvertingAsksAndNumbersWithoutAddingOne)
{
    lifecycle.addInvoice();
    Record* quote = lifecycle.addQuote();

    prompter.queueAnswer(u"Cancel"_qs);
    EXPECT_FALSE(lifecycle.convertQuoteToInvoice());
    EXPECT_EQ(quote->integer("kind"), 0);

    prompter.queueAnswer(u"Convert"_qs);
    EXPECT_TRUE(lifecycle.convertQuoteToInvoice());
    EXPECT_EQ(quote->integer("kind"), 1);
    EXPECT_EQ(quote->string("number"), u"RE-2");  // it already counts itself
    EXPECT_EQ(quote->string("title"), u"Rechnung");
    EXPECT_EQ(quote->string("conditions"), u"Zahlbar innerhalb von 14 Tagen.");
    EXPECT_FALSE(context().hasChanges());

    EXPECT_FALSE(lifecycle.convertQuoteToInvoice());  // now an invoice
    EXPECT_EQ(prompter.alerts().back().title, u"Sorry!");
    EXPECT_EQ(prompter.alerts().back().text, u"You can't convert an invoice into a quote.");
}

TEST_F(LifecycleTest, DeletingAsksTwiceAndTheCounterQuestionCannotUndoTheDeletion)
{
    struct Case {
        int kind, status;
        QStringList answers;
        bool deleted;
        int invCount, quotCount;
        const char16_t* firstTitle;
    };
    const Case cases[] = {
        {1, 0, {u"Cancel"_qs}, false, 0, 0, u"Delete Invoice"},
        {1, 0, {u"Delete"_qs, u"Cancel"_qs}, true, 0, 0, u"Delete Invoice"},
        {1, 0, {u"Delete"_qs, u"Adjust Counter"_qs}, true, 1, 0, u"Delete Invoice"},
        {0, 3, {u"Delete"_qs, u"Adjust Counter"_qs}, true, 0, 1, u"Delete Quote"},
        {1, 1, {}, false, 0, 0, u"Error!"},  // sent invoices stay
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(QStringList(c.answers).join(u',').toStdString());
        settings.remove(key::invCount);
        settings.remove(key::quotCount);
        Record* d = c.kind == 1 ? lifecycle.addInvoice() : lifecycle.addQuote();
        d->setValue("status", c.status);
        const auto asked = prompter.alerts().size();
        for (const QString& a : c.answers) {
            prompter.queueAnswer(a);
        }
        EXPECT_EQ(lifecycle.deleteInvoice(), c.deleted);
        EXPECT_EQ(d->isDeleted(), c.deleted);
        EXPECT_EQ(settings.integer(key::invCount), c.invCount);
        EXPECT_EQ(settings.integer(key::quotCount), c.quotCount);
        EXPECT_EQ(prompter.alerts()[asked].title, QString::fromUtf16(c.firstTitle));
    }
    EXPECT_EQ(prompter.alerts().last().text,
              u"The selected invoice is marked as already sent. If you really need to delete it, "
              u"please set its status back to 'Created' first.");
}

TEST_F(LifecycleTest, FiltersListWhatTheirTagSays)
{
    struct Doc {
        const char16_t* number;
        int kind, status;
        qint64 ageSeconds;
    };
    const Doc docs[] = {{u"open", 1, 1, 100},         {u"overdue", 1, 2, 50'000},
                        {u"paid", 1, 3, 400'000},     {u"partly", 1, 4, 2'000'000},
                        {u"quote", 0, 0, 20'000'000}, {u"partlyQuote", 0, 4, 10}};
    {
        WithoutUndo setup(context());
        for (const Doc& d : docs) {
            Record* r = context().insert("Invoice");
            r->setValue("number", QString::fromUtf16(d.number));
            r->setValue("kind", d.kind);
            r->setValue("status", d.status);
            r->setValue("date", clock.now().addSecs(-d.ageSeconds));
            r->setValue("due", clock.now().addDays(d.status == 2 ? -1 : 30));
            r->setValue("isPaid", true);
        }
    }
    const std::pair<int, QStringList> expected[] = {
        {1, {u"open"_qs}},
        {2, {u"overdue"_qs, u"partly"_qs, u"partlyQuote"_qs}},  // no parentheses in the filter
        {3, {u"paid"_qs}},
        {4, {u"partlyQuote"_qs, u"quote"_qs}},
        {5, {u"open"_qs, u"partlyQuote"_qs}},
        {6, {u"open"_qs, u"overdue"_qs, u"partlyQuote"_qs}},
        {7, {u"open"_qs, u"overdue"_qs, u"paid"_qs, u"partlyQuote"_qs}},
        {8, {u"open"_qs, u"overdue"_qs, u"paid"_qs, u"partly"_qs, u"partlyQuote"_qs}},
        {42, {u"open"_qs}},
    };
    for (const auto& [tag, listed] : expected) {
        lifecycle.selectFilter(tag);
        EXPECT_EQ(numbers(), listed) << "tag " << tag;
        EXPECT_EQ(lifecycle.filterImageName(), u"torchGlow");
    }
    lifecycle.openFilterPopover();
    EXPECT_EQ(numbers().size(), 6);
    EXPECT_EQ(lifecycle.filterImageName(), u"torchTemplate");

    const QString id = session.documents().arranged()[3]->uniqueID();
    lifecycle.filterForInvoice(id);
    EXPECT_EQ(lifecycle.filterTag(), 99);
    ASSERT_EQ(session.documents().size(), 1);
    EXPECT_EQ(session.documents().current()->uniqueID(), id);
}

TEST_F(LifecycleTest, ANewDocumentIsListedAndCurrentWhateverTheFilterAndSearch)
{
    Record* quote = lifecycle.addQuote();
    Record* invoice = lifecycle.addInvoice();
    prompter.queueAnswer(u"Convert"_qs);
    DocumentList& list = session.documents();
    // Each action starts from a list that would hide what it makes.
    const std::pair<const char*, std::function<Record*()>> actions[] = {
        {"new invoice",
         [&] {
             lifecycle.selectFilter(4);  // quotes only
             return lifecycle.addInvoice();
         }},
        {"new quote",
         [&] {
             list.setSearchText(u"nothing matches this"_qs);
             return lifecycle.addQuote();
         }},
        {"duplicate",
         [&] {
             invoice->setValue("status", 1);
             lifecycle.selectFilter(1);  // open invoices: the copy is created
             list.setSearchText(invoice->string("number"));
             list.setSelection({invoice});
             return lifecycle.duplicateInvoice(true);
         }},
        {"convert",
         [&] {
             lifecycle.selectFilter(4);  // the converted quote would leave the list
             list.setSearchText(quote->string("number"));
             list.setSelection({quote});
             return lifecycle.convertQuoteToInvoice() ? quote : nullptr;
         }},
    };
    for (const auto& [name, action] : actions) {
        SCOPED_TRACE(name);
        Record* d = action();
        ASSERT_NE(d, nullptr);
        EXPECT_EQ(lifecycle.filterTag(), 0);
        EXPECT_EQ(lifecycle.filterImageName(), u"torchTemplate");
        EXPECT_TRUE(list.searchText().isEmpty());
        EXPECT_NE(list.indexOf(d), -1);
        EXPECT_EQ(list.current(), d);
    }
}

TEST_F(LifecycleTest, ReminderAndSlipTextsComeFromTheirSettings)
{
    settings.set(key::locReminder, u"Zahlungserinnerung"_qs);
    settings.set(key::tempRemFooter, u"Mit freundlichen Grüßen"_qs);
    settings.set(key::locSlip, u"Lieferschein"_qs);
    const SheetTexts reminder = lifecycle.reminderSheetTexts();
    EXPECT_EQ(reminder.title, u"Zahlungserinnerung");
    EXPECT_EQ(reminder.footer, u"Mit freundlichen Grüßen");
    EXPECT_TRUE(reminder.conditions.isEmpty());
    EXPECT_EQ(lifecycle.slipSheetTexts().title, u"Lieferschein");
}

TEST_F(LifecycleTest, TheGuardRefusesChangesToASentDocument)
{
    Record* d = lifecycle.addInvoice();
    EXPECT_FALSE(lifecycle.refuseChangesToSentDocument());
    d->setValue("status", 1);
    EXPECT_TRUE(lifecycle.refuseChangesToSentDocument());
    EXPECT_EQ(prompter.alerts().back().title, u"Error!");
    EXPECT_TRUE(prompter.alerts().back().text.startsWith(
        u"The selected invoice is marked as already sent"));
    d->setValue("kind", 0);
    EXPECT_TRUE(lifecycle.isCurrentInvoiceSent());  // a quote with a status is sent too
}

}  // namespace
