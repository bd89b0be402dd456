#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <string>

#include "einvoice/einvoiceactions.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace tamo {

class EinvoiceFindingsView;
class MainWindow;

// The generate sheet: the choice of file (standard or conformant, with the exemption category
// and reason for lines without taxes, all kept in the settings), the rule check of that file,
// and the export. Ends with Export, Cancelled, or Jump to the place a finding names.
class EvoiceGenerateSheet : public QDialog {
    Q_OBJECT

public:
    enum Code { Cancelled = 0, Export = 1, Jump = 2, Mail = 3 };
    EvoiceGenerateSheet(EinvoiceActions& actions, Settings& settings, QWidget* parent = nullptr);

    EinvoiceOptions options() const { return einvoiceOptions(settings_); }
    const std::vector<Finding>& findings() const { return findings_; }
    // The place chosen when the sheet ended with Jump.
    EinvoiceField jumpTarget() const { return target_; }
    // Goes to a finding's place: the sheet's own fields stay open, the rest ends it with Jump.
    void jumpTo(const EinvoiceField& field);

    QCheckBox* conformantBox() const { return conformant_; }
    QComboBox* exemptionBox() const { return exemption_; }
    QLineEdit* reasonField() const { return reason_; }
    EinvoiceFindingsView* findingsView() const { return view_; }
    QPushButton* exportButton() const { return export_; }
    QPushButton* mailButton() const { return mail_; }

private:
    void check();
    void exportFile(Code code);

    EinvoiceActions& actions_;
    Settings& settings_;
    QCheckBox* conformant_;
    QComboBox* exemption_;
    QLineEdit* reason_;
    EinvoiceFindingsView* view_;
    QPushButton* export_;
    QPushButton* mail_;
    std::vector<Finding> findings_;
    EinvoiceField target_;
};

// The details sheet: the customer's e-invoice values of one invoice. The fields write to the
// invoice as they are edited, so closing and cancelling differ only in the code they end with.
class EvoiceDetailsSheet : public QDialog {
    Q_OBJECT

public:
    enum Code { Cancelled = 0, Closed = 1, Export = 2, Mail = 3 };
    EvoiceDetailsSheet(EinvoiceActions& actions, const Record& invoice, QWidget* parent = nullptr);

    QLineEdit* field(const std::string& key) const { return fields_.at(key); }
    // Writes a field still being edited before the sheet ends.
    void done(int code) override;

private:
    EinvoiceActions& actions_;
    std::map<std::string, QLineEdit*> fields_;
};

// The e-invoice actions of the window, over EinvoiceActions: the toolbar button and menu
// entries, the two sheets and the notice.
class EinvoiceWindowActions : public QObject {
    Q_OBJECT

public:
    EinvoiceWindowActions(MainWindow& window, AppSession& session);

    // Checks the current invoice, then opens the generate sheet or shows the requirements.
    void evoiceActionToolbar();
    void openEnvoiceGenerateSheet();
    // Opens the details sheet, with the field of `focusKey` focused when one is given.
    void openEnvoiceDetailsSheet(const char* focusKey = nullptr);
    void loadEvoiceAlertAction();
    // What the sheets' mail button does with the chosen file (the dispatch's mail).
    void setMailer(std::function<void(const EinvoiceOptions&)> mailer)
    {
        mailer_ = std::move(mailer);
    }

private:
    // The sheets' two ways out, after the guard and the rule check.
    void sendEinvoice(EvoiceGenerateSheet::Code how, const EinvoiceOptions& options);

    MainWindow& window_;
    AppSession& session_;
    EinvoiceActions actions_;
    QList<QAction*> documentActions_;
    std::function<void(const EinvoiceOptions&)> mailer_;
};

// Adds the "Document" menu entries and the toolbar buttons of the e-invoice to the window.
EinvoiceWindowActions* installEinvoiceActions(MainWindow& window, AppSession& session);

// The e-invoicing notice, left open beside the window; its link buttons open the browser.
void showEinvoiceNotice(QWidget* window);

}  // namespace tamo
