#include "app/appdelegate.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>
#include <QUrl>

#include "app/accountingactions.h"
#include "app/dispatchactions.h"
#include "app/editor/documenteditor.h"
#include "app/einvoicesheets.h"
#include "app/filemenu.h"
#include "app/helpmenu.h"
#include "app/mainwindow.h"
#include "app/preferences/preferencesactions.h"
#include "app/preferences/setupassistantsheet.h"
#include "app/renderactions.h"
#include "app/reportswindow.h"
#include "model/sqlite.h"

namespace tamo {

AppDelegate::AppDelegate(const Profile& profile)
    : profile_(profile),
      settings_(profile.settingsFile),
      session_(profile, settings_, clock_, prompter_),
      window_(std::make_unique<MainWindow>(session_, operations_))
{
    prompter_.setParentWindow(window_.get());
    // The window holds its store for as long as it is open; a command that holds it for a
    // moment is waited for.
    session_.setStoreUse(
        {.lock = true, .window = true, .readsOnly = false, .wait = std::chrono::seconds(10)});
    settings_.setWriteFailureHandler([this](const Error& error) { prompter_.presentError(error); });
    AppSession::Hooks& hooks = session_.hooks();
    hooks.commitEditing = [this] { return window_->editor()->commitEditing(); };
    hooks.relaunch = [this] {
        // The new process must not hand its start over to this one, which is ending.
        listener_.close();
        // Quit as the window does (the run ends in order), and start again on the moved store
        // once this process lets go of the old one.
        connect(qApp, &QCoreApplication::aboutToQuit, qApp, [] {
            QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                    QCoreApplication::arguments().mid(1));
        });
        QTimer::singleShot(0, window_.get(), &QWidget::close);
    };
    hooks.completeBackup = [this] {
        return interchange_.backupCompleteTamoData() == ActionResult::Done;
    };
    hooks.openUrl = [](const QString& url) { return QDesktopServices::openUrl(QUrl(url)); };
    installDataMenu(*window_, interchange_);
    // Before the store opens: its set-up loads the shipped designs through these.
    RenderWindowActions* render = installRenderActions(*window_, session_);
    accounting_ = installAccountingActions(*window_, session_, interchange_, render->designs());
    installEinvoiceActions(*window_, session_);
    installDispatchActions(*window_, session_, *render);
    installReportActions(*window_, session_);
    preferences_ = new PreferencesActions(*window_, session_, render->designs(), interchange_);
    // Once the event loop runs, so that the sheet appears over the finished window.
    hooks.showSetupAssistant = [this] {
        QTimer::singleShot(0, preferences_, &PreferencesActions::doTheAssi);
    };
    // After the assistant, if it is showing: one sheet at a time.
    hooks.showEinvoiceNotice = [this] {
        QTimer::singleShot(0, window_.get(), [this] {
            if (SetupAssistantSheet* sheet = preferences_->assistantSheet()) {
                connect(sheet, &QDialog::finished, window_.get(),
                        [this] { showEinvoiceNotice(window_.get()); });
            } else {
                showEinvoiceNotice(window_.get());
            }
        });
    };
    window_->setCloseGuard([this] { return requestQuit(); });
    connect(&scheduler_, &NotificationScheduler::documentActivated, this,
            &AppDelegate::showNotifiedDocument);
    connect(&listener_, &HandoffListener::received, this, &AppDelegate::answer);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::start()
{
    installHelpMenu(*window_);
    window_->restoreLayout();
    window_->show();
    if (!session_.managedObjectContext() && !offerRecovery()) {
        return;
    }
    DocumentList& documents = session_.documents();
    if (documents.size() > 0) {
        documents.setSelection({documents.at(0)});
    }
    session_.applicationDidFinishLaunching();
    // Notifications whose time passed while Tamo was closed are shown now.
    scheduler_.deliverDue();
    // The safety copy follows the start-up steps once the window is up.
    QTimer::singleShot(0, this, [this] { interchange_.createBackup(); });
}

bool AppDelegate::offerRecovery()
{
    const std::optional<Error>& failure = session_.openFailure();
    if (failure && failure->domain == QLatin1String(kLockErrorDomain) &&
        failure->code == kStoreInUse) {
        // Another Tamo holds the store (the reason has been shown): this window has nothing to
        // show, and the other one stays in charge.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
    if (!failure || failure->domain != QLatin1String(sql::kDomain) ||
        !sql::isDamage(failure->code)) {
        return true;
    }
    const QStringList copies = interchange_.recoverySnapshots();
    const QString recover = tr("Recover Previous Database…");
    const QString restore = tr("Restore E-Tamo Database…");
    QString text =
        tr("Tamo can put a copy of your data in place of the damaged store. The damaged "
           "file is kept as a recovery copy.");
    if (!copies.isEmpty()) {
        text += u' ' + tr("The newest recovery copy is “%1”.").arg(QFileInfo(copies[0]).fileName());
    }
    QStringList buttons{restore, tr("Not Now")};
    if (!copies.isEmpty()) {
        buttons.prepend(recover);
    }
    const QString answer = prompter_.ask({tr("Recover Your Data"), text, buttons});
    if (answer == recover) {
        interchange_.recoverPreviousDatabase();
    } else if (answer == restore) {
        interchange_.restoreCompleteTamoData();
    }
    return true;
}

void AppDelegate::showNotifiedDocument(const QString& uniqueID)
{
    window_->showNormal();
    window_->raise();
    window_->activateWindow();
    operations_.lifecycle.filterForInvoice(uniqueID);
}

void AppDelegate::listen(const QString& socketName)
{
    if (session_.lockHolder()) {
        return;  // the Tamo that holds the store listens, and this one is about to quit
    }
    if (auto listening = listener_.listen(socketName); !listening) {
        qWarning().noquote() << listening.error().text();
    }
}

void AppDelegate::answer(const QStringList& arguments)
{
    accounting_->answer(arguments);
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
