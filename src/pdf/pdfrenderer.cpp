#include "pdf/pdfrenderer.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

#include <unistd.h>
#include <csignal>

Q_LOGGING_CATEGORY(lcPdf, "tamo.pdf", QtInfoMsg)

namespace tamo {

namespace {

// Pages handed over in memory travel as a data URL, which the engine limits to 2 MB.
constexpr qsizetype kMaxInlinePage = qsizetype(3) << 19;

// Lets the page read data it carries and files below one folder; everything else is refused,
// the network above all.
class LocalOnly : public QWebEngineUrlRequestInterceptor {
public:
    explicit LocalOnly(const QString& folder, QObject* parent)
        : QWebEngineUrlRequestInterceptor(parent), folder_(canonical(folder))
    {
    }

    void interceptRequest(QWebEngineUrlRequestInfo& info) override
    {
        const QUrl url = info.requestUrl();
        const QString scheme = url.scheme();
        bool allowed = scheme == u"data" || scheme == u"blob" || scheme == u"about";
        if (scheme == u"file" && !folder_.isEmpty()) {
            const QString path = canonical(url.toLocalFile());
            allowed = !path.isEmpty() && path.startsWith(folder_ + u'/');
        }
        if (!allowed) {
            qCInfo(lcPdf).noquote() << "Refused a request of the page:" << url.toDisplayString();
            info.block(true);
        }
    }

private:
    static QString canonical(const QString& path)
    {
        // A link inside the folder that points elsewhere counts as elsewhere.
        return QFileInfo(path).canonicalFilePath();
    }

    QString folder_;
};

Error renderError(int code, QString message)
{
    return Error{QString::fromLatin1(kRenderDomain), code, std::move(message), {}};
}

bool singleProcess = false;
int enginesStarted = 0;

QtMessageHandler previousHandler = nullptr;

// The engine says that it found no graphics backend each time it starts off screen, where it
// prints without one.
void withoutGraphicsNotice(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtWarningMsg && text.startsWith(u"No suitable graphics backend found")) {
        return;
    }
    if (previousHandler) {
        previousHandler(type, context, text);
    }
}

}  // namespace

void prepareRendering(EngineProcesses processes)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // Off screen there is no graphics context to share, which the engine reports at length
    // although it prints well without one.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false"));
    // WebRTC may send UDP packets past every request filter; with this policy it sends none.
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    if (!flags.contains("webrtc-ip-handling-policy")) {
        flags += " --force-webrtc-ip-handling-policy=disable_non_proxied_udp";
    }
    // The engine cannot sandbox its page processes for root and refuses to start at all, which
    // would take the window down with it. Pages stay confined to local data by the request
    // filter.
    if (::geteuid() == 0 && !flags.contains("--no-sandbox")) {
        flags += " --no-sandbox";
    }
    // Off screen (the command line) pages are only printed: no graphics processor is needed,
    // and the engine's own log would only add noise to a command's output; Tamo says itself
    // what failed.
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen") {
        if (!flags.contains("-gpu")) {
            flags += " --disable-gpu";
        }
        if (!flags.contains("--log-level")) {
            flags += " --log-level=3";
        }
        previousHandler = qInstallMessageHandler(withoutGraphicsNotice);
    }
    singleProcess = processes == EngineProcesses::Single || flags.contains("--single-process");
    if (singleProcess && !flags.contains("--single-process")) {
        flags += " --single-process";
    }
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
}

int pdfPageCount(const QByteArray& pdf)
{
    // The root of the page tree counts every page; inner nodes count fewer.
    static const QRegularExpression count(QStringLiteral("/Count (\\d+)"));
    int pages = 0;
    for (const auto& m : count.globalMatch(QString::fromLatin1(pdf))) {
        pages = std::max(pages, m.captured(1).toInt());
    }
    return pages;
}

PdfRenderer::PdfRenderer(const QString& localFolder, QObject* parent)
    : QObject(parent), localFolder_(localFolder)
{
    QDir().mkpath(localFolder_);
    spillFile_ =
        QDir(localFolder_).filePath(QStringLiteral(".render-%1.html").arg(quintptr(this), 0, 16));
    watchdog_.setSingleShot(true);
    connect(&watchdog_, &QTimer::timeout, this, &PdfRenderer::timedOut);
}

PdfRenderer::~PdfRenderer()
{
    ++generation_;
    // Pages before the profiles they belong to.
    page_.reset();
    for (Retired& r : retired_) {
        r.page.reset();
    }
    retired_.clear();
    QFile::remove(spillFile_);
}

void PdfRenderer::resetPage()
{
    // The engine starts with the first page, not with the window or the command.
    if (!profile_) {
        // Off the record: nothing of what a design does is kept on disk.
        ++enginesStarted;
        profile_ = std::make_unique<QWebEngineProfile>();
        interceptor_ = std::make_unique<LocalOnly>(localFolder_, nullptr);
        profile_->setUrlRequestInterceptor(static_cast<LocalOnly*>(interceptor_.get()));
        profile_->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
        profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    }
    page_ = std::make_unique<QWebEnginePage>(profile_.get());
    QWebEngineSettings* s = page_->settings();
    s->setAttribute(QWebEngineSettings::PrintElementBackgrounds, true);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    s->setAttribute(QWebEngineSettings::AllowRunningInsecureContent, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    s->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    s->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    s->setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    s->setAttribute(QWebEngineSettings::AutoLoadIconsForPage, false);
    s->setAttribute(QWebEngineSettings::ShowScrollBars, false);
    connect(page_.get(), &QWebEnginePage::loadFinished, this, &PdfRenderer::loaded);
    connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, [this] {
        finish(std::unexpected(
            renderError(kRendererStopped, tr("The page renderer stopped unexpectedly."))));
    });
}

