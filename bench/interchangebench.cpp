// Measures the invoice backup on the sample profile of 10,000 documents with 8 lines each: writing
// the backup file (dictionaries, XML, the file), reading it back, and the whole restore (recovery
// copy, deleting, creating, saving); beside them Python's plistlib loading and dumping the same
// file, as the reference for this machine.
//
//   tamo-bench-interchange [--store DIR] [--runs N]
//
// Without --store, a profile is generated in a temporary folder first.

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <ctime>

#include "benchsupport.h"
#include "interchange/datainterchange.h"
#include "interchange/recorddictionary.h"
#include "interchange/storefiles.h"
#include "model/storelocation.h"
#include "platform/scriptedprompter.h"

using namespace tamo;

namespace {

QTextStream out(stdout);

// Median times of plistlib.loads and plistlib.dumps on the file, in milliseconds.
std::optional<std::pair<double, double>> pythonReference(const QString& file, int runs)
{
    const QString python = QStandardPaths::findExecutable(u"python3"_qs);
    if (python.isEmpty()) {
        return std::nullopt;
    }
    const QString script =
        uR"(
import plistlib, sys, time
data = open(sys.argv[1], 'rb').read()
loads, dumps = [], []
for _ in range(int(sys.argv[2])):
    t = time.perf_counter(); obj = plistlib.loads(data); loads.append(time.perf_counter() - t)
    t = time.perf_counter(); plistlib.dumps(obj); dumps.append(time.perf_counter() - t)
loads.sort(); dumps.sort()
print(loads[len(loads) // 2] * 1000, dumps[len(dumps) // 2] * 1000)
)"_qs;
    QProcess p;
    p.start(python, {u"-c"_qs, script, file, QString::number(runs)});
    if (!p.waitForFinished(1'800'000) || p.exitCode() != 0) {
        return std::nullopt;
    }
    const QStringList figures = QString::fromUtf8(p.readAllStandardOutput()).split(u' ');
    return std::pair{figures.value(0).toDouble(), figures.value(1).toDouble()};
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    QString store = bench::optionValue(args, u"--store"_qs);
    const int runs = bench::optionValue(args, u"--runs"_qs, u"3"_qs).toInt();
    QTemporaryDir temporary;
    if (store.isEmpty()) {
        store = temporary.filePath(u"profile"_qs);
        out << "generating 10,000 documents with 8 lines each in " << store << " ...\n";
        out.flush();
        QProcess p;
        p.start(QCoreApplication::applicationDirPath() + u"/tamo"_qs,
                {u"--store"_qs, store, u"generate-sample"_qs, u"--documents"_qs, u"10000"_qs,
                 u"--items-per-document"_qs, u"8"_qs, u"--clients"_qs, u"300"_qs});
        if (!p.waitForFinished(600'000) || p.exitCode() != 0) {
            out << "generating the sample store failed\n";
            return 1;
        }
    }
    const Profile profile = Profile::inDirectory(store);
    Settings settings(profile.settingsFile);
    SystemClock clock;
    ScriptedPrompter prompter(ScriptedPrompter::Fallback::DefaultButton);
    AppSession session(profile, settings, clock, prompter);
    Context* context = session.managedObjectContext();
    if (!context) {
        out << "no store at " << storeFilePath(settings, profile) << '\n';
        return 1;
    }
    const QString file = temporary.filePath(u"Tamo Invoices.tamoinvoices"_qs);

    const double writeMs = bench::medianMs(runs, [&] {
        auto list = toDictionaryList(session.context()->fetch("Invoice"));
        auto xml = serializePlist(list->get(), PlistFormat::Xml);
        if (!writeFileAtomically(file, *xml)) {
            qFatal("the backup file could not be written");
        }
    });
    const double readMs = bench::medianMs(runs, [&] {
        if (!readPlistFile(file)) {
            qFatal("the backup file could not be read");
        }
    });
    DataInterchange operations(session);
    // Processor time as well: on a busy machine the wall-clock time mostly measures the others.
    std::vector<double> restoreCpuMs;
    const double restoreMs = bench::medianMs(runs, [&] {
        prompter.queueFile(file);
        const std::clock_t start = std::clock();
        if (operations.restoreTamoData() != ActionResult::Done) {
            qFatal("the restore failed");
        }
        restoreCpuMs.push_back(double(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC);
    });
    std::sort(restoreCpuMs.begin(), restoreCpuMs.end());
    const double snapshotMs = bench::medianMs(runs, [&] {
        RecoverySnapshots(temporary.filePath(u"snapshots"_qs))
            .take(session.context(), session.context()->path(), clock.now(), u"bench"_qs);
    });

    out << "documents: " << session.context()->count("Invoice")
        << ", backup file: " << QString::number(double(QFileInfo(file).size()) / (1 << 20), 'f', 1)
        << " MiB, median of " << runs << " runs\n";
    out << "write the invoice backup (dictionaries, XML, file): " << qRound(writeMs) << " ms\n";
    out << "read the invoice backup (file, XML):                " << qRound(readMs) << " ms\n";
    out << "restore the invoices (all steps, with the save):    " << qRound(restoreMs)
        << " ms, processor " << qRound(restoreCpuMs[restoreCpuMs.size() / 2])
        << " ms (the recovery copy " << qRound(snapshotMs) << " ms of it)\n";
    if (const auto python = pythonReference(file, runs)) {
        out << "reference: plistlib.loads " << qRound(python->first) << " ms (ratio "
            << QString::number(readMs / python->first, 'f', 2) << "), plistlib.dumps "
            << qRound(python->second) << " ms (ratio "
            << QString::number(writeMs / python->second, 'f', 2) << ")\n";
    } else {
        out << "reference: python3 is not available\n";
    }
    return 0;
}
