#pragma once

#include <QDialog>

class QButtonGroup;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace tamo {

class SettingFields;
class Settings;
class SetupAssistant;

// The setup assistant's sheet on the main window: the language whose starting values apply, the
// business, its e-invoice details, and a last page that ends it. Closing it any other way leaves
// it undone, so that it shows again at the next start.
class SetupAssistantSheet : public QDialog {
    Q_OBJECT

public:
    enum Page { LanguagePage, CompanyPage, SupplierPage, FinishPage };

    SetupAssistantSheet(SetupAssistant& assistant, Settings& settings, QWidget* parent = nullptr);

    QStackedWidget* pages() const { return pages_; }
    QPushButton* continueButton() const { return next_; }
    SettingFields& fields() const { return fields_; }
    void selectLanguage(int languageDefaults);

    // The buttons: the first page's applies the starting values, the last page's ends the
    // assistant; going back changes nothing.
    void firstAssiTabAction();
    void next();
    void back();
    void closeAssi();
    // Ends the sheet and quits Tamo.
    void quitAssi();

signals:
    void manualRequested();
    void quitRequested();

private:
    void showPage(int page);

    SetupAssistant& assistant_;
    SettingFields& fields_;
    QStackedWidget* pages_;
    QButtonGroup* languages_;
    QPushButton* back_;
    QPushButton* next_;
    QLabel* summary_;
};

}  // namespace tamo
