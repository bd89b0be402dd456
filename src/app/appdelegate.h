#pragma once

#include <QObject>
#include <memory>

#include "app/dialogprompter.h"
#include "app/documentoperations.h"
#include "documents/notificationscheduler.h"
#include "interchange/datainterchange.h"
#include "model/appsession.h"
#include "platform/clock.h"
#include "platform/handoff.h"
#include "platform/notifications.h"
#include "settings/settings.h"

namespace tamo {

class AccountingActions;
class MainWindow;
class PreferencesActions;

// Composes the application: the session of the core, the document operations with the due-date
// notifications, the window over them, and the hooks through which the core reaches the
// interface.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(const Profile& profile);
    ~AppDelegate() override;

    AppSession& session() { return session_; }
    MainWindow& window() { return *window_; }
    DocumentOperations& operations() { return operations_; }
    PreferencesActions& preferences() { return *preferences_; }

    // Opens the store and the window and runs the start-up steps.
    void start();
    // The quit steps; true when the application may end now.
    bool requestQuit();

    // Listens for later `tamo` runs on the same store, which hand their URLs and files over.
    void listen(const QString& socketName);
    // Answers tamo:// URLs and files (absolute paths), as when they are handed over.
    void answer(const QStringList& arguments);
    AccountingActions& accounting() { return *accounting_; }

private:
    // When the store could not be opened: quits when another Tamo holds it (false), offers the
    // recovery copies and backups when it is damaged.
    bool offerRecovery();
    // A click on a due-date notification: the window comes forward with that document alone.
    void showNotifiedDocument(const QString& uniqueID);

    Profile profile_;
    Settings settings_;
    SystemClock clock_;
    DialogPrompter prompter_;
    AppSession session_;
    DataInterchange interchange_{session_};
    DesktopNotificationService notificationService_;
    NotificationScheduler scheduler_{session_, notificationService_};
    DocumentOperations operations_{session_, &scheduler_};
    std::unique_ptr<MainWindow> window_;
    AccountingActions* accounting_ = nullptr;
    HandoffListener listener_;
    PreferencesActions* preferences_ = nullptr;  // owned by the window
};

}  // namespace tamo
