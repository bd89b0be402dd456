#include "pdf/pdfoutput.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QThread>

#include "interchange/plistfile.h"
#include "model/appsession.h"
#include "render/designlibrary.h"
#include "render/pagelayout.h"

Q_DECLARE_LOGGING_CATEGORY(lcPdf)

namespace tamo {

namespace {
// Longer than a page of ordinary length takes to print here.
constexpr qint64 kLongPrint = 2000;
}  // namespace

PdfOutput::PdfOutput(AppSession& session, InvoiceHtml& html, PdfRenderer& renderer, QObject* parent)
    : QObject(parent), session_(session), html_(html), renderer_(renderer)
{
}

QString PdfOutput::previewPath() const
{
    return QDir(session_.applicationDataDirectory()).filePath(QStringLiteral("Invoice.pdf"));
}

QString PdfOutput::attachmentPath() const
{
    return QDir(session_.applicationDataDirectory()).filePath(QStringLiteral("PDFInvoice.pdf"));
}

void PdfOutput::generatePreview()
{
    generate(RenderMode::Document, {}, Preview);
}

void PdfOutput::cancelPreview()
{
    renderer_.cancelWaiting(Preview);
    ++request_[Preview];
    waiting_[Preview] = false;
    updateBusy();
}

void PdfOutput::generateReminder(const SheetTexts& texts)
{
    generate(RenderMode::Reminder, texts, Preview);
}

void PdfOutput::generateSlip(const SheetTexts& texts)
{
    generate(RenderMode::Slip, texts, Preview);
}

void PdfOutput::selectDesign(int index)
{
    html_.designs().selectDesign(index);
    generate(html_.mode(), html_.sheetTexts(), TemplatePreview);
}

void PdfOutput::updateBusy()
{
    const bool busy = std::find(waiting_.begin(), waiting_.end(), true) != waiting_.end();
    if (busy != busy_) {
        busy_ = busy;
        emit busyChanged(busy);
    }
}

void PdfOutput::generate(RenderMode mode, const SheetTexts& texts, Target target)
{
    html_.setMode(mode, texts);
    if (!session_.settings().boolean(key::isMainPreviewAction)) {
        session_.settings().set(key::isMainPreviewAction, true);
    }
    // This target's requests still waiting are out of date now; its page printing finishes, and
    // its result is dropped (stopping it would cost a new engine process, more than most pages
    // take).
    renderer_.cancelWaiting(target);
    if (renderer_.busyMilliseconds() > kLongPrint) {
        renderer_.cancelRunning(target);  // probably a layout running away: no need to wait
    }
    const quint64 request = ++request_[target];
    waiting_[target] = true;
    updateBusy();
    renderer_.render(
        html_.invoiceHTMLString(), html_.pageLayout(),
        [this, target, request](const Result<QByteArray>& pdf) { createPDF(pdf, target, request); },
        {}, target);
}

void PdfOutput::createPDF(const Result<QByteArray>& pdf, Target target, quint64 request)
{
    if (request != request_[target]) {
        return;
    }
    waiting_[target] = false;
    updateBusy();
    Result<void> written =
        pdf ? writeFileAtomically(previewPath(), *pdf) : Result<void>(std::unexpected(pdf.error()));
    if (!written) {
        const QString what = target == Preview
                                 ? tr("Something went really wrong while creating the preview.")
                                 : tr("Something went really wrong while creating the design "
                                      "preview.");
        showOoops(session_.prompter(), what + u"\n\n"_qs + written.error().text());
        if (target == TemplatePreview) {
            emit templatePreviewFailed();
        }
        return;
    }
    if (target == Preview) {
        emit previewReady(previewPath());
    } else {
        emit templatePreviewReady(previewPath());
    }
}

Result<void> PdfOutput::writePdf(const Record& document, const QString& path)
{
    auto pdf =
        renderer_.renderAndWait(html_.invoiceHTMLStringFromInvoice(document), html_.pageLayout());
    if (!pdf) {
        return std::unexpected(pdf.error());
    }
    return writeFileAtomically(path, *pdf);
}

PdfExportQueue::PdfExportQueue(std::vector<PdfRenderer*> renderers, QObject* parent)
    : QObject(parent), renderers_(std::move(renderers)), busy_(renderers_.size(), false)
{
}

void PdfExportQueue::add(ExporterItem item)
{
    items_.push_back(std::move(item));
    startWaiting();
}

void PdfExportQueue::startWaiting()
{
    for (size_t worker = 0; worker < renderers_.size() && next_ < items_.size(); ++worker) {
        if (busy_[worker]) {
            continue;
        }
        busy_[worker] = true;
        const size_t index = next_++;
        const ExporterItem& item = items_[index];
        renderers_[worker]->render(
            item.source, item.layout,
            [this, worker, index](const Result<QByteArray>& pdf) { written(worker, index, pdf); });
    }
}

void PdfExportQueue::written(size_t worker, size_t index, const Result<QByteArray>& pdf)
{
    ExporterItem& done = items_[index];
    qCDebug(lcPdf).noquote() << "self.destinationURL.path:" << done.destinationURL;
    Result<void> written = pdf ? writeFileAtomically(done.destinationURL, *pdf)
                               : Result<void>(std::unexpected(pdf.error()));
    done.completed = written.has_value();
    if (!written) {
        done.error = written.error();
    }
    busy_[worker] = false;
    ++finished_;
    startWaiting();
    emit itemFinished(int(index));
    if (isFinished()) {
        emit finished();
    }
}

void PdfExportQueue::waitForFinished()
{
    if (isFinished()) {
        return;
    }
    QEventLoop loop;
    connect(this, &PdfExportQueue::finished, &loop, &QEventLoop::quit);
    loop.exec();
}

int batchRendererCount(qsizetype count)
{
    return int(std::clamp<qsizetype>(std::min<qsizetype>(QThread::idealThreadCount(), 2), 1,
                                     std::max<qsizetype>(count, 1)));
}

QString batchExportPath(const QString& folder, const Record& document, long number)
{
    QString name = document.string("number");
    if (name.isEmpty()) {
        name = document.string("title");
    }
    // A number such as "2026/17" must not reach into another folder.
    static const QRegularExpression unsafe(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]"));
    name.replace(unsafe, QStringLiteral("-"));
    if (name.isEmpty() || name.startsWith(u'.')) {
        name.prepend(QStringLiteral("Document"));
    }
    return QStringLiteral("%1/%2_%3.pdf").arg(folder, name).arg(number);
}

}  // namespace tamo
