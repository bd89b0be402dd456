#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "setup/setupassistant.h"

namespace tamo {

class DataInterchange;
class DesignLibrary;
class MainWindow;
class SetupAssistantSheet;

// Edit → Preferences… and Edit → Setup Assistant…, and the assistant at the first start.
class PreferencesActions : public QObject {
    Q_OBJECT

public:
    PreferencesActions(MainWindow& window, AppSession& session, DesignLibrary& designs,
                       DataInterchange& interchange);
    ~PreferencesActions() override;

    // Opens the preferences; with a setting's key, on that setting's field.
    void showPreferences(const QString& setting = {});
    // At start-up: the assistant's sheet until it has been completed once.
    void doTheAssi();
    // From the menu, after the warning when it was completed before.
    void openAssi();
    // The sheet while it is open.
    SetupAssistantSheet* assistantSheet() const { return sheet_; }

signals:
    // The assistant's sheet closed, whichever way.
    void assistantFinished();

private:
    void showAssistant();

    MainWindow& window_;
    AppSession& session_;
    DesignLibrary& designs_;
    DataInterchange& interchange_;
    SetupAssistant assistant_;
    QPointer<SetupAssistantSheet> sheet_;
    int lastPane_ = 0;
};

}  // namespace tamo
