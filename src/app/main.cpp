#include <QApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QTextStream>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/appdelegate.h"
#include "app/appicon.h"
#include "app/mainwindow.h"
#include "cli/commandline.h"
#include "cli/commands.h"
#include "model/storelocation.h"
#include "pdf/pdfrenderer.h"
#include "platform/handoff.h"
#include "platform/profile.h"
#include "platform/translations.h"

namespace {

// Names the application and speaks the user's language, in the window and on the command line.
void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("Tamo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAMO_VERSION));
    tamo::installTranslations();
}

// Printing pages takes the web engine, which needs a GUI application; off screen, as runs
// without a window show none.
std::unique_ptr<QCoreApplication> headlessApplication(bool rendersPages,
                                                      tamo::EngineProcesses processes, int& argc,
                                                      char** argv)
{
    if (!rendersPages) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    tamo::prepareRendering(processes);
    return std::make_unique<QGuiApplication>(argc, argv);
}

// Ends a run that used the web engine once its work is saved and the store is closed. The
// engine's orderly shutdown keeps nothing (its profile lives in memory only) and takes a good
// part of a short command's time; its helper processes end with this one.
[[noreturn]] void endWithoutEngineShutdown(int code, QTextStream& out, QTextStream& err)
{
    out.flush();
    err.flush();
    std::fflush(nullptr);
    std::_Exit(code);
}

// The socket of the window open on this invocation's store, if any.
QString socketName(const tamo::Profile& profile)
{
    const tamo::Settings settings(profile.settingsFile);
    return tamo::handoffSocketName(tamo::storeFolder(settings, profile));
}

}  // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const tamo::Invocation invocation = tamo::parseInvocation(arguments);
    const tamo::Profile profile = tamo::profileOf(invocation);
    QTextStream out(stdout);
    QTextStream err(stderr);

    if (!invocation.command.isEmpty() || !invocation.error.isEmpty()) {
        const QString command = invocation.command.value(0);
        const bool rendersPages = tamo::commandRendersPages(command);
        const auto application = headlessApplication(rendersPages,
                                                     tamo::commandPrintsOneDocument(command)
                                                         ? tamo::EngineProcesses::Single
                                                         : tamo::EngineProcesses::Separate,
                                                     argc, argv);
        nameApplication();
        const int code = tamo::runCommand(invocation, out, err);
        if (rendersPages) {
            endWithoutEngineShutdown(code, out, err);
        }
        return code;
    }

    // A request goes to the window open on the store; without one it is answered here, headless.
    if (!invocation.url.isEmpty()) {
        // The import request prints many pages: in helper processes, so that a page stopped by
        // the limits does not stop the others.
        const auto application =
            headlessApplication(true, tamo::EngineProcesses::Separate, argc, argv);
        nameApplication();
        if (tamo::handOff(socketName(profile), {invocation.url})) {
            return 0;
        }
        return tamo::runUrlRequest(invocation, out, err);
    }

    tamo::prepareRendering();
    QApplication app(argc, argv);
    nameApplication();
    QApplication::setApplicationDisplayName(QStringLiteral("Tamo"));
    QApplication::setDesktopFileName(QString::fromLatin1(tamo::kApplicationId));
    // One window per store: a file, or nothing but "come to the front", goes to the open one.
    const QString socket = socketName(profile);
    const QStringList handed =
        invocation.file.isEmpty() ? QStringList() : QStringList{invocation.file};
    if (tamo::handOff(socket, handed)) {
        return 0;
    }
    // Without a desktop that names an icon theme, the toolbar still finds its icons.
    QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));

    tamo::AppDelegate delegate(profile);
    QApplication::setWindowIcon(tamo::applicationIcon());
    delegate.start();
    delegate.listen(socket);
    if (!handed.isEmpty()) {
        // Once the start-up steps are done and the window is up.
        QTimer::singleShot(0, &delegate, [&delegate, handed] { delegate.answer(handed); });
    }
    return QApplication::exec();
}
