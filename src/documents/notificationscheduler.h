#pragma once

#include <QObject>
#include <QTimer>

#include "documents/lifecycle.h"
#include "platform/notifications.h"

namespace tamo {

// Keeps scheduled due-date notifications in the store and shows each on the desktop when its
// time comes: by a timer while Tamo runs, or at the next start when the time passed meanwhile.
class NotificationScheduler : public QObject {
    Q_OBJECT

public:
    NotificationScheduler(AppSession& session, NotificationService& service,
                          QObject* parent = nullptr);

    void schedule(const NotificationRequest& request, const Record& document, bool sound);
    // Shows every notification whose time has come and sets the timer for the next one.
    void deliverDue();
    std::vector<Record*> pending() const;

signals:
    // The person clicked a notification about this document.
    void documentActivated(const QString& uniqueID);

private:
    AppSession& session_;
    NotificationService& service_;
    QTimer timer_;
};

}  // namespace tamo
