#include "dispatch/dispatch.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QUrl>

#include "interchange/plistfile.h"
#include "pdf/pdfrenderer.h"
#include "render/designlibrary.h"
#include "render/invoicehtml.h"

Q_LOGGING_CATEGORY(lcDispatch, "tamo.dispatch", QtInfoMsg)

namespace tamo {

Dispatch::Dispatch(AppSession& session, InvoiceHtml& html, PdfRenderer& renderer,
                   PrintSystem& printers, MailClient& mail, QObject* parent)
    : QObject(parent),
      session_(session),
      html_(html),
      renderer_(renderer),
      printers_(&printers),
      mail_(mail),
      prompter_(&session.prompter()),
      einvoice_(session)
{
}

QString Dispatch::exportString(ExportKind kind)
{
    switch (kind) {
    case ExportKind::Print:
        return tr("Print Invoice");
    case ExportKind::PdfFile:
        return tr("Export Invoice As PDF File");
    case ExportKind::PdfMail:
        return tr("Send PDF Invoice As Mail Attachment");
    case ExportKind::DocumentFile:
        break;
    }
    return tr("Export Document File");
}

QString Dispatch::pdfPath() const
{
    return QDir(session_.applicationDataDirectory()).filePath(QStringLiteral("Invoice.pdf"));
}

QString Dispatch::pdfEmailPath() const
{
    return QDir(session_.applicationDataDirectory()).filePath(QStringLiteral("PDFInvoice.pdf"));
}

QString Dispatch::jobName() const
{
    const Record* document = session_.documents().current();
    if (!document) {
        return {};
    }
    return QStringLiteral("%1 - %2 - %3")
        .arg(session_.settings().string(key::prefsName), document->string("title"),
             document->string("number"));
}

QString Dispatch::evoiceXMLPath() const
{
    return QDir(session_.applicationDataDirectory())
        .filePath(einvoice_.proposedFileName() + QStringLiteral(".xml"));
}

ActionResult Dispatch::failed(const Error& error)
{
    qCWarning(lcDispatch).noquote() << error.text();
    prompter_->presentError(error);
    return ActionResult::Failed;
}

bool Dispatch::beginExport(ExportKind kind)
{
    if (!session_.documents().current()) {
        return false;
    }
    if (html_.designs().designs().empty()) {
        prompter_->ask({tr("Error!"),
                        tr("No design available. Please download or create a design."),
                        {tr("OK")}});
        return false;
    }
    qCDebug(lcDispatch).noquote() << "Export:" << exportString(kind);
    session_.settings().set(key::currentPrintJobTitle, jobName());
    exportPdf_.clear();
    return true;
}

void Dispatch::createExportPDF()
{
    QFile::remove(pdfPath());
    exportPdf_.clear();
    const quint64 request = ++request_;
    renderer_.render(
        html_.invoiceHTMLString(), html_.pageLayout(),
        [this, request](const Result<QByteArray>& pdf) { exportPdfWritten(pdf, request); });
}

Result<void> Dispatch::createExportPDFAndWait()
{
    QFile::remove(pdfPath());
    exportPdf_.clear();
    const quint64 request = ++request_;
    const auto pdf = renderer_.renderAndWait(html_.invoiceHTMLString(), html_.pageLayout());
    if (!exportPdfWritten(pdf, request)) {
        return fail(QString::fromLatin1(kDispatchDomain), kDispatchNoPdf,
                    tr("Something went really wrong while creating the preview."),
                    pdf ? QString() : pdf.error().text());
    }
    return {};
}

bool Dispatch::exportPdfWritten(const Result<QByteArray>& pdf, quint64 request)
{
    if (request != request_) {
        return false;  // a newer request follows
    }
    const Result<void> written =
        pdf ? writeFileAtomically(pdfPath(), *pdf) : Result<void>(std::unexpected(pdf.error()));
    if (!written) {
        prompter_->ask({tr("Ooops!"),
                        tr("Something went really wrong while creating the preview.") + u"\n\n"_qs +
                            written.error().text(),
                        {tr("OK")}});
        emit exportFailed();
        return false;
    }
    exportPdf_ = *pdf;
    emit exportReady(pdfPath());
    return true;
}

void Dispatch::cancelExport()
{
    ++request_;  // a PDF still printing is not shown any more
    exportPdf_.clear();
}

ActionResult Dispatch::exportCommand(ExportKind kind)
{
    if (!session_.documents().current()) {
        return ActionResult::Cancelled;
    }
    ActionResult result = ActionResult::Failed;
    switch (kind) {
    case ExportKind::Print:
        result = printPdf();
        break;
    case ExportKind::PdfFile:
        result = savePdf();
        break;
    case ExportKind::PdfMail:
        result = mailPdf();
        break;
    case ExportKind::DocumentFile:
        result = exportDocumentFile();
        break;
    }
    if (result == ActionResult::Done) {
        finishExport(kind);
    }
    return result;
}

void Dispatch::finishExport(ExportKind kind)
{
    einvoice_.markAsSent();
    session_.saveContext();
    emit exported(kind);
}

ActionResult Dispatch::printPdf()
{
    if (exportPdf_.isEmpty()) {
        return failed({QString::fromLatin1(kDispatchDomain),
                       kDispatchNoPdf,
                       tr("The document has not been printed into a PDF yet."),
                       {}});
    }
    PrintJob job;
    job.file = pdfPath();
    job.title = session_.settings().string(key::currentPrintJobTitle);
    job.printer = printerName_;
    job.layout = html_.pageLayout();
    if (session_.settings().integer(key::printBehavior) == 1) {
        const auto chosen = printers_->choose(job);
        if (!chosen) {
            return ActionResult::Cancelled;
        }
        job = *chosen;
    }
    if (auto printed = printers_->submit(job); !printed) {
        return failed(printed.error());
    }
    qCInfo(lcDispatch).noquote() << "Printed" << job.title << "on"
                                 << (job.outputFile.isEmpty()
                                         ? (job.printer.isEmpty() ? printers_->defaultPrinter()
                                                                  : job.printer)
                                         : job.outputFile);
    return ActionResult::Done;
}

ActionResult Dispatch::savePdf()
{
    FileRequest request;
    request.title = tr("Export As PDF File");
    request.extensions = {QStringLiteral("pdf")};
    request.proposedName = jobName().replace(u'/', u'-');
    request.canCreateDirectories = true;
    const auto path = prompter_->chooseFileToSave(request);
    if (!path || path->isEmpty()) {
        return ActionResult::Cancelled;
    }
    if (exportPdf_.isEmpty()) {
        return failed({QString::fromLatin1(kDispatchDomain),
                       kDispatchNoPdf,
                       tr("The document has not been printed into a PDF yet."),
                       {}});
    }
    if (auto written = writeFileAtomically(*path, exportPdf_); !written) {
        return failed(written.error());
    }
    qCInfo(lcDispatch).noquote() << "Saved" << QFileInfo(*path).fileName() << "at" << *path;
    return ActionResult::Done;
}

ActionResult Dispatch::mailPdf()
{
    if (exportPdf_.isEmpty()) {
        return failed({QString::fromLatin1(kDispatchDomain),
                       kDispatchNoPdf,
                       tr("The document has not been printed into a PDF yet."),
                       {}});
    }
    if (auto written = writeFileAtomically(pdfEmailPath(), exportPdf_); !written) {
        return failed(written.error());
    }
    return sendEmail(pdfEmailPath());
}

ActionResult Dispatch::sendEmail(const QString& attachment)
{
    const Record* document = session_.documents().current();
    const MailMessage message{jobName(), mailBody(session_.settings().string(key::tempEmailBody)),
                              document->string("emailAddress"), attachment};
    const auto sent = mail_.compose(message);
    if (sent) {
        return ActionResult::Done;
    }
    const QString folder = QFileInfo(attachment).absolutePath();
    const QString show = tr("Show in Folder");
    const QString answer = prompter_->ask(
        {tr("Error!"),
         sent.error().text() + u"\n\n"_qs +
             tr("The file to attach is kept at %1; you can attach it to a message yourself.")
                 .arg(attachment),
         {show, tr("OK")}});
    if (answer == show && session_.hooks().openUrl) {
        session_.hooks().openUrl(QUrl::fromLocalFile(folder).toString());
    }
    qCWarning(lcDispatch).noquote() << sent.error().text();
    return ActionResult::Failed;
}

ActionResult Dispatch::mailEvoiceAction(const EinvoiceOptions& options)
{
    if (!session_.documents().current()) {
        return ActionResult::Cancelled;
    }
    einvoice_.markAsSent();
    session_.saveContext();
    QDir().mkpath(session_.applicationDataDirectory());
    const QString path = evoiceXMLPath();
    QFile::remove(path);
    if (auto written = einvoice_.writeEvoiceXML(path, options); !written) {
        return failed(written.error());
    }
    return sendEmail(path);
}

}  // namespace tamo
