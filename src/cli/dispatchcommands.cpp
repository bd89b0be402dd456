// Printing, the PDF file, mail and the document file on the command line: the export sheet's
// operations without the sheet, the save panel answered with the file argument. A document that
// went out is marked as sent as in the window.

#include <QFileInfo>

#include "cli/argumentprompter.h"
#include "cli/commands.h"
#include "dispatch/dispatch.h"
#include "pdf/pdfrenderer.h"
#include "render/designlibrary.h"
#include "render/invoicehtml.h"

namespace tamo {

namespace {

// Answers the save panel with the command's file and keeps what the operations say instead of
// printing it, so that a failure becomes the command's one line. Questions get their last
// button: nothing is opened on the desktop.
class CollectingPrompter : public Prompter {
public:
    CollectingPrompter(Prompter& console, const QString& file) : files_(console, file) {}

    QString ask(const Alert& alert) override
    {
        said_ << alert.text;
        return alert.buttons.value(alert.buttons.size() - 1);
    }
    bool presentError(const Error& error) override
    {
        said_ << error.text();
        return false;
    }
    std::optional<QString> chooseFileToOpen(const FileRequest& r) override
    {
        return files_.chooseFileToOpen(r);
    }
    std::optional<QString> chooseFileToSave(const FileRequest& r) override
    {
        return files_.chooseFileToSave(r);
    }

    Failure failure(const QString& otherwise) const
    {
        QString text = said_.isEmpty() ? otherwise : said_.first();
        return Failure{text.replace(u"\n\n"_qs, u" "_qs).replace(u'\n', u' ')};
    }

private:
    ArgumentPrompter files_;
    QStringList said_;
};

// Says when the export marked the document as sent (the statistics pass may have moved it on
// to overdue since).
class SentNote {
public:
    explicit SentNote(AppSession& session) : session_(session), before_(status()) {}
    void print(QTextStream& out) const
    {
        if (before_ == 0 && status() > 0) {
            out << tr("%1 is marked as sent").arg(session_.documents().current()->string("number"))
                << '\n';
        }
    }

private:
    int status() const
    {
        const Record* document = session_.documents().current();
        return document ? int(document->integer("status")) : 0;
    }

    AppSession& session_;
    int before_;
};

// What the export needs besides the session, as the window has it.
struct DispatchParts {
    explicit DispatchParts(AppSession& session, const QString& file)
        : designs(session),
          html(session, designs),
          renderer(session.applicationDataDirectory()),
          prompter(session.prompter(), file),
          dispatch(session, html, renderer, printers, mail)
    {
        dispatch.setPrompter(prompter);
    }

    DesignLibrary designs;
    InvoiceHtml html;
    PdfRenderer renderer;
    CupsPrintSystem printers;
    MailClient mail;
    CollectingPrompter prompter;
    Dispatch dispatch;
    std::optional<SentNote> sent;  // from the moment the document is chosen
};

// The export sheet from beginning to OK for the document named by the first operand.
std::optional<Failure> runExport(AppSession& session, const CommandArgs& args, ExportKind kind,
                                 DispatchParts& parts)
{
    auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return document.error();
    }
    parts.sent.emplace(session);
    Dispatch& dispatch = parts.dispatch;
    if (!dispatch.beginExport(kind)) {
        return parts.prompter.failure(tr("nothing was exported"));
    }
    // The document file needs no page.
    if (kind != ExportKind::DocumentFile) {
        if (auto pdf = dispatch.createExportPDFAndWait(); !pdf) {
            return parts.prompter.failure(pdf.error().text());
        }
    }
    switch (dispatch.exportCommand(kind)) {
    case ActionResult::Done:
        return std::nullopt;
    case ActionResult::Cancelled:
        return Failure{tr("%1: nothing was written").arg(args.operand(0))};
    case ActionResult::Failed:
        break;
    }
    return parts.prompter.failure(tr("the export failed"));
}

}  // namespace

std::optional<Failure> printCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() != 1) {
        return args.usage();
    }
    DispatchParts parts(session, {});
    parts.dispatch.setPrinterName(args.value(u"--printer"_qs));
    if (auto failure = runExport(session, args, ExportKind::Print, parts)) {
        return failure;
    }
    out << tr("Printed %1").arg(session.settings().string(key::currentPrintJobTitle)) << '\n';
    parts.sent->print(out);
    return std::nullopt;
}

std::optional<Failure> pdfCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() != 2) {
        return args.usage();
    }
    DispatchParts parts(session, args.operand(1));
    if (auto failure = runExport(session, args, ExportKind::PdfFile, parts)) {
        return failure;
    }
    out << tr("Wrote %1").arg(QFileInfo(args.operand(1)).absoluteFilePath()) << '\n';
    parts.sent->print(out);
    return std::nullopt;
}

std::optional<Failure> mailCommand(AppSession& session, const CommandArgs& args, QTextStream& out)
{
    if (args.operandCount() != 1) {
        return args.usage();
    }
    DispatchParts parts(session, {});
    if (!args.has(u"--einvoice"_qs)) {
        if (auto failure = runExport(session, args, ExportKind::PdfMail, parts)) {
            return failure;
        }
        out << tr("Handed %1 to the mail client").arg(parts.dispatch.pdfEmailPath()) << '\n';
        parts.sent->print(out);
        return std::nullopt;
    }
    auto document = selectDocument(session, args.operand(0));
    if (!document) {
        return document.error();
    }
    parts.sent.emplace(session);
    EinvoiceActions actions(session);
    const EinvoiceOptions options = einvoiceOptions(session.settings());
    if (auto refused = einvoiceGate(actions, args.operand(0), options, false, out)) {
        return refused;
    }
    if (parts.dispatch.mailEvoiceAction(options) != ActionResult::Done) {
        return parts.prompter.failure(tr("the e-invoice was not mailed"));
    }
    out << tr("Handed %1 to the mail client").arg(parts.dispatch.evoiceXMLPath()) << '\n';
    parts.sent->print(out);
    return std::nullopt;
}

std::optional<Failure> exportDocumentCommand(AppSession& session, const CommandArgs& args,
                                             QTextStream& out)
{
    if (args.operandCount() != 2) {
        return args.usage();
    }
    DispatchParts parts(session, args.operand(1));
    parts.dispatch.setDocumentFileFormat(int(args.has(u"--xml"_qs)
                                                 ? DocumentFileFormat::XmlPropertyList
                                                 : DocumentFileFormat::TamoArchive));
    if (auto failure = runExport(session, args, ExportKind::DocumentFile, parts)) {
        return failure;
    }
    out << tr("Wrote %1").arg(QFileInfo(args.operand(1)).absoluteFilePath()) << '\n';
    parts.sent->print(out);
    return std::nullopt;
}

}  // namespace tamo
