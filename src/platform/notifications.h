#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

namespace tamo {

struct Notification {
    QString title;
    QString subtitle;
    QString body;
    bool sound = false;
    QString documentID;  // the uniqueID of the document it is about
};

// Shows a notification on the desktop now; `activated` reports a click on one, with the
// document it is about.
class NotificationService : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    virtual void show(const Notification& notification) = 0;

signals:
    void activated(const QString& documentID);
};

// The freedesktop notification service on the session bus. Without a bus or a notification
// daemon, showing logs the reason and does nothing else.
class DesktopNotificationService : public NotificationService {
    Q_OBJECT

public:
    explicit DesktopNotificationService(QObject* parent = nullptr);
    void show(const Notification& notification) override;

private slots:
    void actionInvoked(uint id, const QString& action);

private:
    QHash<uint, QString> documents_;  // notification id → document
};

// Keeps what would have been shown; used where no desktop is (tests, the command line).
class RecordingNotificationService : public NotificationService {
    Q_OBJECT

public:
    using NotificationService::NotificationService;
    void show(const Notification& notification) override { shown_.append(notification); }
    const QList<Notification>& shown() const { return shown_; }
    void click(const QString& documentID) { emit activated(documentID); }

private:
    QList<Notification> shown_;
};

}  // namespace tamo
