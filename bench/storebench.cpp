// Measures the store on the sample profile of 10,000 documents with 8 lines each: opening it and
// arranging the document list, saving one edited document, and memory; beside them the time the
// sqlite3 tool needs to read the same file, as a reference for this machine.
//
//   tamo-bench-store [--store DIR] [--runs N]
//
// Without --store, a profile is generated in a temporary folder first (in a child process, so
// that generating does not count toward this process's memory).

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include "benchsupport.h"
#include "model/appsession.h"
#include "model/storelocation.h"
#include "platform/scriptedprompter.h"

using namespace tamo;

namespace {

QTextStream out(stdout);

bool run(const QString& program, const QStringList& args, const QString& stdoutFile = {})
{
    QProcess p;
    if (!stdoutFile.isEmpty()) {
        p.setStandardOutputFile(stdoutFile);
    }
    p.start(program, args);
    return p.waitForFinished(600'000) && p.exitStatus() == QProcess::NormalExit &&
           p.exitCode() == 0;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    QString store =
        args.contains(u"--store"_qs) ? args.value(args.indexOf(u"--store"_qs) + 1) : QString();
    const int runs =
        args.contains(u"--runs"_qs) ? args.value(args.indexOf(u"--runs"_qs) + 1).toInt() : 7;
    const QString binDir = QCoreApplication::applicationDirPath();

    QTemporaryDir temporary;
    if (store.isEmpty()) {
        store = temporary.filePath(u"profile"_qs);
        out << "generating 10,000 documents with 8 lines each in " << store << " ...\n";
        out.flush();
        if (!run(binDir + u"/tamo"_qs,
                 {u"--store"_qs, store, u"generate-sample"_qs, u"--documents"_qs, u"10000"_qs,
                  u"--items-per-document"_qs, u"8"_qs, u"--clients"_qs, u"300"_qs})) {
            out << "generating the sample store failed\n";
            return 1;
        }
    }
    const Profile profile = Profile::inDirectory(store);
    Settings settings(profile.settingsFile);
    const QString file = storeFilePath(settings, profile);
    if (!QFileInfo::exists(file)) {
        out << "no store at " << file << '\n';
        return 1;
    }

    const double openMs = bench::medianMs(runs, [&] {
        auto context = Context::open(file);
        DocumentList list;
        list.setContext(context->get());
        list.setContext(nullptr);
    });

    double dumpMs = -1;
    const QString sqlite = QStandardPaths::findExecutable(u"sqlite3"_qs);
    if (!sqlite.isEmpty()) {
        dumpMs = bench::medianMs(runs, [&] { run(sqlite, {file, u".dump"_qs}, u"/dev/null"_qs); });
    }

    SystemClock clock;
    ScriptedPrompter prompter;
    AppSession session(profile, settings, clock, prompter);
    Context* context = session.managedObjectContext();
    const auto& documents = session.documents().arranged();
    const double residentAfterOpen = bench::residentMiB();
    int edit = 0;
    const double saveMs = bench::medianMs(50, [&] {
        Record* d = documents[size_t(edit * 197) % documents.size()];
        {
            UndoGroup group(*context, u"Edit Subject"_qs);
            d->setValue("subject", QStringLiteral("Edited %1").arg(++edit));
        }
        if (!context->save()) {
            out << "save failed\n";
        }
    });

    out << "store: " << documents.size() << " documents, "
        << QString::number(double(QFileInfo(file).size()) / (1024.0 * 1024.0), 'f', 1)
        << " MiB file\n";
    out << "open the store and arrange the document list: median "
        << QString::number(openMs, 'f', 1) << " ms over " << runs << " runs\n";
    if (dumpMs >= 0) {
        out << "reference, sqlite3 FILE .dump > /dev/null: median "
            << QString::number(dumpMs, 'f', 1) << " ms; ratio "
            << QString::number(openMs / dumpMs, 'f', 2) << " (target at most 2)\n";
    } else {
        out << "reference: sqlite3 is not installed\n";
    }
    out << "save one edited document: median " << QString::number(saveMs, 'f', 2)
        << " ms over 50 saves (target at most 5 ms)\n";
    out << "resident memory with the list arranged: " << QString::number(residentAfterOpen, 'f', 0)
        << " MiB; peak " << QString::number(bench::peakResidentMiB(), 'f', 0) << " MiB\n";
    out.flush();

    // The window's own figure comes from a process that opens it on the same profile.
    const QString windowBench = binDir + u"/tamo-bench-window"_qs;
    if (QFileInfo::exists(windowBench)) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        if (!env.contains(u"QT_QPA_PLATFORM"_qs)) {
            env.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
        }
        p.setProcessEnvironment(env);
        p.setProcessChannelMode(QProcess::ForwardedChannels);
        p.start(windowBench, {store, u"--memory-only"_qs});
        p.waitForFinished(120'000);
    }
    return 0;
}