void PdfRenderer::dropEngine()
{
    // A page that is still laying out would go on using a core and memory for as long as its
    // layout runs; its renderer process is ended at once. (Never this process, which is the
    // renderer itself when the engine runs inside it.)
    if (page_) {
        const qint64 pid = page_->renderProcessPid();
        if (pid > 0 && pid != QCoreApplication::applicationPid()) {
            ::kill(pid_t(pid), SIGKILL);
        }
    }
    // The engine cannot be told to stop printing. Pages of one profile share a renderer
    // process, which would finish the stopped work before the next page; a new profile gets a
    // process of its own.
    // The stopped page and its profile are kept until this renderer goes: the engine tears a
    // stopped page's process down in its own time, and deleting the profile before that aborts
    // the whole process now and then. A stopped layout is rare; what is kept is small.
    if (page_) {
        page_->disconnect(this);
    }
    if (page_ || profile_) {
        retired_.push_back({std::move(page_), std::move(profile_), std::move(interceptor_)});
    }
}

void PdfRenderer::render(const QString& html, const QPageLayout& layout, Done done,
                         PageOptions options, int asker)
{
    queue_.push_back({html, layout, std::move(done), options, asker});
    if (!running_) {
        startNext();
    }
}

void PdfRenderer::cancelWaiting(int asker)
{
    std::erase_if(queue_, [asker](const Job& job) { return job.asker == asker; });
}

void PdfRenderer::stopRunning()
{
    if (running_) {
        running_.reset();
        watchdog_.stop();
        ++generation_;
        dropEngine();
    }
}

void PdfRenderer::cancelAll()
{
    queue_.clear();
    stopRunning();
}

void PdfRenderer::cancelRunning(int asker)
{
    if (running_ && running_->asker == asker) {
        stopRunning();
        startNext();
    }
}

void PdfRenderer::startNext()
{
    if (queue_.empty()) {
        return;
    }
    running_ = std::make_unique<Job>(std::move(queue_.front()));
    queue_.pop_front();
    ++generation_;
    if (!page_) {
        if (singleProcess && !profile_ && enginesStarted > 0) {
            finish(std::unexpected(renderError(
                kRendererStopped, tr("The page renderer was stopped and cannot start again in "
                                     "this process."))));
            return;
        }
        resetPage();
    }
    // Takes effect with the load below.
    page_->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled,
                                    running_->options.scripts);
    watchdog_.start(limits_.maxMilliseconds);
    started_.start();
    // A page goes over as a file: the engine reads it far faster than it parses the same page
    // as a data URL. Where no file can be written (a read-only folder) it goes in memory, as far
    // as the engine's 2 MB limit for data URLs allows.
    const QByteArray utf8 = running_->html.toUtf8();
    QFile spill(spillFile_);
    if (spill.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
        spill.write(utf8) == utf8.size() && spill.flush()) {
        spill.close();
        page_->load(QUrl::fromLocalFile(spillFile_));
        return;
    }
    if (utf8.size() > kMaxInlinePage) {
        finish(std::unexpected(renderError(
            kPageNotLoaded,
            tr("The page could not be handed to the renderer: %1").arg(spill.errorString()))));
        return;
    }
    page_->setHtml(running_->html, QUrl::fromLocalFile(QDir(localFolder_).absolutePath() + u'/'));
}

void PdfRenderer::loaded(bool ok)
{
    if (!running_) {
        return;
    }
    if (!ok) {
        finish(std::unexpected(renderError(kPageNotLoaded, tr("The page could not be loaded."))));
        return;
    }
    const quint64 generation = generation_;
    page_->printToPdf(
        [this, generation](const QByteArray& pdf) {
            if (generation == generation_) {
                printed(pdf);
            }
        },
        running_->layout);
}

void PdfRenderer::printed(const QByteArray& pdf)
{
    if (!running_) {
        return;
    }
    if (pdf.isEmpty()) {
        finish(std::unexpected(renderError(kPrintFailed, tr("The page could not be printed."))));
        return;
    }
    if (const int pages = pdfPageCount(pdf); pages > limits_.maxPages) {
        finish(std::unexpected(renderError(
            kRunawayPages, tr("The design's layout ran away: it made %1 pages, more than the %2 "
                              "that are printed. Check the design's style sheet.")
                               .arg(pages)
                               .arg(limits_.maxPages))));
        return;
    }
    finish(pdf);
}

void PdfRenderer::timedOut()
{
    if (!running_) {
        return;
    }
    const Result<QByteArray> failure = std::unexpected(renderError(
        kRunawayTime, tr("The page took longer than %1 seconds to print, so it was stopped. The "
                         "design's layout may be running away; check its style sheet.")
                          .arg(limits_.maxMilliseconds / 1000.0)));
    ++generation_;
    dropEngine();
    finish(failure);
}

void PdfRenderer::finish(const Result<QByteArray>& result)
{
    if (!running_) {
        return;
    }
    watchdog_.stop();
    const std::unique_ptr<Job> job = std::move(running_);
    if (!result) {
        qCWarning(lcPdf).noquote() << result.error().text();
    }
    if (job->done) {
        job->done(result);
    }
    // The callback may have queued more or cancelled; either way the next one starts from here.
    if (!running_) {
        startNext();
    }
}

Result<QByteArray> PdfRenderer::renderAndWait(const QString& html, const QPageLayout& layout,
                                              PageOptions options)
{
    std::optional<Result<QByteArray>> result;
    QEventLoop loop;
    render(
        html, layout,
        [&](const Result<QByteArray>& pdf) {
            result = pdf;
            loop.quit();
        },
        options);
    if (!result) {
        loop.exec();
    }
    return *result;
}

}  // namespace tamo
