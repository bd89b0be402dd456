#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

#include "model/appsession.h"

namespace tamo {

class NotificationScheduler;

// The four texts of a reminder or a delivery slip, edited in their sheet and used only for the
// rendering; nothing of them is written to the document.
struct SheetTexts {
    QString title;
    QString conditions;
    QString miscellaneous;
    QString footer;
};

// What the due-date notification sheet shows and schedules.
struct NotificationRequest {
    QString title;
    QString subtitle;
    QString informativeText;
    QDateTime deliveryDate;
};

// Whether the current document is marked as sent (status above 0); it is then locked against
// changes apart from its status and payment.
bool isCurrentInvoiceSent(AppSession& session);
// The guard of every editing action: shows the "already sent" alert (or, for a store open for
// reading only, says so) and returns true when the current document may not be changed.
bool refuseChangesToSentDocument(AppSession& session);
// Says so and returns true when the store is open for reading only.
bool refuseChangesToReadOnlyStore(AppSession& session);

// The life of one document: creating invoices and quotes, duplicating, converting, deleting,
// dispatching, the list filters, the reminder and slip texts and the due-date notification. Each
// operation acts on the current document (the first selected of the list), asks through the
// session's prompter, is one undo step, and ends with the totals and a save.
class DocumentLifecycle : public QObject {
    Q_OBJECT

public:
    explicit DocumentLifecycle(AppSession& session, NotificationScheduler* scheduler = nullptr);

    Record* currentInvoice() const { return session_.documents().current(); }
    bool isCurrentInvoiceSent() const { return tamo::isCurrentInvoiceSent(session_); }
    bool refuseChangesToSentDocument() const { return tamo::refuseChangesToSentDocument(session_); }
    bool refuseChangesToReadOnlyStore() const
    {
        return tamo::refuseChangesToReadOnlyStore(session_);
    }

    Record* addInvoice();
    Record* addQuote();
    // With lines when `withItems`; the copy is numbered as an invoice whatever it is.
    Record* duplicateInvoice(bool withItems);
    bool convertQuoteToInvoice();
    bool deleteInvoice();
    void setDispatched();
    // "Delete Invoice" or "Delete Quote", after the current document.
    QString deleteActionTitle() const;

    // Today plus 14, 21 or 28 days for the choices 1, 2, 3, and plus 7 for any other.
    static QDateTime futureDateFromTodayWithDays(int choice, const QDateTime& now);

    int filterTag() const { return session_.documents().filterTag(); }
    // Applies the filter of that tag to the list, then the statistics pass.
    void selectFilter(int tag);
    void openFilterPopover() { selectFilter(0); }
    // Shows exactly the document with that uniqueID (tag 99).
    void filterForInvoice(const QString& uniqueID);
    QString filterImageName() const;
    static Predicate filterPredicate(int tag, const QDateTime& now);

    SheetTexts reminderSheetTexts() const;
    SheetTexts slipSheetTexts() const;

    // False when a notification exists and the person does not want another.
    bool openNotificationSheet();
    NotificationRequest prepareNotification() const;
    void sendNotification(const NotificationRequest& request);

signals:
    // A new document is in the list and selected; the window turns to its client.
    void documentCreated(tamo::Record* document);
    void dispatchDateSet(tamo::Record* document);

private:
    Record* newDocument(bool invoice);
    // Lists every document and makes the new one current.
    void reveal(Record* document);

    AppSession& session_;
    NotificationScheduler* scheduler_;
};

}  // namespace tamo
