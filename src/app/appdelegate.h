#pragma once

#include <QObject>
#include <memory>

#include "app/dialogprompter.h"
#include "interchange/datainterchange.h"
#include "model/appsession.h"
#include "platform/clock.h"
#include "settings/settings.h"

namespace tamo {

class MainWindow;

// Composes the application: the session of the core, the window over it, and the hooks through
// which the core reaches the interface.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(const Profile& profile);
    ~AppDelegate() override;

    AppSession& session() { return session_; }
    MainWindow& window() { return *window_; }

    // Opens the store and the window and runs the start-up steps.
    void start();
    // The quit steps; true when the application may end now.
    bool requestQuit();

private:
    Profile profile_;
    Settings settings_;
    SystemClock clock_;
    DialogPrompter prompter_;
    AppSession session_;
    DataInterchange interchange_{session_};
    std::unique_ptr<MainWindow> window_;
};

}  // namespace tamo
