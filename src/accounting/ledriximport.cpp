#include "accounting/ledriximport.h"

#include <QDir>
#include <QFile>
#include <QTimer>
#include <QUrl>

#include "accounting/lenientdate.h"
#include "accounting/texthelpers.h"
#include "interchange/recorddictionary.h"
#include "model/appsession.h"
#include "pdf/pdfoutput.h"
#include "render/designlibrary.h"
#include "render/invoicehtml.h"

namespace tamo {

LedrixImport::LedrixImport(AppSession& session, QObject* parent)
    : QObject(parent), session_(session), opener_(systemOpener())
{
}

LedrixImport::~LedrixImport() = default;

Result<std::vector<Record*>> LedrixImport::newLedrixArray(const QDateTime& start,
                                                          const QDateTime& end,
                                                          const QString& kind) const
{
    const auto chosen = ledrixKindFromText(kind);
    if (!chosen) {
        return fail(QString::fromLatin1(kAccountingDomain), kUnknownKind,
                    tr("Ledrix asked for invoices of the kind \"%1\", which Tamo does not know.")
                        .arg(kind.left(40)));
    }
    return ledrixInvoices(session_.documents().arranged(), start.toLocalTime().date().startOfDay(),
                          end.toLocalTime().date().endOfDay(), *chosen);
}

QString LedrixImport::importPdfPath(const QString& folder, const Record& invoice, long position)
{
    QString number = invoice.string("number");
    if (number.isEmpty()) {
        number = QStringLiteral("Missing_Invoice_Number");
    }
    return QStringLiteral("%1/%2_%3.pdf").arg(folder, fileURLString(number)).arg(position);
}

QString LedrixImport::importListPath() const
{
    return QDir(ledrixFolder(session_)).filePath(QStringLiteral("LedrixImport.plist"));
}

QString LedrixImport::callbackUrl(const QString& listPath, const QString& uniqueID)
{
    return QStringLiteral("ledrix://action?key=importTamo&value=%1&kind=%2")
        .arg(QString::fromLatin1(QUrl::toPercentEncoding(listPath, "/")),
             QString::fromLatin1(QUrl::toPercentEncoding(uniqueID)));
}

void LedrixImport::doTheNewLedrixExport(const QString& startText, const QString& endText,
                                        const QString& kind, const QString& uniqueID)
{
    if (running_) {
        qCWarning(lcAccounting) << "An import request is still running; the new one is ignored";
        return;
    }
    running_ = true;
    // The progress shows first; the work follows from the event loop.
    QTimer::singleShot(0, this, [=, this] { run(startText, endText, kind, uniqueID); });
}

void LedrixImport::run(const QString& startText, const QString& endText, const QString& kind,
                       const QString& uniqueID)
{
    const auto start = dateFromString(startText);
    const auto end = dateFromString(endText);
    Result<std::vector<Record*>> list =
        start && end ? newLedrixArray(*start, *end, kind)
                     : fail(QString::fromLatin1(kAccountingDomain), kMalformedRequest,
                            tr("Ledrix asked for the dates \"%1\" and \"%2\", which Tamo cannot "
                               "read.")
                                .arg(startText.left(40), endText.left(40)));
    if (!list || list->empty()) {
        if (!list) {
            qCWarning(lcAccounting).noquote() << list.error().text();
        }
        failed(
            tr("Could not generate import data.\nPlease check your import settings in "
               "Ledrix."));
        return;
    }
    const std::vector<Record*>& invoices = *list;
    const int count = int(invoices.size());
    qCInfo(lcAccounting).noquote() << QStringLiteral("newLedrixArray.count: %1").arg(count);
    const QString folder = ledrixFolder(session_);
    QDir().mkpath(folder);

    // Rendered with the first design, as normal invoices; the user's choice is kept.
    DesignLibrary designs(session_);
    const int selected = session_.settings().integer(key::selectedDesign);
    designs.selectDesign(0);
    InvoiceHtml html(session_, designs);
    // Side by side on a machine with more than one core.
    renderers_.clear();
    std::vector<PdfRenderer*> workers;
    for (int i = 0; i < batchRendererCount(count); ++i) {
        renderers_.push_back(std::make_unique<PdfRenderer>(session_.applicationDataDirectory()));
        workers.push_back(renderers_.back().get());
    }
    queue_ = std::make_unique<PdfExportQueue>(workers);
    auto done = std::make_shared<int>(0);
    connect(queue_.get(), &PdfExportQueue::itemFinished, this, [this, done, count](int index) {
        const ExporterItem& item = queue_->items()[size_t(index)];
        if (!item.completed) {
            qCWarning(lcAccounting).noquote() << QStringLiteral("Failed to write %1: %2")
                                                     .arg(item.destinationURL, item.error->text());
        }
        emit pdfFinished(++*done, count, item.destinationURL, item.completed);
    });
    connect(queue_.get(), &PdfExportQueue::finished, this,
            [this, uniqueID] { pdfsDone(uniqueID); });

    const QPageLayout layout = html.pageLayout();
    std::vector<QString> paths;
    for (long n = 1; const Record* invoice : invoices) {
        const QString path = importPdfPath(folder, *invoice, n++);
        qCInfo(lcAccounting).noquote() << "path:" << path;
        // A PDF that fails leaves no file of an earlier request behind.
        QFile::remove(path);
        paths.push_back(path);
    }
    emit started(count);
    for (size_t i = 0; i < invoices.size(); ++i) {
        queue_->add({html.invoiceHTMLStringFromInvoice(*invoices[i]), paths[i], layout});
    }
    designs.selectDesign(selected);

    if (auto written = writeImportList(invoices, paths); !written) {
        qCWarning(lcAccounting).noquote() << written.error().text();
        queue_->disconnect(this);
        for (const auto& renderer : renderers_) {
            renderer->cancelAll();
        }
        failed(tr("Could not write the import list for Ledrix.") + u"\n\n"_qs +
               written.error().text());
    }
}

Result<void> LedrixImport::writeImportList(const std::vector<Record*>& invoices,
                                           const std::vector<QString>& paths)
{
    Plist array(plist_new_array());
    for (size_t i = 0; i < invoices.size(); ++i) {
        auto dictionary = toDictionary(*invoices[i]);
        if (!dictionary) {
            qCWarning(lcAccounting).noquote() << dictionary.error().text();
            continue;
        }
        plist_dict_set_item(dictionary->get(), "path",
                            plist_new_string(paths[i].toUtf8().constData()));
        plist_array_append_item(array.get(), dictionary->release());
    }
    auto bytes = serializePlist(array.get(), PlistFormat::Xml);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    return writeFileAtomically(importListPath(), *bytes);
}

void LedrixImport::pdfsDone(const QString& uniqueID)
{
    emit ended(true);
    const QString url = callbackUrl(importListPath(), uniqueID);
    qCInfo(lcAccounting).noquote() << "Calling back" << url;
    opener_(url, [this](const Result<void>& opened) {
        if (!opened) {
            qCWarning(lcAccounting).noquote() << opened.error().text();
        }
        running_ = false;
        emit finished(true);
    });
}

void LedrixImport::failed(const QString& text)
{
    emit ended(false);
    session_.prompter().ask({tr("Error!"), text, {tr("OK")}});
    running_ = false;
    emit finished(false);
}

}  // namespace tamo
