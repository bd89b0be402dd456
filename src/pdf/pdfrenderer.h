#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QPageLayout>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "platform/error.h"

class QWebEnginePage;
class QWebEngineProfile;

namespace tamo {

inline constexpr auto kRenderDomain = "Tamo.render";

enum RenderError {
    kPageNotLoaded = 1,
    kPrintFailed,
    kRunawayPages,
    kRunawayTime,
    kRendererStopped,
    kPdfNotWritten,
};

// Where the web engine lays out and prints pages: in helper processes of its own (the window, and
// commands that print many pages side by side), or inside this process (a command that prints one
// document and ends: starting no helpers halves its time on a busy machine). In this process
// there is only ever one engine, so a page stopped by the limits cannot be followed by another.
enum class EngineProcesses { Separate, Single };

// Call before the application object exists: the web engine shares the graphics contexts, and
// the page may not open network connections of its own (WebRTC).
void prepareRendering(EngineProcesses processes = EngineProcesses::Separate);

// What one page given to the PdfRenderer may do.
struct PdfPageOptions {
    bool scripts = false;  // run the page's scripts (the sales report draws its charts)
};

// Turns HTML pages into PDF through one off-screen web page that is reused for every job; jobs
// run one after the other, each printed only once its page has finished loading.
//
// The page is closed to the outside: no request leaves for the network and no file outside
// `localFolder` is read (the logo lives there). Scripts run only on pages that ask for them
// (`PageOptions::scripts`): documents are HTML and CSS, and a value in a document may carry
// markup that must not script the page. A design whose layout runs away (some flex layouts make
// the engine print tens of thousands of blank pages) is stopped by the limits and reported as an
// error; nothing is written then.
class PdfRenderer : public QObject {
    Q_OBJECT

public:
    struct Limits {
        int maxPages = 1000;
        int maxMilliseconds = 30000;  // loading and printing one page
    };
    using Done = std::function<void(const Result<QByteArray>& pdf)>;
    using PageOptions = PdfPageOptions;

    explicit PdfRenderer(const QString& localFolder, QObject* parent = nullptr);
    ~PdfRenderer() override;

    void setLimits(Limits limits) { limits_ = limits; }
    Limits limits() const { return limits_; }

    // Queues a page; `done` runs on this thread with the PDF or the reason there is none.
    // `asker` tells whose page it is, so that one asker can drop its own pages and leave the
    // others' alone.
    void render(const QString& html, const QPageLayout& layout, Done done, PageOptions options = {},
                int asker = 0);
    // Drops the waiting jobs; their callbacks are not called. The running one goes on.
    void cancelWaiting() { queue_.clear(); }
    void cancelWaiting(int asker);
    // Drops the waiting jobs and stops the one running (on a fresh engine process, so that the
    // next page does not wait for the stopped one); their callbacks are not called.
    void cancelAll();
    // Stops the running job when it is `asker`'s; the waiting ones go on.
    void cancelRunning(int asker);
    bool isBusy() const { return running_ != nullptr; }
    // How long the running job has taken so far; 0 when idle.
    qint64 busyMilliseconds() const { return running_ ? started_.elapsed() : 0; }

    // Renders one page and waits for it (the command line has no other work meanwhile).
    Result<QByteArray> renderAndWait(const QString& html, const QPageLayout& layout,
                                     PageOptions options = {});

private:
    struct Job {
        QString html;
        QPageLayout layout;
        Done done;
        PageOptions options;
        int asker = 0;
    };
    void startNext();
    void loaded(bool ok);
    void printed(const QByteArray& pdf);
    void finish(const Result<QByteArray>& result);
    void timedOut();
    void resetPage();
    void dropEngine();
    void stopRunning();

    QString localFolder_;
    Limits limits_;
    std::unique_ptr<QWebEngineProfile> profile_;
    std::unique_ptr<QObject> interceptor_;
    std::unique_ptr<QWebEnginePage> page_;
    // Stopped pages with their profiles, kept until this renderer goes.
    struct Retired {
        std::unique_ptr<QWebEnginePage> page;
        std::unique_ptr<QWebEngineProfile> profile;
        std::unique_ptr<QObject> interceptor;
    };
    std::vector<Retired> retired_;
    std::deque<Job> queue_;
    std::unique_ptr<Job> running_;
    QString spillFile_;  // the page is handed to the engine through this file
    QTimer watchdog_;
    QElapsedTimer started_;
    quint64 generation_ = 0;  // tells a stopped job's late callbacks from the current one's
};

// The number of pages of a PDF the web engine wrote (the count of its page tree); 0 when the
// bytes hold none.
int pdfPageCount(const QByteArray& pdf);

}  // namespace tamo
