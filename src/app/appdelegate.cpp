#include "app/appdelegate.h"

#include <QApplication>
#include <QProcess>
#include <QTimer>

#include "app/documenteditor.h"
#include "app/filemenu.h"
#include "app/mainwindow.h"

// Resources compiled into a static library are registered by hand, or the linker drops them.
static void initResources()
{
    Q_INIT_RESOURCE(stamps);
}

namespace tamo {

AppDelegate::AppDelegate(const Profile& profile)
    : profile_((initResources(), profile)),
      settings_(profile.settingsFile),
      session_(profile, settings_, clock_, prompter_),
      window_(std::make_unique<MainWindow>(session_))
{
    prompter_.setParentWindow(window_.get());
    AppSession::Hooks& hooks = session_.hooks();
    hooks.commitEditing = [this] { return window_->editor()->commitEditing(); };
    hooks.relaunch = [] {
        // Start again on the moved store once this process has let go of the old one.
        QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                QCoreApplication::arguments().mid(1));
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    };
    hooks.completeBackup = [this] {
        return interchange_.backupCompleteTamoData() == ActionResult::Done;
    };
    installDataMenu(*window_, interchange_);
    window_->setCloseGuard([this] { return requestQuit(); });
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::start()
{
    window_->restoreLayout();
    window_->show();
    session_.managedObjectContext();
    DocumentList& documents = session_.documents();
    if (documents.size() > 0) {
        documents.setSelection({documents.at(0)});
    }
    session_.applicationDidFinishLaunching();
    // The safety copy follows the start-up steps once the window is up.
    QTimer::singleShot(0, this, [this] { interchange_.createBackup(); });
}

bool AppDelegate::requestQuit()
{
    if (session_.applicationShouldTerminate() == AppSession::TerminateReply::Cancel) {
        return false;
    }
    session_.applicationWillTerminate();
    return true;
}

}  // namespace tamo
