#include "app/dispatchactions.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPageRanges>
#include <QPdfDocument>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/editor/documenteditor.h"
#include "app/einvoicesheets.h"
#include "app/mainwindow.h"
#include "app/previewpane.h"
#include "app/renderactions.h"

namespace tamo {

ExportSheet::ExportSheet(ExportKind kind, QWidget* parent)
    : QDialog(parent), preview_(new PreviewPane(this)), status_(new QLabel(this))
{
    setObjectName(QStringLiteral("exportSheet"));
    setWindowTitle(Dispatch::exportString(kind));
    setWindowModality(Qt::WindowModal);
    auto* heading =
        new QLabel(u"<b>"_qs + Dispatch::exportString(kind).toHtmlEscaped() + u"</b>"_qs, this);
    status_->setText(tr("Preparing the document…"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("exportCommand"));
    ok_->setEnabled(false);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cancelExport"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(preview_, 1);
    layout->addWidget(status_);
    layout->addWidget(buttons);
    resize(820, 760);
}

void ExportSheet::setOKEnabled(const QString& path)
{
    preview_->showFile(path);
    status_->setText(tr("%n page(s)", nullptr, preview_->pageCount()));
    ok_->setEnabled(true);
    ok_->setDefault(true);
    ok_->setFocus(Qt::OtherFocusReason);
}

std::optional<PrintJob> DialogPrintSystem::choose(const PrintJob& proposed)
{
    QPrinter printer(QPrinter::HighResolution);
    const QString name = proposed.printer.isEmpty() ? defaultPrinter() : proposed.printer;
    if (!name.isEmpty()) {
        printer.setPrinterName(name);
    }
    printer.setDocName(proposed.title);
    printer.setPageLayout(proposed.layout);
    QPdfDocument pdf;
    pdf.load(proposed.file);
    QPrintDialog dialog(&printer, window_);
    dialog.setWindowTitle(QObject::tr("Print"));
    dialog.setMinMax(1, std::max(1, pdf.pageCount()));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    PrintJob job = proposed;
    job.printer = printer.printerName();
    job.outputFile = printer.outputFileName();
    job.layout = printer.pageLayout();
    job.copies = printer.copyCount();
    job.collate = printer.collateCopies();
    job.pageRanges =
        printer.printRange() == QPrinter::PageRange ? printer.pageRanges().toString() : QString();
    job.sides = printer.duplex() == QPrinter::DuplexLongSide    ? PrintJob::Sides::LongEdge
                : printer.duplex() == QPrinter::DuplexShortSide ? PrintJob::Sides::ShortEdge
                                                                : PrintJob::Sides::OneSided;
    return job;
}

DispatchWindowActions::DispatchWindowActions(MainWindow& window, AppSession& session,
                                             RenderWindowActions& render)
    : QObject(&window),
      window_(window),
      session_(session),
      renderer_(session.applicationDataDirectory()),
      dispatch_(session, render.html(), renderer_, printers_, mail_)
{
    printers_.setParentWindow(&window);
    struct Entry {
        ExportKind kind;
        QString text;
        QString iconText;
        const char* name;
        const char* icon;
        QKeySequence keys;
    };
    const Entry entries[] = {
        {ExportKind::Print, tr("&Print…"), tr("Print"), "printInvoice", "document-print",
         QKeySequence::Print},
        {ExportKind::PdfFile, tr("Export As PD&F…"), tr("PDF"), "pdfInvoice", "x-office-document",
         QKeySequence(Qt::CTRL | Qt::Key_E)},
        {ExportKind::PdfMail, tr("Send PDF by &Mail…"), tr("Mail"), "emailInvoice", "mail-send",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M)},
        {ExportKind::DocumentFile, tr("Export As Tamo &Document…"), QString(), "exportDocument",
         nullptr, QKeySequence()},
    };
    for (const Entry& e : entries) {
        auto* a = new QAction(e.text, this);
        a->setObjectName(QString::fromLatin1(e.name));
        if (e.icon) {
            a->setIcon(QIcon::fromTheme(QString::fromLatin1(e.icon)));
        }
        if (!e.iconText.isEmpty()) {
            a->setIconText(e.iconText);
        }
        a->setShortcut(e.keys);
        connect(a, &QAction::triggered, this, [this, kind = e.kind] { runExport(kind); });
        actions_ << a;
    }

    // In the File menu, after Save.
    QMenu* file = window.menuBar()->actions().value(0)->menu();
    QAction* save = window.action(QStringLiteral("save"));
    const QList<QAction*> fileActions = file->actions();
    const qsizetype at = fileActions.indexOf(save);
    QAction* before = at >= 0 ? fileActions.value(at + 1) : nullptr;
    file->insertSeparator(before);
    file->insertActions(before, actions_);
    // The document file follows the preferences' choice of format.
    QAction* document = actions_.last();
    connect(file, &QMenu::aboutToShow, document, [this, document] {
        document->setText(session_.settings().integer(key::exportFormat) == 1
                              ? tr("Export As XML &Document…")
                              : tr("Export As Tamo &Document…"));
    });
    window.addToolBarActions(actions_.first(3));

    if (auto* einvoice = window.findChild<EinvoiceWindowActions*>()) {
        einvoice->setMailer([this](const EinvoiceOptions& options) { mailEvoice(options); });
    }
    // What goes out is the document as it stands: sent ones too.
    for (QAction* a : actions_) {
        window.setActionNeeds(a, MainWindow::Needs::Document);
    }
}

DispatchWindowActions::~DispatchWindowActions() = default;

void DispatchWindowActions::runExport(ExportKind kind)
{
    window_.editor()->commitEditing();
    if (!dispatch_.beginExport(kind)) {
        return;
    }
    ExportSheet sheet(kind, &window_);
    connect(&dispatch_, &Dispatch::exportReady, &sheet, &ExportSheet::setOKEnabled);
    // "Ooops!" has said why; the sheet has nothing to show.
    connect(&dispatch_, &Dispatch::exportFailed, &sheet, &QDialog::reject);
    dispatch_.createExportPDF();
    if (sheet.exec() != QDialog::Accepted) {
        dispatch_.cancelExport();
        return;
    }
    dispatch_.exportCommand(kind);
}

void DispatchWindowActions::mailEvoice(const EinvoiceOptions& options)
{
    dispatch_.mailEvoiceAction(options);
}

DispatchWindowActions* installDispatchActions(MainWindow& window, AppSession& session,
                                              RenderWindowActions& render)
{
    return new DispatchWindowActions(window, session, render);
}

}  // namespace tamo
