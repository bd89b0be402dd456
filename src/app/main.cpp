#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include "app/appdelegate.h"
#include "app/mainwindow.h"
#include "cli/commandline.h"
#include "platform/profile.h"

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const tamo::Invocation invocation = tamo::parseInvocation(arguments);

    if (!invocation.command.isEmpty() || !invocation.error.isEmpty()) {
        QCoreApplication app(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("Tamo"));
        QCoreApplication::setApplicationVersion(QStringLiteral(TAMO_VERSION));
        QTextStream out(stdout);
        QTextStream err(stderr);
        return tamo::runCommand(invocation, out, err);
    }

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
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/stamps/Stamp3.svg")));
    delegate.start();
    return QApplication::exec();
}
