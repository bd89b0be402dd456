#pragma once

#include <QDialog>
#include <QPointer>

#include "dispatch/dispatch.h"
#include "pdf/pdfrenderer.h"

class QAction;
class QLabel;
class QPushButton;

namespace tamo {

class MainWindow;
class PreviewPane;
class RenderWindowActions;

// The export sheet: the document as it will go out, with OK once its PDF is shown.
class ExportSheet : public QDialog {
    Q_OBJECT

public:
    ExportSheet(ExportKind kind, QWidget* parent = nullptr);

    // The PDF is written: show it and let OK go.
    void setOKEnabled(const QString& path);
    PreviewPane* preview() const { return preview_; }
    QPushButton* okButton() const { return ok_; }

private:
    PreviewPane* preview_;
    QLabel* status_;
    QPushButton* ok_;
};

// CUPS behind the system's print dialog: printer, copies, pages and sides as chosen there.
class DialogPrintSystem : public CupsPrintSystem {
public:
    void setParentWindow(QWidget* window) { window_ = window; }
    std::optional<PrintJob> choose(const PrintJob& proposed) override;

private:
    QPointer<QWidget> window_;
};

// Printing, the PDF file, mail and the document file in the window: the File menu entries and
// toolbar buttons, the export sheet between them and Dispatch, and the mail button of the
// e-invoice sheets.
class DispatchWindowActions : public QObject {
    Q_OBJECT

public:
    DispatchWindowActions(MainWindow& window, AppSession& session, RenderWindowActions& render);
    ~DispatchWindowActions() override;

    Dispatch& dispatch() { return dispatch_; }
    // Tests print into files instead of on the machine's printers.
    void setPrintSystem(PrintSystem& printers) { dispatch_.setPrintSystem(printers); }

    // printInvoice:, pdfInvoice:, emailInvoice: and the document file: the export sheet, then
    // the kind's own step on OK.
    void runExport(ExportKind kind);
    void mailEvoice(const EinvoiceOptions& options);

private:
    MainWindow& window_;
    AppSession& session_;
    PdfRenderer renderer_;  // its own page: the preview's requests cancel each other, not this
    DialogPrintSystem printers_;
    MailClient mail_;
    Dispatch dispatch_;
    QList<QAction*> actions_;
};

// Adds the File menu entries, the toolbar buttons and the e-invoice mail to the window.
DispatchWindowActions* installDispatchActions(MainWindow& window, AppSession& session,
                                              RenderWindowActions& render);

}  // namespace tamo
