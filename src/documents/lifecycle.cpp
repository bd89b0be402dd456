#include "documents/lifecycle.h"

#include <QCoreApplication>

#include "calc/numbering.h"
#include "calc/totals.h"
#include "documents/notificationscheduler.h"
#include "interchange/recorddictionary.h"
#include "platform/translations.h"

namespace tamo {

namespace {

const char* const kAlreadySentText = QT_TRANSLATE_NOOP(
    "Tamo",
    "The selected invoice is marked as already sent. If you really need to make changes, please "
    "set its status back to 'Created' first. Then you will also be able to resend the modified "
    "invoice.");

// New documents take their rates as the settings hold them, through single precision.
double fromSingle(double value)
{
    return double(float(value));
}

}  // namespace

DocumentLifecycle::DocumentLifecycle(AppSession& session, NotificationScheduler* scheduler)
    : session_(session), scheduler_(scheduler)
{
}

bool isCurrentInvoiceSent(AppSession& session)
{
    const Record* d = session.documents().current();
    return d && d->integer("status") > 0;
}

bool refuseChangesToReadOnlyStore(AppSession& session)
{
    if (!session.isReadOnly()) {
        return false;
    }
    session.prompter().ask({tr("Error!"),
                            QCoreApplication::translate("tamo::Store",
                                                        "This store is open for reading only, so "
                                                        "nothing in it can be changed. %1")
                                .arg(session.readOnlyReason()),
                            {tr("OK")}});
    return true;
}

bool refuseChangesToSentDocument(AppSession& session)
{
    if (refuseChangesToReadOnlyStore(session)) {
        return true;
    }
    if (!isCurrentInvoiceSent(session)) {
        return false;
    }
    session.prompter().ask({tr("Error!"), tr(kAlreadySentText), {tr("OK")}});
    return true;
}

QDateTime DocumentLifecycle::futureDateFromTodayWithDays(int choice, const QDateTime& now)
{
    switch (choice) {
    case 1:
        return now.addDays(14);
    case 2:
        return now.addDays(21);
    case 3:
        return now.addDays(28);
    default:
        return now.addDays(7);
    }
}

void DocumentLifecycle::reveal(Record* document)
{
    session_.documents().reveal(document);
    Totals(session_).refreshStatistics();  // the new document counts for the next number
}

Record* DocumentLifecycle::newDocument(bool invoice)
{
    Context* context = session_.context();
    if (!context) {
        return nullptr;
    }
    Settings& s = session_.settings();
    const QDateTime now = session_.clock().now();
    const Numbering numbering(session_);
    Record* d = nullptr;
    {
        UndoGroup group(*context, invoice ? tr("New Invoice") : tr("New Quote"));
        if (invoice) {
            s.set(key::isFirstInvoiceEverCreated, true);
        }
        d = context->insert("Invoice");
        if (invoice) {
            d->setValue("number", s.boolean(key::invHaveNumber) ? numbering.invoiceNumberString()
                                                                : QString());
        } else {
            d->setValue("number",
                        s.boolean(key::quotHaveNumber) ? numbering.quoteNumberString() : QString());
        }
        d->setValue("address", QString());
        d->setValue("title", s.string(invoice ? key::locInvoice : key::locQuote));
        if (invoice) {
            d->setValue("subject", QString());
        }
        d->setValue("conditions",
                    s.string(invoice ? key::tempInvConditions : key::tempQuotConditions));
        d->setValue("footer", s.string(invoice ? key::tempInvFooter : key::tempQuotFooter));
        d->setValue("misc1", s.string(invoice ? key::tempInvMisc : key::tempQuotMisc));
        for (const char* k : {"notes", "dispatchNumber", "clientNumber", "shippingTitle",
                              "shippingSubtitle", "discountTitle", "discountSubtitle"}) {
            d->setValue(k, QString());
        }
        if (invoice) {
            for (const char* k : {"invoiceMisc2", "customerTitle", "customerName", "customerVATID",
                                  "miscString1", "miscString2", "miscString3"}) {
                d->setValue(k, QString());
            }
        }
        d->setValue("currency", s.string(key::prefsCurrency));
        const bool hasDue = s.boolean(invoice ? key::invHaveDueDate : key::quotHaveValidity);
        const int period = s.integer(invoice ? key::invDefaultDueDate : key::quotDefaultValidity);
        d->setValue("due", hasDue ? futureDateFromTodayWithDays(period, now) : now);
        for (const char* k : {"date", "paid", "sent", "dispatched"}) {
            d->setValue(k, now);
        }
        d->setValue("kind", invoice ? 1 : 0);
        for (const char* k : {"status", "discountKind", "tax1Kind", "tax2Kind", "tax3Kind"}) {
            d->setValue(k, 0);
        }
        d->setValue("isDispatched", false);
        for (const char* k : {"amount", "subAmount", "paidAmount", "dueAmount", "shippingAmount",
                              "discountAmount", "tax1Amount", "tax2Amount", "tax3Amount"}) {
            d->setValue(k, fromSingle(0));
        }
        d->setValue("tax1Percent", fromSingle(s.real(key::tax1Rate)));
        d->setValue("tax2Percent", fromSingle(s.real(key::tax2Rate)));
        d->setValue("tax3Percent", fromSingle(s.real(key::tax3Rate)));
        d->setValue("misc2", 0);
        d->setValue("misc3", fromSingle(0));
        d->setValue("misc4", false);
        d->setValue("misc5", now);
        if (!invoice) {
            // A quote's client fields are cleared after its amounts.
            for (const char* k : {"customerTitle", "customerName", "customerVATID", "miscString1",
                                  "miscString2", "miscString3"}) {
                d->setValue(k, QString());
            }
        }
    }
    reveal(d);
    emit documentCreated(d);
    session_.saveContext();
    return d;
}

Record* DocumentLifecycle::addInvoice()
{
    return newDocument(true);
}

Record* DocumentLifecycle::addQuote()
{
    return newDocument(false);
}

Record* DocumentLifecycle::duplicateInvoice(bool withItems)
{
    Record* source = currentInvoice();
    Context* context = session_.context();
    if (!source || !context) {
        return nullptr;
    }
    Settings& s = session_.settings();
    const QDateTime now = session_.clock().now();
    Record* copy = nullptr;
    {
        UndoGroup group(*context, tr("Duplicate"));
        copy = cloneBySkippingAttributes(
            *source, {u"number"_qs, u"dispatchNumber"_qs, u"uniqueID"_qs, u"status"_qs, u"sent"_qs,
                      u"paid"_qs, u"due"_qs, u"date"_qs, u"isDispatched"_qs, u"items"_qs,
                      u"dueAmount"_qs, u"paidAmount"_qs, u"dispatched"_qs});
        if (withItems) {
            // Copied lines keep their time of entry, and with it their order.
            for (Record* line : std::vector<Record*>(source->toMany("items"))) {
                cloneBySkippingAttributes(*line, {u"uniqueID"_qs})->setToOne("invoice", copy);
            }
        }
        // Numbered as an invoice, also when a quote is duplicated.
        copy->setValue("number", s.boolean(key::invHaveNumber)
                                     ? Numbering(session_).invoiceNumberString()
                                     : QString());
        copy->setValue("due",
                       s.boolean(key::invHaveDueDate)
                           ? futureDateFromTodayWithDays(s.integer(key::invDefaultDueDate), now)
                           : now);
        copy->setValue("dispatchNumber", QString());
        for (const char* k : {"date", "paid", "sent", "dispatched"}) {
            copy->setValue(k, now);
        }
        copy->setValue("status", 0);
        copy->setValue("paidAmount", 0.0);
        copy->setValue("dueAmount", 0.0);
        copy->setValue("isDispatched", false);
    }
    reveal(copy);
    emit documentCreated(copy);
    session_.saveContext();
    return copy;
}

bool DocumentLifecycle::convertQuoteToInvoice()
{
    Record* d = currentInvoice();
    if (!d || !session_.context()) {
        return false;
    }
    Prompter& prompter = session_.prompter();
    if (d->integer("kind") == 1) {
        prompter.ask({tr("Sorry!"), tr("You can't convert an invoice into a quote."), {tr("OK")}});
        return false;
    }
    const QString convert = tr("Convert");
    if (prompter.ask({tr("Convert Into Invoice"),
                      tr("Do you really want to convert the selected quote into an "
                         "invoice? This will also change the title, the boilerplate "
                         "text, the counter for your invoice numbering, and you can't "
                         "undo this action."),
                      {convert, tr("Cancel")}}) != convert) {
        return false;
    }
    Settings& s = session_.settings();
    const QDateTime now = session_.clock().now();
    {
        UndoGroup group(*session_.context(), tr("Convert Into Invoice"));
        d->setValue("kind", 1);
        Totals(session_).calculateDatabase();  // so that the converted quote counts already
        d->setValue("due", s.boolean(key::invHaveDueDate)
                               ? futureDateFromTodayWithDays(s.integer(key::invDefaultDueDate), now)
                               : now);
        d->setValue("number", s.boolean(key::invHaveNumber)
                                  ? Numbering(session_).convertedInvoiceNumberString()
                                  : QString());
        d->setValue("title", s.string(key::locInvoice));
        d->setValue("conditions", s.string(key::tempInvConditions));
        d->setValue("footer", s.string(key::tempInvFooter));
        d->setValue("misc1", s.string(key::tempInvMisc));
    }
    session_.documents().rearrange();
    session_.documents().reveal(d);
    session_.saveContext();
    return true;
}

bool DocumentLifecycle::deleteInvoice()
{
    Record* d = currentInvoice();
    if (!d || !session_.context()) {
        return false;
    }
    Prompter& prompter = session_.prompter();
    const bool quote = d->integer("kind") == 0;
    if (!quote && d->integer("status") > 0) {
        prompter.ask({tr("Error!"),
                      tr("The selected invoice is marked as already sent. If you really "
                         "need to delete it, please set its status back to 'Created' "
                         "first."),
                      {tr("OK")}});
        return false;
    }
    const QString remove = tr("Delete");
    const Alert question =
        quote ? Alert{tr("Delete Quote"),
                      tr("Deleting quotes is permanent and cannot be undone. Do you "
                         "really want to delete the selected quote?"),
                      {remove, tr("Cancel")}}
              : Alert{tr("Delete Invoice"),
                      tr("Deleting invoices is permanent and cannot be undone. Do you "
                         "really want to delete the selected invoice?"),
                      {remove, tr("Cancel")}};
    if (prompter.ask(question) != remove) {
        return false;
    }
    {
        UndoGroup group(*session_.context(), quote ? tr("Delete Quote") : tr("Delete Invoice"));
        session_.context()->remove(d);
    }
    // The list stays as the person narrowed it; only the deleted document leaves it.
    Totals(session_).refreshStatistics();
    session_.saveContext();

    const QString adjust = tr("Adjust Counter");
    if (prompter.ask({adjust,
                      quote ? tr("Do you want Tamo to automatically adjust your quote counter so "
                                 "that you won't use the same quote number twice?")
                            : tr("Do you want Tamo to automatically adjust your invoice counter "
                                 "so that you won't use the same invoice number twice?"),
                      {adjust, tr("Cancel")}}) == adjust) {
        quote ? Numbering(session_).raiseQuoteCounter() : Numbering(session_).raiseInvoiceCounter();
    }
    return true;
}

void DocumentLifecycle::setDispatched()
{
    Record* d = currentInvoice();
    if (!d || !session_.context() || refuseChangesToReadOnlyStore()) {
        return;
    }
    {
        UndoGroup group(*session_.context(), tr("Set Delivery Date"));
        d->setValue("dispatched", session_.clock().now());
    }
    emit dispatchDateSet(d);
    session_.saveContext();
}

QString DocumentLifecycle::deleteActionTitle() const
{
    const Record* d = currentInvoice();
    return d && d->integer("kind") == 0 ? tr("Delete Quote") : tr("Delete Invoice");
}

Predicate DocumentLifecycle::filterPredicate(int tag, const QDateTime& now)
{
    const auto since = [now](qint64 seconds) -> Predicate {
        const QDateTime from = now.addSecs(-seconds);
        return [from, now](const Record& r) {
            const QDateTime date = r.date("date");
            return date.isValid() && date >= from && date <= now;
        };
    };
    switch (tag) {
    case 0:
        return {};
    case 2:
        // As the filter was always written: "kind == 1 AND status == 2 OR status == 4", so
        // partially paid quotes are listed too.
        return [](const Record& r) {
            return (r.integer("kind") == 1 && r.integer("status") == 2) || r.integer("status") == 4;
        };
    case 3:
        return [](const Record& r) { return r.integer("kind") == 1 && r.integer("status") == 3; };
    case 4:
        return [](const Record& r) { return r.integer("kind") == 0; };
    case 5:
        return since(43'200);
    case 6:
        return since(302'400);
    case 7:
        return since(1'339'200);
    case 8:
        return since(15'768'000);
    default:  // 1 and anything unknown: open invoices
        return [](const Record& r) { return r.integer("kind") == 1 && r.integer("status") == 1; };
    }
}

void DocumentLifecycle::selectFilter(int tag)
{
    session_.documents().setFilter(tag, filterPredicate(tag, session_.clock().now()));
    Totals(session_).refreshStatistics();
}

void DocumentLifecycle::filterForInvoice(const QString& uniqueID)
{
    DocumentList& list = session_.documents();
    list.setFilter(99, [uniqueID](const Record& r) { return r.uniqueID() == uniqueID; });
    if (list.size() > 0) {
        list.setSelection({list.at(0)});
    }
    Totals(session_).refreshStatistics();
}

QString DocumentLifecycle::filterImageName() const
{
    return filterTag() != 0 ? QStringLiteral("torchGlow") : QStringLiteral("torchTemplate");
}

SheetTexts DocumentLifecycle::reminderSheetTexts() const
{
    const Settings& s = session_.settings();
    return {s.string(key::locReminder), s.string(key::tempRemConditions),
            s.string(key::tempRemMisc), s.string(key::tempRemFooter)};
}

SheetTexts DocumentLifecycle::slipSheetTexts() const
{
    const Settings& s = session_.settings();
    return {s.string(key::locSlip), s.string(key::tempSlipConditions), s.string(key::tempSlipMisc),
            s.string(key::tempSlipFooter)};
}

bool DocumentLifecycle::openNotificationSheet()
{
    const Record* d = currentInvoice();
    if (!d) {
        return false;
    }
    if (!d->boolean("misc4")) {
        return true;
    }
    const QString cancel = tr("Cancel");
    return session_.prompter().ask(
               {tr("Notification Already Created"),
                tr("You've already created a notification for this invoice. Do you "
                   "really want to create another one?"),
                {tr("OK"), cancel}}) != cancel;
}

NotificationRequest DocumentLifecycle::prepareNotification() const
{
    const Record* d = currentInvoice();
    if (!d) {
        return {};
    }
    NotificationRequest r;
    r.title = QStringLiteral("%1 - %2").arg(d->string("title"), d->string("number"));
    r.subtitle = d->string("address").section(u'\n', 0, 0);
    const QDate day = d->date("due").toLocalTime().date().addDays(3);
    r.deliveryDate = day.startOfDay();
    return r;
}

void DocumentLifecycle::sendNotification(const NotificationRequest& request)
{
    Record* d = currentInvoice();
    if (!d || !session_.context()) {
        return;
    }
    {
        UndoGroup group(*session_.context(), tr("Schedule Notification"));
        if (scheduler_) {
            scheduler_->schedule(
                request, *d, session_.settings().boolean(key::prefsDeliverNotificationsWithSound));
        }
        d->setValue("misc4", true);
    }
    session_.saveContext();
    if (scheduler_) {
        scheduler_->deliverDue();
    }
}

}  // namespace tamo
