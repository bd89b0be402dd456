#pragma once

#include <QDialog>

class QListWidget;
class QStackedWidget;

namespace tamo {

class AppSession;
class DataInterchange;
class DesignLibrary;
class DesignPane;
class SettingFields;

// The preferences: eight panes beside a list of them, each editing its settings directly. A
// value is written as soon as it is changed and read by the operations when they need it.
class ZPPreferencePanel : public QDialog {
    Q_OBJECT

public:
    ZPPreferencePanel(AppSession& session, DesignLibrary& designs, DataInterchange& interchange,
                      QWidget* parent = nullptr);

    DesignPane* designPane() const { return designs_; }
    SettingFields& fields() const { return *fields_; }
    QListWidget* paneList() const { return list_; }
    // Shows the pane of this object name ("prefs_taxes_Template"); false when there is none.
    bool showPane(const QString& name);
    // Shows the field of a setting on its pane, with the focus in it.
    bool showSetting(const QString& key);
    void done(int code) override;

private:
    void addPane(QWidget* pane, const QString& title, const char* icon);

    SettingFields* fields_;
    QListWidget* list_;
    QStackedWidget* stack_;
    DesignPane* designs_;
};

}  // namespace tamo
