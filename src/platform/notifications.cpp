#include "platform/notifications.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QLoggingCategory>
#include <QVariantMap>

#include "platform/profile.h"

Q_LOGGING_CATEGORY(lcNotifications, "tamo.notifications")

namespace tamo {

namespace {
const QString kService = u"org.freedesktop.Notifications"_qs;
const QString kPath = u"/org/freedesktop/Notifications"_qs;
}  // namespace

DesktopNotificationService::DesktopNotificationService(QObject* parent)
    : NotificationService(parent)
{
    QDBusConnection::sessionBus().connect(kService, kPath, kService, u"ActionInvoked"_qs, this,
                                          SLOT(actionInvoked(uint, QString)));
}

void DesktopNotificationService::show(const Notification& n)
{
    QDBusInterface daemon(kService, kPath, kService, QDBusConnection::sessionBus());
    if (!daemon.isValid()) {
        qCWarning(lcNotifications).noquote() << "Unable to show a notification:"
                                             << QDBusConnection::sessionBus().lastError().message();
        return;
    }
    QVariantMap hints{{u"desktop-entry"_qs, QString::fromLatin1(kApplicationId)}};
    if (n.sound) {
        hints.insert(u"sound-name"_qs, u"message-new-instant"_qs);
    } else {
        hints.insert(u"suppress-sound"_qs, true);
    }
    const QString body = n.body.isEmpty()
                             ? n.subtitle
                             : (n.subtitle.isEmpty() ? n.body : n.subtitle + u'\n' + n.body);
    const QDBusReply<uint> reply =
        daemon.call(u"Notify"_qs, u"Tamo"_qs, uint(0), QString::fromLatin1(kApplicationId), n.title,
                    body, QStringList{u"default"_qs, tr("Open")}, hints, -1);
    if (!reply.isValid()) {
        qCWarning(lcNotifications).noquote()
            << "Unable to show a notification:" << reply.error().message();
        return;
    }
    documents_.insert(reply.value(), n.documentID);
}

void DesktopNotificationService::actionInvoked(uint id, const QString& action)
{
    const auto it = documents_.constFind(id);
    if (it != documents_.constEnd() && action == u"default") {
        emit activated(*it);
    }
}

}  // namespace tamo
