#pragma once

#include <QCoreApplication>
#include <QObject>
#include <array>
#include <vector>

#include "pdf/pdfrenderer.h"
#include "render/invoicehtml.h"

namespace tamo {

class AppSession;

// The PDF operations of the application controller: the main preview in its three modes, the
// design chooser's preview, and one document to a file. Each continues when its page has loaded
// and been printed, never after a fixed wait. A failure shows "Ooops!" and leaves the previous
// preview as it was.
class PdfOutput : public QObject {
    Q_OBJECT

public:
    PdfOutput(AppSession& session, InvoiceHtml& html, PdfRenderer& renderer,
              QObject* parent = nullptr);

    // "Invoice.pdf" and "PDFInvoice.pdf" in the application data folder.
    QString previewPath() const;
    QString attachmentPath() const;

    void generatePreview();
    // Drops the main preview asked for and not yet shown.
    void cancelPreview();
    void generateReminder(const SheetTexts& texts);
    void generateSlip(const SheetTexts& texts);
    // The design chooser: stores the choice and renders the current document with it.
    void selectDesign(int index);
    bool isBusy() const { return busy_; }

    // Writes `document` (as a document, reminder or slip) to `path`, waiting for it; for the
    // command line and other callers without a window.
    Result<void> writePdf(const Record& document, const QString& path);

signals:
    void busyChanged(bool busy);
    // The preview file was written and can be shown.
    void previewReady(const QString& path);
    // The design chooser's preview is ready; its OK button may be enabled.
    void templatePreviewReady(const QString& path);
    // The design chooser's preview could not be made (the reason has been shown).
    void templatePreviewFailed();

private:
    // The main preview and the chooser's are asked for independently: a newer request of one
    // makes only that one's older request out of date.
    enum Target { Preview, TemplatePreview, TargetCount };
    void generate(RenderMode mode, const SheetTexts& texts, Target target);
    // Writes the printed page into the preview file and shows it, or reports the failure.
    void createPDF(const Result<QByteArray>& pdf, Target target, quint64 request);
    void updateBusy();

    AppSession& session_;
    InvoiceHtml& html_;
    PdfRenderer& renderer_;
    bool busy_ = false;
    // Per target: the newest request (older results are out of date when they come) and
    // whether it is still being printed.
    std::array<quint64, TargetCount> request_{};
    std::array<bool, TargetCount> waiting_{};
};

// One document to be written to a file through a shared renderer: `source` is its page,
// `destinationURL` the file, `layout` its paper. `completed` is set once the file is written;
// `error` says why not.
struct ExporterItem {
    QString source;
    QString destinationURL;
    QPageLayout layout;
    bool completed = false;
    std::optional<Error> error{};
};

// A queue of exporter items that prints each page once it has loaded, on one renderer or on
// several at once (each has a page and an engine process of its own, so on a machine with more
// than one core the pages print side by side). Items finish in any order.
class PdfExportQueue : public QObject {
    Q_OBJECT

public:
    explicit PdfExportQueue(PdfRenderer& renderer, QObject* parent = nullptr)
        : PdfExportQueue(std::vector<PdfRenderer*>{&renderer}, parent)
    {
    }
    explicit PdfExportQueue(std::vector<PdfRenderer*> renderers, QObject* parent = nullptr);

    // Adds an item; it starts as soon as a renderer is free.
    void add(ExporterItem item);
    const std::vector<ExporterItem>& items() const { return items_; }
    bool isFinished() const { return finished_ == items_.size(); }
    // Runs the queue to its end.
    void waitForFinished();

signals:
    void itemFinished(int index);
    void finished();

private:
    void startWaiting();
    void written(size_t worker, size_t index, const Result<QByteArray>& pdf);

    std::vector<PdfRenderer*> renderers_;
    std::vector<bool> busy_;  // per renderer: an item of this queue is printing there
    std::vector<ExporterItem> items_;
    size_t next_ = 0;  // the first item not yet handed to a renderer
    size_t finished_ = 0;
};

// How many renderers a batch of `count` pages should print on: one per core, at most two (each
// engine process holds some 100 MiB), and never more than there are pages.
int batchRendererCount(qsizetype count);

// The file name of one document in a batch export: "FOLDER/NAME_N.pdf".
QString batchExportPath(const QString& folder, const Record& document, long number);

}  // namespace tamo
