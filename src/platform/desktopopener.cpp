#include "platform/desktopopener.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <memory>

namespace tamo {

namespace {
constexpr auto kOpenerDomain = "Tamo.opener";
}

void openWithDesktop(const QString& target, OpenDone done, int patienceMs)
{
    // Kept until xdg-open ends, even after the outcome is known: it may keep running beyond
    // this process, and deleting it would stop it.
    auto* process = new QProcess;
    auto reported = std::make_shared<bool>(false);
    auto report = [reported, done = std::move(done)](const Result<void>& outcome) {
        if (!*reported) {
            *reported = true;
            done(outcome);
        }
    };
    QObject::connect(
        process, &QProcess::errorOccurred, process,
        [process, report, target](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                report(fail(QString::fromLatin1(kOpenerDomain), 1,
                            QCoreApplication::translate("tamo::DesktopOpener",
                                                        "Unable to start xdg-open for %1.")
                                .arg(target),
                            process->errorString()));
                process->deleteLater();
            }
        });
    QObject::connect(process, &QProcess::finished, process,
                     [process, report, target](int code, QProcess::ExitStatus status) {
                         if (status == QProcess::NormalExit && code == 0) {
                             report({});
                         } else {
                             report(fail(QString::fromLatin1(kOpenerDomain), 2,
                                         QCoreApplication::translate("tamo::DesktopOpener",
                                                                     "No application opened %1.")
                                             .arg(target),
                                         QCoreApplication::translate("tamo::DesktopOpener",
                                                                     "xdg-open ended with code %1.")
                                             .arg(code)));
                         }
                         process->deleteLater();
                     });
    QTimer::singleShot(patienceMs, process, [report] { report({}); });
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(QStringLiteral("xdg-open"), {target});
}

Result<void> openWithDesktopAndWait(const QString& target, int patienceMs)
{
    QEventLoop loop;
    std::optional<Result<void>> outcome;
    openWithDesktop(
        target,
        [&](const Result<void>& opened) {
            outcome = opened;
            loop.quit();
        },
        patienceMs);
    if (!outcome) {
        loop.exec();
    }
    return *outcome;
}

}  // namespace tamo
