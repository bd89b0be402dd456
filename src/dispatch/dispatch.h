#pragma once

#include <QByteArray>
#include <QObject>

#include "dispatch/mailclient.h"
#include "dispatch/printsystem.h"
#include "einvoice/einvoiceactions.h"
#include "interchange/datainterchange.h"

namespace tamo {

class InvoiceHtml;
class PdfRenderer;

// What the export sheet's OK button does with the current document.
enum class ExportKind { Print = 0, PdfFile = 1, PdfMail = 2, DocumentFile = 3 };

// The values of the setting exportFormat that write a document file.
enum class DocumentFileFormat { TamoArchive = 0, XmlPropertyList = 1 };

// Sends the current document out: printed, saved as a PDF file, attached as a PDF to a new mail
// message, saved as a document file, or, for the e-invoice, attached as XML to a new message.
// Every kind starts the same way (beginExport: a design must exist; the job title is kept), then
// the document is printed into the preview file "Invoice.pdf" that the export sheet shows
// (createExportPDF), and the sheet's OK button runs exportCommand. Once a document went out, an
// invoice is marked as sent when the settings ask for it (one undo step); a quote never is.
//
// Questions and panels go through the session's prompter; printers through a PrintSystem and the
// mail client through a MailClient, both at the edge of the machine. Log lines go to
// "tamo.dispatch".
class Dispatch : public QObject {
    Q_OBJECT

public:
    Dispatch(AppSession& session, InvoiceHtml& html, PdfRenderer& renderer, PrintSystem& printers,
             MailClient& mail, QObject* parent = nullptr);

    // "Print Invoice", "Export Invoice As PDF File", ...: the export sheet's title.
    static QString exportString(ExportKind kind);

    QString pdfPath() const;       // "Invoice.pdf" in the application data folder
    QString pdfEmailPath() const;  // "PDFInvoice.pdf" there
    // "name - title - number" of the current document, from prefsName.
    QString jobName() const;

    void setPrintSystem(PrintSystem& printers) { printers_ = &printers; }
    // Questions and panels go here instead of the session's prompter (the command line answers
    // the save panel with the path it was given).
    void setPrompter(Prompter& prompter) { prompter_ = &prompter; }
    // The printer a print goes to without its dialog; empty: the default printer.
    void setPrinterName(const QString& name) { printerName_ = name; }
    // The document file's format; without one, the setting exportFormat decides.
    void setDocumentFileFormat(std::optional<int> format) { documentFormat_ = format; }

    // printInvoice:, pdfInvoice:, emailInvoice: and the document file, up to the export sheet:
    // false, after "No design available", when there is no design; otherwise the job title is
    // kept in currentPrintJobTitle. False without a word when no document is selected.
    bool beginExport(ExportKind kind);
    // Prints the current document (in the mode of the last preview) into pdfPath; exportReady
    // follows, or "Ooops!" and exportFailed. A newer request replaces one still printing.
    void createExportPDF();
    // The same, waiting for it (the command line).
    Result<void> createExportPDFAndWait();
    bool hasExportPdf() const { return !exportPdf_.isEmpty(); }
    // The export sheet's Cancel: the sheet's PDF is dropped.
    void cancelExport();
    // The export sheet's OK.
    ActionResult exportCommand(ExportKind kind);

    // The generate sheet's mail button: marks as sent, writes the e-invoice into the data folder
    // (named from prefsSupplierLegalName, title and number; the same file each time) and opens a
    // mail message with it attached.
    ActionResult mailEvoiceAction(const EinvoiceOptions& options);
    // "legal name - title - number.xml" in the data folder.
    QString evoiceXMLPath() const;

signals:
    void exportReady(const QString& path);
    void exportFailed();
    // A document went out and may have been marked as sent.
    void exported(tamo::ExportKind kind);

private:
    ActionResult printPdf();
    ActionResult savePdf();
    ActionResult mailPdf();
    ActionResult exportDocumentFile();
    ActionResult sendEmail(const QString& attachment);
    ActionResult failed(const Error& error);
    void finishExport(ExportKind kind);
    bool exportPdfWritten(const Result<QByteArray>& pdf, quint64 request);

    AppSession& session_;
    InvoiceHtml& html_;
    PdfRenderer& renderer_;
    PrintSystem* printers_;
    MailClient& mail_;
    Prompter* prompter_;
    EinvoiceActions einvoice_;
    QString printerName_;
    std::optional<int> documentFormat_;
    QByteArray exportPdf_;  // what the sheet shows and the export writes
    quint64 request_ = 0;
};

}  // namespace tamo
