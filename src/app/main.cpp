#include <QApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QTextStream>
#include <memory>

#include "app/appdelegate.h"
#include "app/appicon.h"
#include "app/mainwindow.h"
#include "cli/commandline.h"
#include "cli/commands.h"
#include "pdf/pdfrenderer.h"
#include "platform/profile.h"

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const tamo::Invocation invocation = tamo::parseInvocation(arguments);

    if (!invocation.command.isEmpty() || !invocation.error.isEmpty()) {
        // Printing pages takes the web engine, which needs a GUI application; off screen, as
        // commands show no windows.
        std::unique_ptr<QCoreApplication> application;
        if (tamo::commandRendersPages(invocation.command.value(0))) {
            if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
                qputenv("QT_QPA_PLATFORM", "offscreen");
            }
            tamo::prepareRendering(tamo::commandPrintsOneDocument(invocation.command.value(0))
                                       ? tamo::EngineProcesses::Single
                                       : tamo::EngineProcesses::Separate);
            application = std::make_unique<QGuiApplication>(argc, argv);
        } else {
            application = std::make_unique<QCoreApplication>(argc, argv);
        }
        QCoreApplication::setApplicationName(QStringLiteral("Tamo"));
        QCoreApplication::setApplicationVersion(QStringLiteral(TAMO_VERSION));
        QTextStream out(stdout);
        QTextStream err(stderr);
        return tamo::runCommand(invocation, out, err);
    }

    tamo::prepareRendering();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tamo"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tamo"));
    QApplication::setApplicationVersion(QStringLiteral(TAMO_VERSION));
    QApplication::setDesktopFileName(QString::fromLatin1(tamo::kApplicationId));
    // Without a desktop that names an icon theme, the toolbar still finds its icons.
    QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));

    const tamo::Profile profile = invocation.storeDirectory.isEmpty()
                                      ? tamo::Profile::standard()
                                      : tamo::Profile::inDirectory(invocation.storeDirectory);
    tamo::AppDelegate delegate(profile);
    QApplication::setWindowIcon(tamo::applicationIcon());
    delegate.start();
    return QApplication::exec();
}
