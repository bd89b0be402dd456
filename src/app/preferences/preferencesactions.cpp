#include "app/preferences/preferencesactions.h"

#include <QAction>
#include <QListWidget>
#include <QMenu>

#include "app/mainwindow.h"
#include "app/preferences/preferencepanel.h"
#include "app/preferences/setupassistantsheet.h"

namespace tamo {

PreferencesActions::PreferencesActions(MainWindow& window, AppSession& session,
                                       DesignLibrary& designs, DataInterchange& interchange)
    : QObject(&window),
      window_(window),
      session_(session),
      designs_(designs),
      interchange_(interchange),
      assistant_(session, designs)
{
    // Where the desktop expects them: at the end of the Edit menu.
    QMenu* edit = nullptr;
    if (QAction* undo = window.action(QStringLiteral("undo"))) {
        for (QObject* o : undo->associatedObjects()) {
            edit = edit ? edit : qobject_cast<QMenu*>(o);
        }
    }
    if (!edit) {
        return;
    }
    edit->addSeparator();
    QAction* preferences = edit->addAction(tr("&Preferences…"), this, [this] {
        auto* action = qobject_cast<QAction*>(sender());
        // A finding of the e-invoice check names the setting to show in the action's data.
        const QString setting = action ? action->data().toString() : QString();
        if (action) {
            action->setData(QVariant());
        }
        showPreferences(setting);
    });
    preferences->setObjectName(QStringLiteral("preferences"));
    // Desktops without a key of their own for it get the usual one.
    const bool platformKey = !QKeySequence::keyBindings(QKeySequence::Preferences).isEmpty();
    preferences->setShortcut(platformKey ? QKeySequence(QKeySequence::Preferences)
                                         : QKeySequence(Qt::CTRL | Qt::Key_Comma));
    preferences->setIcon(QIcon::fromTheme(QStringLiteral("preferences-system")));
    preferences->setMenuRole(QAction::PreferencesRole);
    QAction* assistant =
        edit->addAction(tr("Setup &Assistant…"), this, &PreferencesActions::openAssi);
    assistant->setObjectName(QStringLiteral("openAssi"));
}

PreferencesActions::~PreferencesActions() = default;

void PreferencesActions::showPreferences(const QString& setting)
{
    ZPPreferencePanel panel(session_, designs_, interchange_, &window_);
    panel.paneList()->setCurrentRow(lastPane_);
    if (!setting.isEmpty()) {
        panel.showSetting(setting);
    }
    panel.exec();
    lastPane_ = panel.paneList()->currentRow();
}

void PreferencesActions::doTheAssi()
{
    if (assistant_.doTheAssi()) {
        showAssistant();
    }
}

void PreferencesActions::openAssi()
{
    if (sheet_) {
        sheet_->raise();
        return;
    }
    if (assistant_.openAssi()) {
        showAssistant();
    }
}

void PreferencesActions::showAssistant()
{
    sheet_ = new SetupAssistantSheet(assistant_, session_.settings(), &window_);
    sheet_->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet_, &SetupAssistantSheet::finished, this, &PreferencesActions::assistantFinished);
    connect(sheet_, &SetupAssistantSheet::manualRequested, this, [this] {
        if (QAction* manual = window_.findChild<QAction*>(QStringLiteral("showManual"))) {
            manual->trigger();
        }
    });
    // Through the window's own closing, so that the quit is recorded as orderly.
    connect(sheet_, &SetupAssistantSheet::quitRequested, &window_, &QWidget::close,
            Qt::QueuedConnection);
    // A sheet: modal to the window, without stopping the start-up that showed it.
    sheet_->open();
}

}  // namespace tamo
