#include "documents/notificationscheduler.h"

#include <algorithm>

namespace tamo {

namespace {
// Timers take whole milliseconds in an int; longer waits are split and checked again.
constexpr qint64 kLongestWaitMs = 24LL * 60 * 60 * 1000;
}  // namespace

NotificationScheduler::NotificationScheduler(AppSession& session, NotificationService& service,
                                             QObject* parent)
    : QObject(parent), session_(session), service_(service)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &NotificationScheduler::deliverDue);
    connect(&service_, &NotificationService::activated, this,
            &NotificationScheduler::documentActivated);
}

void NotificationScheduler::schedule(const NotificationRequest& request, const Record& document,
                                     bool sound)
{
    Context* context = session_.context();
    if (!context) {
        return;
    }
    Record* n = context->insert("ScheduledNotification");
    n->setValue("title", request.title);
    n->setValue("subtitle", request.subtitle);
    n->setValue("informativeText", request.informativeText);
    n->setValue("deliveryDate", request.deliveryDate);
    n->setValue("documentID", document.uniqueID());
    n->setValue("sound", sound);
    n->setValue("isDelivered", false);
}

std::vector<Record*> NotificationScheduler::pending() const
{
    Context* context = session_.context();
    if (!context) {
        return {};
    }
    return context->fetch("ScheduledNotification",
                          [](const Record& r) { return !r.boolean("isDelivered"); },
                          {{"deliveryDate", true}});
}

void NotificationScheduler::deliverDue()
{
    timer_.stop();
    Context* context = session_.context();
    if (!context) {
        return;
    }
    const QDateTime now = session_.clock().now();
    bool delivered = false;
    for (Record* n : pending()) {
        if (n->date("deliveryDate") > now) {
            const qint64 wait =
                std::clamp<qint64>(now.msecsTo(n->date("deliveryDate")), 0, kLongestWaitMs);
            timer_.start(int(wait));
            break;
        }
        service_.show({n->string("title"), n->string("subtitle"), n->string("informativeText"),
                       n->boolean("sound"), n->string("documentID")});
        WithoutUndo shown(*context);  // having been shown is no edit to take back
        n->setValue("isDelivered", true);
        delivered = true;
    }
    if (delivered) {
        session_.saveContext();
    }
}

}  // namespace tamo
