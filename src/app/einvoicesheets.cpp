#include "app/einvoicesheets.h"

#include <QAction>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/mainwindow.h"

namespace tamo {

EvoiceGenerateSheet::EvoiceGenerateSheet(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("E-Invoice"));
    auto* text = new QLabel(tr("Export the selected invoice as an XRechnung e-invoice (UBL XML "
                               "file). If the preferences ask for it, the invoice is marked as "
                               "sent."),
                            this);
    text->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* exportButton =
        buttons->addButton(tr("Export E-Invoice…"), QDialogButtonBox::AcceptRole);
    exportButton->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { done(Export); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { done(Cancelled); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    setMinimumWidth(420);
}

EvoiceDetailsSheet::EvoiceDetailsSheet(EinvoiceActions& actions, const Record& invoice,
                                       QWidget* parent)
    : QDialog(parent), actions_(actions)
{
    setWindowTitle(tr("E-Invoice Details"));
    auto* form = new QFormLayout;
    for (const EvoiceField& f : evoiceDetailFields()) {
        auto* edit = new QLineEdit(invoice.string(f.key), this);
        connect(edit, &QLineEdit::editingFinished, this,
                [this, edit, key = f.key] { actions_.setEvoiceDetail(key, edit->text()); });
        form->addRow(evoiceFieldLabel(f), edit);
        fields_.emplace(f.key, edit);
    }
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Export E-Invoice…"), QDialogButtonBox::ActionRole)
        ->setObjectName(QStringLiteral("exportButton"));
    buttons->addButton(QDialogButtonBox::Cancel);
    buttons->addButton(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::clicked, this, [this, buttons](QAbstractButton* b) {
        const auto role = buttons->buttonRole(b);
        done(role == QDialogButtonBox::AcceptRole   ? Closed
             : role == QDialogButtonBox::RejectRole ? Cancelled
                                                    : Export);
    });
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    setMinimumWidth(440);
}

void EvoiceDetailsSheet::done(int code)
{
    for (const auto& [key, edit] : fields_) {
        actions_.setEvoiceDetail(key, edit->text());  // unchanged values are left alone
    }
    QDialog::done(code);
}

namespace {

QMenu* documentMenu(MainWindow& window)
{
    const QString name = QStringLiteral("documentMenu");
    if (auto* menu = window.menuBar()->findChild<QMenu*>(name)) {
        return menu;
    }
    auto* menu = new QMenu(QObject::tr("&Document"), window.menuBar());
    menu->setObjectName(name);
    window.menuBar()->addMenu(menu);
    return menu;
}

}  // namespace

EinvoiceWindowActions::EinvoiceWindowActions(MainWindow& window, AppSession& session)
    : QObject(&window), window_(window), session_(session), actions_(session)
{
    auto* exportAction = new QAction(QIcon::fromTheme(QStringLiteral("document-send")),
                                     tr("Export E-Invoice…"), this);
    exportAction->setObjectName(QStringLiteral("evoiceActionToolbar"));
    exportAction->setIconText(tr("E-Invoice"));
    connect(exportAction, &QAction::triggered, this, &EinvoiceWindowActions::evoiceActionToolbar);
    auto* details = new QAction(QIcon::fromTheme(QStringLiteral("document-properties")),
                                tr("E-Invoice Details…"), this);
    details->setObjectName(QStringLiteral("evoiceDetailsToolbar"));
    details->setIconText(tr("E-Invoice Details"));
    connect(details, &QAction::triggered, this, &EinvoiceWindowActions::openEnvoiceDetailsSheet);
    auto* about = new QAction(tr("About E-Invoicing…"), this);
    connect(about, &QAction::triggered, this, &EinvoiceWindowActions::loadEvoiceAlertAction);
    documentActions_ = {exportAction, details};

    QMenu* menu = documentMenu(window);
    menu->addSeparator();
    menu->addActions({exportAction, details, about});

    window.addToolBarActions(documentActions_);
    connect(&session.documents(), &DocumentList::selectionChanged, this,
            &EinvoiceWindowActions::updateActions);
    updateActions();
}

void EinvoiceWindowActions::updateActions()
{
    for (QAction* a : documentActions_) {
        a->setEnabled(session_.documents().current() != nullptr);
    }
}

void EinvoiceWindowActions::evoiceActionToolbar()
{
    if (actions_.isEvoiceActionPossible().possible()) {
        openEnvoiceGenerateSheet();
    } else {
        actions_.showEvoiceActionErrorAlert();
    }
}

void EinvoiceWindowActions::openEnvoiceGenerateSheet()
{
    if (!actions_.mayChangeCurrentInvoice()) {
        return;
    }
    EvoiceGenerateSheet sheet(&window_);
    if (sheet.exec() == EvoiceGenerateSheet::Export) {
        actions_.exportEvoiceAction();
    }
}

void EinvoiceWindowActions::openEnvoiceDetailsSheet()
{
    if (!actions_.mayChangeCurrentInvoice()) {
        return;
    }
    EvoiceDetailsSheet sheet(actions_, *session_.documents().current(), &window_);
    if (sheet.exec() == EvoiceDetailsSheet::Export) {
        // The generate sheet would open only to export at once, so go straight to the export,
        // behind the same guard.
        if (actions_.mayChangeCurrentInvoice()) {
            actions_.exportEvoiceAction();
        }
    }
}

void EinvoiceWindowActions::loadEvoiceAlertAction()
{
    showEinvoiceNotice(&window_);
}

EinvoiceWindowActions* installEinvoiceActions(MainWindow& window, AppSession& session)
{
    return new EinvoiceWindowActions(window, session);
}

void showEinvoiceNotice(QWidget* window)
{
    const EinvoiceNotice notice = einvoiceNotice();
    auto* box = new QMessageBox(QMessageBox::Information, notice.title, notice.title,
                                QMessageBox::NoButton, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->setInformativeText(notice.text);
    QList<QAbstractButton*> buttons;
    for (qsizetype i = 0; i < notice.buttons.size(); ++i) {
        buttons << box->addButton(notice.buttons[i],
                                  i == 0 ? QMessageBox::AcceptRole : QMessageBox::HelpRole);
    }
    QObject::connect(box, &QMessageBox::buttonClicked, box, [buttons, notice](QAbstractButton* b) {
        const qsizetype link = buttons.indexOf(b) - 1;
        if (link >= 0 && link < notice.links.size()) {
            QDesktopServices::openUrl(notice.links[link]);
        }
    });
    box->show();
}

}  // namespace tamo
