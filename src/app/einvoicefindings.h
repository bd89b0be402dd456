#pragma once

#include <QWidget>
#include <vector>

#include "einvoice/findings.h"

class QLabel;
class QListWidget;

namespace tamo {

class AppSession;
class MainWindow;

// The result of the rule check on the generate sheet: one line that says whether the file
// passes, and the findings, each with its rule, severity, sentence and place to change.
// Activating a finding asks to go to that place.
class EinvoiceFindingsView : public QWidget {
    Q_OBJECT

public:
    explicit EinvoiceFindingsView(QWidget* parent = nullptr);

    void showFindings(const std::vector<Finding>& findings);

    QLabel* summary() const { return summary_; }
    QListWidget* list() const { return list_; }

signals:
    void findingActivated(const EinvoiceField& field);

private:
    QLabel* summary_;
    QListWidget* list_;
    std::vector<Finding> findings_;
};

// Shows the place a finding names: the document's field or line in the editor, its shipping or
// discount, or the preferences. The e-invoice details and the sheet's own settings are the
// sheets' business. Returns false for a place it does not know.
bool showEinvoiceField(MainWindow& window, AppSession& session, const EinvoiceField& field);

}  // namespace tamo
