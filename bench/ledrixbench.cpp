// Measures Ledrix's import request for 200 invoices: from the request to the callback, once in
// this process (warm) and once as the `tamo` command that answers a tamo:// URL without a window
// (cold: start, store, web engine, 200 PDFs, list, callback). The application this one replaces
// waited a fixed second per invoice: 200 s.
//
//   tamo-bench-ledrix [--invoices N] [--lines M]

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include "accounting/ledriximport.h"
#include "benchsupport.h"
#include "cli/samplegenerator.h"
#include "model/appsession.h"
#include "pdf/pdfrenderer.h"
#include "platform/scriptedprompter.h"
#include "render/designlibrary.h"
#include "render/sampledocument.h"

using namespace tamo;

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    prepareRendering();
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList args = app.arguments();
    const int invoices = bench::optionValue(args, u"--invoices"_qs, u"200"_qs).toInt();
    const int lines = bench::optionValue(args, u"--lines"_qs, u"6"_qs).toInt();

    QTemporaryDir temporary;
    const Profile profile = Profile::inDirectory(temporary.filePath(u"profile"_qs));
    Settings settings(profile.settingsFile);
    applySampleSettings(settings);
    settings.set(key::tempPaperSize, 2);
    FixedClock clock(QDateTime(QDate(2026, 3, 31), QTime(12, 0)));
    ScriptedPrompter prompter(ScriptedPrompter::Fallback::DefaultButton);
    AppSession session(profile, settings, clock, prompter);
    Context* context = session.managedObjectContext();
    if (!context) {
        out << "the store cannot be opened\n";
        return 1;
    }
    DesignLibrary(session).loadTemplates();
    SampleOptions sample;
    sample.documents = invoices;
    sample.itemsPerDocument = lines;
    if (!generateSample(*context, clock, sample)) {
        out << "generating the sample failed\n";
        return 1;
    }
    // Every document a paid invoice of March 2026, so that the request takes them all.
    const auto documents = context->fetch("Invoice");
    for (size_t i = 0; i < documents.size(); ++i) {
        documents[i]->setValue("kind", 1);
        documents[i]->setValue("status", 3);
        documents[i]->setValue("date", QDateTime(QDate(2026, 3, 1 + int(i % 28)), QTime(10, 0)));
    }
    if (!session.saveContext()) {
        return 1;
    }
    session.documents().rearrange();
    out << invoices << " paid invoices with " << lines << " lines each\n";
    out.flush();

    const QString request =
        u"tamo://ledriximport?key=2026-03-01&value=2026-03-31&kind=paid&id=bench"_qs;
    LedrixImport import(session);
    QElapsedTimer timer;
    double calledBackMs = 0;
    import.setOpener([&](const QString&, OpenDone done) {
        calledBackMs = double(timer.nsecsElapsed()) / 1e6;
    done({});
});
QEventLoop loop;
QObject::connect(&import, &LedrixImport::finished, &loop, &QEventLoop::quit);
timer.start();
import.doTheNewLedrixExport(u"2026-03-01"_qs, u"2026-03-31"_qs, u"paid"_qs, u"bench"_qs);
loop.exec();
out << "in this process: request to callback " << QString::number(calledBackMs / 1000, 'f', 1)
    << " s (" << QString::number(calledBackMs / invoices, 'f', 0)
    << " ms per invoice; the fixed wait was " << invoices << " s)\n";
out.flush();

// The command, with a stand-in opener that notes the callback.
QDir().mkpath(temporary.filePath(u"bin"_qs));
QFile opener(temporary.filePath(u"bin/xdg-open"_qs));
opener.open(QIODevice::WriteOnly);
opener.write("#!/bin/sh\nprintf '%s\\n' \"$1\" > \"$TAMO_BENCH_OPENED\"\n");
opener.close();
opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
env.insert(u"PATH"_qs, temporary.filePath(u"bin"_qs) + u':' + env.value(u"PATH"_qs));
env.insert(u"TAMO_BENCH_OPENED"_qs, temporary.filePath(u"opened.txt"_qs));
QProcess tamo;
tamo.setProcessEnvironment(env);
tamo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
timer.restart();
tamo.start(QCoreApplication::applicationDirPath() + u"/tamo"_qs,
           {u"--store"_qs, profile.supportFolder, request});
tamo.waitForFinished(-1);
const double commandMs = double(timer.nsecsElapsed()) / 1e6;
const bool called = QFile::exists(temporary.filePath(u"opened.txt"_qs));
out << "the command `tamo URL`: " << QString::number(commandMs / 1000, 'f', 1)
    << " s to its end, exit " << tamo.exitCode() << (called ? ", called back" : ", NO callback")
    << "\n";
return tamo.exitCode() == 0 && called ? 0 : 1;
}
