#pragma once

#include <QDialog>
#include <map>
#include <string>

#include "einvoice/einvoiceactions.h"

class QAction;
class QLineEdit;

namespace tamo {

class MainWindow;

// The generate sheet: the choice between exporting the e-invoice and (with the mail dispatch)
// mailing it. Ends with Export or Cancelled.
class EvoiceGenerateSheet : public QDialog {
    Q_OBJECT

public:
    enum Code { Cancelled = 0, Export = 1 };
    explicit EvoiceGenerateSheet(QWidget* parent = nullptr);
};

// The details sheet: the customer's e-invoice values of one invoice. The fields write to the
// invoice as they are edited, so closing and cancelling differ only in the code they end with.
class EvoiceDetailsSheet : public QDialog {
    Q_OBJECT

public:
    enum Code { Cancelled = 0, Closed = 1, Export = 2 };
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
    void openEnvoiceDetailsSheet();
    void loadEvoiceAlertAction();

private:
    void updateActions();

    MainWindow& window_;
    AppSession& session_;
    EinvoiceActions actions_;
    QList<QAction*> documentActions_;
};

// Adds the "Document" menu entries and the toolbar buttons of the e-invoice to the window.
EinvoiceWindowActions* installEinvoiceActions(MainWindow& window, AppSession& session);

// The e-invoicing notice, left open beside the window; its link buttons open the browser.
void showEinvoiceNotice(QWidget* window);

}  // namespace tamo
