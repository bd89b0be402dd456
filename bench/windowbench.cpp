// Opens the main window on a profile and reports its resident memory once the document list is
// shown. Used by tamo-bench-store; runs headless under QT_QPA_PLATFORM=offscreen.
//
//   tamo-bench-window DIR

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

#include "app/appdelegate.h"
#include "app/mainwindow.h"
#include "benchsupport.h"
#include "platform/profile.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    if (app.arguments().size() < 2) {
        out << "usage: tamo-bench-window DIR\n";
        return 2;
    }
    QElapsedTimer timer;
    timer.start();
    tamo::AppDelegate delegate(tamo::Profile::inDirectory(app.arguments()[1]));
    delegate.start();
    QTimer::singleShot(0, [&] {
        QApplication::processEvents();
        out << "window shown with " << delegate.session().documents().size() << " documents in "
            << timer.elapsed() << " ms; resident memory "
            << QString::number(tamo::bench::residentMiB(), 'f', 0)
            << " MiB (target under 250 MB)\n";
        out.flush();
        // Leave without the quit steps: a measurement must not write to the profile.
        QApplication::exit(0);
    });
    return QApplication::exec();
}
