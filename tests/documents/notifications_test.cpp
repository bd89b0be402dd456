#include <QSignalSpy>

#include "documents/lifecycle.h"
#include "documents/notificationscheduler.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class NotificationTest : public SessionTest {
protected:
    void SetUp() override
    {
        ASSERT_NE(session.managedObjectContext(), nullptr);
        document = lifecycle.addInvoice();
        document->setValue("title", u"Rechnung"_qs);
        document->setValue("number", u"RE-7"_qs);
        document->setValue("address", u"Bäckerei Horn\nMarktplatz 1\n23552 Lübeck"_qs);
        document->setValue("due", QDateTime(QDate(2026, 3, 14), QTime(16, 30)));
    }
    RecordingNotificationService desktop;
    NotificationScheduler scheduler{session, desktop};
    DocumentLifecycle lifecycle{session, &scheduler};
    Record* document = nullptr;
};

TEST_F(NotificationTest, TheSheetIsFilledFromTheDocument)
{
    const NotificationRequest r = lifecycle.prepareNotification();
    EXPECT_EQ(r.title, u"Rechnung - RE-7");
    EXPECT_EQ(r.subtitle, u"Bäckerei Horn");
    EXPECT_TRUE(r.informativeText.isEmpty());
    EXPECT_EQ(r.deliveryDate, QDateTime(QDate(2026, 3, 17), QTime(0, 0)));  // three days after
}

TEST_F(NotificationTest, ItIsShownWhenItsTimeComesAndOnlyOnce)
{
    settings.set(key::prefsDeliverNotificationsWithSound, true);
    ASSERT_TRUE(lifecycle.openNotificationSheet());
    lifecycle.sendNotification(lifecycle.prepareNotification());
    EXPECT_TRUE(document->boolean("misc4"));
    EXPECT_TRUE(desktop.shown().isEmpty());  // 1 March: not yet
    EXPECT_EQ(scheduler.pending().size(), 1u);

    clock.set(QDateTime(QDate(2026, 3, 17), QTime(0, 0, 1)));
    scheduler.deliverDue();
    ASSERT_EQ(desktop.shown().size(), 1);
    EXPECT_EQ(desktop.shown()[0].title, u"Rechnung - RE-7");
    EXPECT_TRUE(desktop.shown()[0].sound);
    EXPECT_EQ(desktop.shown()[0].documentID, document->uniqueID());

    // Kept in the store: another start does not show it again.
    scheduler.deliverDue();
    auto reopened = openContext(session.context()->path());
    EXPECT_TRUE(reopened->fetch("ScheduledNotification").front()->boolean("isDelivered"));
    EXPECT_EQ(desktop.shown().size(), 1);

    QSignalSpy activated(&scheduler, &NotificationScheduler::documentActivated);
    desktop.click(document->uniqueID());
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated[0][0].toString(), document->uniqueID());
}

TEST_F(NotificationTest, ASecondNotificationNeedsConfirmation)
{
    lifecycle.sendNotification(lifecycle.prepareNotification());
    prompter.queueAnswer(u"Cancel"_qs);
    EXPECT_FALSE(lifecycle.openNotificationSheet());
    EXPECT_EQ(prompter.alerts().back().title, u"Notification Already Created");
    prompter.queueAnswer(u"OK"_qs);
    EXPECT_TRUE(lifecycle.openNotificationSheet());
    lifecycle.sendNotification(lifecycle.prepareNotification());
    EXPECT_EQ(scheduler.pending().size(), 2u);
}

}  // namespace
