#include "enginefloor.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace tamo::bench {

void printWithTheEngineAlone(const QStringList& htmlFiles, int pagesAtOnce,
                             const QPageLayout& layout)
{
    struct Worker {
        std::unique_ptr<QWebEngineProfile> profile;
        std::unique_ptr<QWebEnginePage> page;
        QString file;
    };
    std::vector<Worker> workers(size_t(std::max(pagesAtOnce, 1)));
    qsizetype next = 0, printed = 0;
    int failed = 0;
    const auto startNext = [&](Worker& w) {
        if (next < htmlFiles.size()) {
            w.file = htmlFiles[next++];
            w.page->load(QUrl::fromLocalFile(w.file));
        }
    };
    for (Worker& w : workers) {
        w.profile = std::make_unique<QWebEngineProfile>();
        w.page = std::make_unique<QWebEnginePage>(w.profile.get());
        w.page->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
        QObject::connect(w.page.get(), &QWebEnginePage::loadFinished, [&](bool ok) {
            failed += ok ? 0 : 1;
            w.page->printToPdf(
                [&](const QByteArray& pdf) {
                    QFile out(w.file.chopped(5) + QStringLiteral(".pdf"));
                    failed +=
                        out.open(QIODevice::WriteOnly) && out.write(pdf) == pdf.size() ? 0 : 1;
                    out.close();
                    if (++printed == htmlFiles.size()) {
                        QCoreApplication::exit(failed);
                    } else {
                        startNext(w);
                    }
                },
                layout);
        });
    }
    for (Worker& w : workers) {
        startNext(w);
    }
    const int code = htmlFiles.isEmpty() ? 0 : QCoreApplication::exec();
    std::fflush(nullptr);
    std::_Exit(code);
}

}  // namespace tamo::bench
