#include "app/accountingactions.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QVBoxLayout>

#include "app/filemenu.h"
#include "app/ledrixsheet.h"
#include "app/mainwindow.h"
#include "model/appsession.h"

namespace tamo {

namespace {

// Dims the window and shows the progress of the import request in a panel at its centre; it
// follows the window's size.
class ProgressOverlay : public QWidget {
public:
    explicit ProgressOverlay(QWidget* window) : QWidget(window)
    {
        setObjectName(QStringLiteral("ledrixProgress"));
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(QStringLiteral("#ledrixProgress { background: rgba(0, 0, 0, 128); }"));
        window->installEventFilter(this);
        setGeometry(window->rect());
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == parent() && event->type() == QEvent::Resize) {
            setGeometry(parentWidget()->rect());
        }
        return false;
    }
};

}  // namespace

AccountingActions::AccountingActions(MainWindow& window, AppSession& session,
                                     DataInterchange& interchange, DesignLibrary& designs)
    : QObject(&window),
      window_(window),
      session_(session),
      requests_(session, interchange, designs),
      send_(session)
{
    addActions();
    LedrixImport& import = requests_.ledrixImport();
    connect(&import, &LedrixImport::started, this, &AccountingActions::importStarted);
    connect(&import, &LedrixImport::pdfFinished, this,
            [this](int done, int count) { pdfFinished(done, count); });
    connect(&import, &LedrixImport::ended, this, &AccountingActions::importEnded);
    connect(&import, &LedrixImport::finished, this, &AccountingActions::importFinished);
}

void AccountingActions::addActions()
{
    QMenu* file = window_.menuBar()->actions().value(0)->menu();
    auto* menu = new QMenu(tr("Send To"), file);
    menu->setObjectName(QStringLiteral("sendToMenu"));
    QAction* ledrix = menu->addAction(QIcon(QStringLiteral(":/icons/LedrixIcon.svg")),
                                      tr("Ledrix…"), this, [this] { sendToLedrix(0); });
    ledrix->setObjectName(QStringLiteral("sendToLedrix"));
    QAction* kelvane = menu->addAction(QIcon(QStringLiteral(":/icons/KelvanePROIcon.svg")),
                                       tr("Kelvane…"), this, [this] { sendToLedrix(1); });
    kelvane->setObjectName(QStringLiteral("sendToKelvane"));
    menu->addSeparator();
    menu->addAction(tr("Importing from Within Ledrix…"), this,
                    [this] { send_.newLedrixImportHint(); })
        ->setObjectName(QStringLiteral("newLedrixImportHint"));
    QAction* before = fileMenuInsertionPoint(file);
    file->insertSeparator(before);
    file->insertMenu(before, menu);
    // Sending needs the store.
    connect(menu, &QMenu::aboutToShow, this, [this, ledrix, kelvane] {
        const bool open = session_.context() != nullptr;
        ledrix->setEnabled(open);
        kelvane->setEnabled(open);
    });
}

void AccountingActions::sendToLedrix(int tag)
{
    if (!session_.context() ||
        (session_.hooks().commitEditing && !session_.hooks().commitEditing())) {
        return;
    }
    auto* sheet = new LedrixSendSheet(session_, send_, tag, &window_);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void AccountingActions::answer(const QStringList& arguments)
{
    window_.showNormal();
    window_.raise();
    window_.activateWindow();
    for (const QString& argument : arguments) {
        if (argument.startsWith(u"tamo:", Qt::CaseInsensitive)) {
            requests_.handleURL(argument);
        } else {
            requests_.openFile(argument);
        }
    }
}

void AccountingActions::importStarted(int count)
{
    delete overlay_;
    overlay_ = new ProgressOverlay(&window_);
    auto* panel = new QWidget(overlay_);
    panel->setObjectName(QStringLiteral("ledrixPanel"));
    panel->setAttribute(Qt::WA_StyledBackground);
    panel->setStyleSheet(
        QStringLiteral("#ledrixPanel { background: palette(window); "
                       "border-radius: 8px; }"));
    panel->setMinimumWidth(360);
    progressText_ = new QLabel(panel);
    progress_ = new QProgressBar(panel);
    progress_->setRange(0, count);
    progress_->setTextVisible(false);  // the line below counts
    auto* inner = new QVBoxLayout(panel);
    inner->setContentsMargins(20, 16, 20, 16);
    inner->addWidget(new QLabel(QStringLiteral("<b>%1</b>")
                                    .arg(tr("Preparing invoices for "
                                            "Ledrix")),
                                panel));
    inner->addWidget(progress_);
    inner->addWidget(progressText_);
    auto* outer = new QVBoxLayout(overlay_);
    outer->addWidget(panel, 0, Qt::AlignCenter);
    pdfFinished(0, count);
    overlay_->show();
    overlay_->raise();
    window_.showNormal();
    window_.raise();
}

void AccountingActions::pdfFinished(int done, int count)
{
    if (!overlay_) {
        return;
    }
    progress_->setValue(done);
    progressText_->setText(tr("%1 of %2 PDFs written").arg(done).arg(count));
}

void AccountingActions::importEnded(bool exported)
{
    delete overlay_;
    if (!exported) {
        // The windows close before the error alert; the application ends once it is dismissed.
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::closeAllWindows();
    }
}

void AccountingActions::importFinished()
{
    // The request ends the application, through the usual quit steps.
    QApplication::closeAllWindows();
    if (!window_.isVisible()) {
        QCoreApplication::quit();
    } else {
        QApplication::setQuitOnLastWindowClosed(true);
    }
}

AccountingActions* installAccountingActions(MainWindow& window, AppSession& session,
                                            DataInterchange& interchange, DesignLibrary& designs)
{
    return new AccountingActions(window, session, interchange, designs);
}

}  // namespace tamo
