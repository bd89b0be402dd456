#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "reports/salesreport.h"

class QCheckBox;
class QDateTimeEdit;
class QLabel;
class QPrinter;
class QPushButton;
class QStackedWidget;
class QWebEngineView;

namespace tamo {

class AppSession;
class MainWindow;
class Popover;

// The sales report window: the report page of the invoices listed in the main window, with its
// charts, a refresh button, the date range and printing. The page is the only one in Tamo whose
// scripts run (they draw the charts); it reaches nothing outside itself.
class ReportsWindow : public QWidget {
    Q_OBJECT

public:
    ReportsWindow(AppSession& session, SalesReport& report, QWidget* parent = nullptr);
    ~ReportsWindow() override;

    // Clears the page and builds it again once the window has shown that it is busy.
    void generateReportAction();
    void generateReport();
    void showDatePopover();
    void printReport();
    void printEnd();

    QWebEngineView* view() const { return view_; }
    QPushButton* printButton() const { return print_; }
    Popover* datePopover() const { return popover_; }
    bool isGenerating() const { return generating_; }

signals:
    // The page finished loading (and drawing its charts).
    void reportShown(bool ok);

private:
    void buildDatePopover();
    void updateRangeLabel();
    // The main list changed while the window is open: the report follows it.
    void listChanged();

    AppSession& session_;
    SalesReport& report_;
    QStackedWidget* pages_;
    QWebEngineView* view_;
    QLabel* range_;
    QLabel* listed_;
    QPushButton* dates_;
    QPushButton* print_;
    Popover* popover_ = nullptr;
    QCheckBox* useRange_ = nullptr;
    QDateTimeEdit* from_ = nullptr;
    QDateTimeEdit* to_ = nullptr;
    bool rangeEdited_ = false;
    bool generating_ = false;
    QTimer follow_;
    std::unique_ptr<QPrinter> printer_;
};

// The report and account-book entries of the main window: the Reports menu, the toolbar button
// and the window itself, made when first shown.
class ReportWindowActions : public QObject {
    Q_OBJECT

public:
    ReportWindowActions(MainWindow& window, AppSession& session);

    // Shows the report window, or hides it when it is shown.
    void showReportsWindow();
    void printAccountBook();
    ReportsWindow* reportsWindow() const { return reports_; }

private:
    MainWindow& window_;
    AppSession& session_;
    SalesReport report_;
    ReportsWindow* reports_ = nullptr;
};

// Adds the report window and the account book to the main window.
ReportWindowActions* installReportActions(MainWindow& window, AppSession& session);

}  // namespace tamo
