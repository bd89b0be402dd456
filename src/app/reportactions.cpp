// The Reports menu and toolbar button of the main window: the sales report window and printing
// the account book.
#include <QAction>
#include <QApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>

#include "app/mainwindow.h"
#include "app/reportswindow.h"
#include "model/appsession.h"
#include "reports/accountbook.h"

namespace tamo {

namespace {

const char* const kReportHint = QT_TRANSLATE_NOOP(
    "tamo::ReportWindowActions",
    "The report is bound to the arranged invoices in Tamo's main window. This means you can, for "
    "example, search for a client and therefore see the report just for this single client or "
    "you can pre-filter all your invoices to see a report only for overdue invoices.");

}  // namespace

ReportWindowActions::ReportWindowActions(MainWindow& window, AppSession& session)
    : QObject(&window), window_(window), session_(session), report_(session)
{
    // The chart script is made available in the data folder as the application starts.
    report_.loadChartScript();

    auto* show =
        new QAction(QIcon(QStringLiteral(":/icons/report.svg")), tr("Sales &Report"), this);
    show->setObjectName(QStringLiteral("showReportsWindow"));
    show->setIconText(tr("Report"));
    show->setToolTip(tr("Counts and sums of the listed invoices"));
    show->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    connect(show, &QAction::triggered, this, &ReportWindowActions::showReportsWindow);
    auto* book = new QAction(QIcon::fromTheme(QStringLiteral("document-print")),
                             tr("Print &Account Book…"), this);
    book->setObjectName(QStringLiteral("printAccountBook"));
    book->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    connect(book, &QAction::triggered, this, &ReportWindowActions::printAccountBook);

    auto* menu = new QMenu(tr("&Reports"), window.menuBar());
    menu->setObjectName(QStringLiteral("reportsMenu"));
    menu->addActions({show, book});
    window.menuBar()->addMenu(menu);

    window.addToolBarActions({show});
}

void ReportWindowActions::showReportsWindow()
{
    if (reports_ && reports_->isVisible()) {
        reports_->hide();
        return;
    }
    Settings& s = session_.settings();
    if (!s.boolean(key::isReportHintShown)) {
        session_.prompter().ask({tr("Hint!"), tr(kReportHint), {tr("OK")}});
        const QDateTime now = session_.clock().now();
        s.set(key::reportDateL, now);
        s.set(key::reportDateR, now);
        s.set(key::isReportHintShown, true);
    }
    if (!reports_) {
        reports_ = new ReportsWindow(session_, report_, &window_);
    }
    reports_->generateReportAction();
    // Centred on the screen of the main window.
    if (const QScreen* screen = window_.screen()) {
        QRect frame = reports_->frameGeometry();
        frame.moveCenter(screen->availableGeometry().center());
        reports_->move(frame.topLeft());
    }
    reports_->show();
    reports_->raise();
    reports_->activateWindow();
}

void ReportWindowActions::printAccountBook()
{
    AccountBook accountBook(session_);
    accountBook.showPrintHint();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const std::unique_ptr<PrinterDocument> book = accountBook.accountBookDocument();
    book->layout();
    QApplication::restoreOverrideCursor();
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(tr("Account Book"));
    printer.setPageSize(QPageSize(book->pageSize, QPageSize::Point));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(72, 40, 72, 40), QPageLayout::Point);
    QPrintDialog dialog(&printer, &window_);
    dialog.setWindowTitle(tr("Print Account Book"));
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    // Each page at its own size, centred on the sheet: no scaling, no turning.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool printed = book->drawPages(printer);
    QApplication::restoreOverrideCursor();
    if (!printed) {
        showOoops(session_.prompter(), tr("The account book could not be printed."));
    }
}

ReportWindowActions* installReportActions(MainWindow& window, AppSession& session)
{
    return new ReportWindowActions(window, session);
}

}  // namespace tamo
