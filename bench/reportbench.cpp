// Measures the reports on the sample profile of 10,000 documents: the sales report page
// (statistics pass, accumulators, template with the chart script) and the whole account book laid
// out and written as PDF, with the peak resident memory of this process.
//
//   tamo-bench-reports [--store DIR] [--runs N] [--pdf FILE]
//
// Without --store, the profile is generated in a temporary folder first.

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include "benchsupport.h"
#include "interchange/plistfile.h"
#include "model/appsession.h"
#include "platform/scriptedprompter.h"
#include "render/sampledocument.h"
#include "reports/accountbook.h"
#include "reports/salesreport.h"

using namespace tamo;

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList args = app.arguments();
    QString store = bench::optionValue(args, u"--store"_qs);
    const int runs = bench::optionValue(args, u"--runs"_qs, u"21"_qs).toInt();
    QTemporaryDir temporary;
    const bool generated = store.isEmpty();
    if (generated) {
        store = temporary.filePath(u"profile"_qs);
        out << "generating 10,000 documents with 8 lines each in " << store << " ...\n";
        out.flush();
        if (!bench::generateSampleProfile(store)) {
            out << "generating the sample store failed\n";
            return 1;
        }
    }
    const Profile profile = Profile::inDirectory(store);
    Settings settings(profile.settingsFile);
    if (settings.string(key::locTotal).isEmpty()) {
        applySampleSettings(settings);  // labels and a name for the book's header
    }
    SystemClock clock;
    ScriptedPrompter prompter(ScriptedPrompter::Fallback::DefaultButton);
    AppSession session(profile, settings, clock, prompter);
    if (!session.managedObjectContext()) {
        out << "the store cannot be opened\n";
        return 1;
    }
    const double opened = bench::residentMiB();
    out << "store: " << session.documents().size() << " documents; resident "
        << QString::number(opened, 'f', 0) << " MiB after opening\n";

    SalesReport report(session);
    report.loadChartScript();
    qsizetype pageSize = 0;
    const double reportMs =
        bench::medianMs(runs, [&] { pageSize = report.generateReport(std::nullopt).html.size(); });
    out << "sales report page (" << pageSize / 1024 << " KiB): median "
        << QString::number(reportMs, 'f', 1) << " ms over " << runs
        << " runs (target at most 50 ms)\n";
    out.flush();

    AccountBook book(session);
    QElapsedTimer timer;
    timer.start();
    auto document = book.accountBookDocument();
    document->layout();
    const double layoutMs = double(timer.nsecsElapsed()) / 1e6;
    const QByteArray pdf = document->PDFDocument();
    const double totalMs = double(timer.nsecsElapsed()) / 1e6;
    const QString path = bench::optionValue(args, u"--pdf"_qs);
    if (!path.isEmpty()) {
        (void)writeFileAtomically(path, pdf);
    }
    out << "account book: " << document->pages().size() << " pages, " << pdf.size() / 1024
        << " KiB of PDF; laid out in " << QString::number(layoutMs / 1000, 'f', 2)
        << " s, written as PDF in " << QString::number(totalMs / 1000, 'f', 2)
        << " s in all (target at most 10 s)\n";
    out << "peak resident memory: " << QString::number(bench::peakResidentMiB(), 'f', 0)
        << " MiB (target at most 500 MiB)\n";
    return 0;
}
