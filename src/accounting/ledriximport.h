#pragma once

#include <QCoreApplication>
#include <QObject>
#include <memory>
#include <vector>

#include "accounting/ledrix.h"
#include "platform/error.h"

namespace tamo {

class AppSession;
class PdfExportQueue;
class PdfRenderer;
class Record;

// The accounting application's import request: one PDF per matching invoice, the list
// "LedrixImport.plist" that describes them, and the callback that tells Ledrix where the list
// is. The request ends the application in every case; `finished` says when.
class LedrixImport : public QObject {
    Q_OBJECT

public:
    explicit LedrixImport(AppSession& session, QObject* parent = nullptr);
    ~LedrixImport() override;

    void setOpener(DesktopOpener opener) { opener_ = std::move(opener); }

    // The listed invoices of `kind` ("kind", "paid" or "sent") from the start of `start`'s day
    // to the end of `end`'s day, in the list's order. Another kind is an error.
    Result<std::vector<Record*>> newLedrixArray(const QDateTime& start, const QDateTime& end,
                                                const QString& kind) const;

    // "FOLDER/NUMBER_N.pdf": the number with only its letters and digits ("MissingInvoiceNumber"
    // for an invoice without one), N its position in the list from 1.
    static QString importPdfPath(const QString& folder, const Record& invoice, long position);
    QString importListPath() const;
    // "ledrix://action?key=importTamo&value=PATH&kind=ID", the path percent-encoded.
    static QString callbackUrl(const QString& listPath, const QString& uniqueID);

    // Starts the request with its texts as they came: the first and last day, the kind and the
    // request's identifier. Returns at once; the PDFs are written while the event loop runs.
    void doTheNewLedrixExport(const QString& startText, const QString& endText, const QString& kind,
                              const QString& uniqueID);
    bool isRunning() const { return running_; }

signals:
    // The list is known; `count` PDFs are being written.
    void started(int count);
    void pdfFinished(int done, int count, const QString& path, bool written);
    // The work is over; on failure the error alert follows, on success the callback.
    void ended(bool exported);
    // The request is done: the application ends now.
    void finished(bool exported);

private:
    void run(const QString& startText, const QString& endText, const QString& kind,
             const QString& uniqueID);
    Result<void> writeImportList(const std::vector<Record*>& invoices,
                                 const std::vector<QString>& paths);
    void pdfsDone(const QString& uniqueID);
    void failed(const QString& text);

    AppSession& session_;
    DesktopOpener opener_;
    std::vector<std::unique_ptr<PdfRenderer>> renderers_;
    std::unique_ptr<PdfExportQueue> queue_;
    bool running_ = false;
};

}  // namespace tamo
