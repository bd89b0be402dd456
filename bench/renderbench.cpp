// Measures the rendering: the HTML of a 100-line document, its PDF through a warm renderer, an
// edit until the refreshed preview is loaded as the preview pane loads it, and the command line
// against wkhtmltopdf (Debian's package) on the same HTML: one cold `tamo pdf N FILE` (and
// `tamo render --pdf`) against one wkhtmltopdf run, and `tamo export-pdfs` of 100 documents
// against 100 wkhtmltopdf runs.
//
// Beside each, the web engine alone on the same pages: loading and printing them and nothing
// else, the floor under what tamo can reach.
//
//   tamo-bench-render [--runs N] [--tamo PATH] [--wkhtmltopdf PATH]
//   tamo-bench-render --engine-only PAGES_AT_ONCE FILE.html...   (the floor, as it is run)

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPdfDocument>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include "benchsupport.h"
#include "calc/totals.h"
#include "enginefloor.h"
#include "interchange/plistfile.h"
#include "pdf/livepreview.h"
#include "pdf/pdfoutput.h"
#include "platform/scriptedprompter.h"
#include "render/designlibrary.h"
#include "render/pagelayout.h"
#include "render/sampledocument.h"

using namespace tamo;
using namespace tamo::bench;

namespace {

QTextStream out(stdout);

// A profile in `folder` with the shipped designs, English labels and one document.
struct Bench {
    explicit Bench(const QString& folder, int lines = 100)
        : profile(Profile::inDirectory(folder)), settings(profile.settingsFile)
    {
        designs.installHooks();
        context = session.managedObjectContext();
        applySampleSettings(settings);
        settings.set(key::tempPaperSize, 2);
        document = insertSampleDocument(*context, clock.now(), lines);
        session.saveContext();
        session.documents().setSelection({document});
    }
    Profile profile;
    Settings settings;
    FixedClock clock{QDateTime(QDate(2026, 3, 5), QTime(9, 0), Qt::UTC)};
    ScriptedPrompter prompter;
    AppSession session{profile, settings, clock, prompter};
    DesignLibrary designs{session};
    Context* context = nullptr;
    Record* document = nullptr;
};

// Wall-clock milliseconds of one run of a program; -1 when it fails.
double runMs(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    if (!process.waitForFinished(600000) || process.exitCode() != 0) {
        out << "  " << program << " failed: " << process.readAllStandardOutput() << '\n';
        return -1;
    }
    return double(timer.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // One page is printed inside this process, as `tamo pdf` prints it.
    const bool engineOnly = argc > 3 && qstrcmp(argv[1], "--engine-only") == 0;
    prepareRendering(engineOnly && argc == 4 ? EngineProcesses::Single : EngineProcesses::Separate);
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (engineOnly) {
        printWithTheEngineAlone(args.mid(3), args[2].toInt(), pageLayoutFor(2, false));
    }
    const QString self = QCoreApplication::applicationFilePath();
    const int runs = optionValue(args, u"--runs"_qs, u"15"_qs).toInt();
    const QString tamo =
        optionValue(args, u"--tamo"_qs, QCoreApplication::applicationDirPath() + u"/tamo"_qs);
    const QString wkhtmltopdf =
        optionValue(args, u"--wkhtmltopdf"_qs, QStandardPaths::findExecutable(u"wkhtmltopdf"_qs));
    QTemporaryDir temporary;
    Bench b(temporary.filePath(u"profile"_qs));
    InvoiceHtml html(b.session, b.designs);

    const double page = medianMs(runs, [&] { html.invoiceHTMLString(); });
    const QString source = html.invoiceHTMLString();
    out << QStringLiteral("HTML of a 100-line document: %1 ms (%2 KiB)\n")
               .arg(page, 0, 'f', 2)
               .arg(source.toUtf8().size() / 1024);

    PdfRenderer renderer(b.session.applicationDataDirectory());
    const QPageLayout layout = pageLayoutFromSettings(b.settings);
    const QByteArray first = renderer.renderAndWait(source, layout).value_or(QByteArray());
    const double pdf = medianMs(runs, [&] { renderer.renderAndWait(source, layout); });
    out << QStringLiteral("PDF of it, warm renderer: %1 ms (%2 pages)\n")
               .arg(pdf, 0, 'f', 1)
               .arg(pdfPageCount(first));

    // An edit of a line in a 6-line document until the preview file is loaded into Qt PDF with
    // its first page drawn, as the preview pane does.
    Record* shortDocument = insertSampleDocument(*b.context, b.clock.now(), 6);
    b.session.saveContext();
    b.session.documents().setSelection({shortDocument});
    PdfOutput output(b.session, html, renderer);
    LivePreview live(b.session, b.designs, output);
    QPdfDocument shown;
    Record* line = shortDocument->toMany("items").front();
    Totals totals(b.session);
    const double edit = medianMs(runs, [&] {
        bool done = false;
        const auto connection =
            QObject::connect(&live, &LivePreview::updated, [&](const QString& path) {
                shown.load(path);
                shown.render(0, QSize(600, 850));
                done = true;
            });
        {
            UndoGroup group(*b.context, u"Edit"_qs);
            line->setValue("unitCount", line->decimal("unitCount") + 1);
            totals.calculateInvoice(*shortDocument);
        }
        b.session.saveContext();
        while (!done) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QObject::disconnect(connection);
    });
    out << QStringLiteral("edit to refreshed preview: %1 ms median (target: at most 150)\n")
               .arg(edit, 0, 'f', 1);

    if (wkhtmltopdf.isEmpty() || !QFile::exists(tamo)) {
        out << "wkhtmltopdf or tamo not found; the command-line comparison is skipped\n";
        return 0;
    }
    const auto convert = [&](const QString& from, const QString& to) {
        return runMs(wkhtmltopdf,
                     {u"-q"_qs, u"--enable-local-file-access"_qs, u"-s"_qs, u"A4"_qs, from, to});
    };
    // The same HTML for both: the page as tamo renders it.
    const QString htmlFile = temporary.filePath(u"page.html"_qs);
    writeFileAtomically(htmlFile, source.toUtf8());
    const QString store = temporary.filePath(u"profile"_qs);
    const QString number = b.document->uniqueID();  // the short document has the same number
    b.session.documents().setSelection({b.document});
    // Taken in turns, so that other work on the machine weighs on each alike.
    const int coldRuns = std::max(7, runs / 2);
    std::vector<double> renders, pdfs, wks, engine;
    for (int i = 0; i < coldRuns; ++i) {
        engine.push_back(runMs(self, {u"--engine-only"_qs, u"1"_qs, htmlFile}));
        renders.push_back(runMs(tamo, {u"--store"_qs, store, u"render"_qs, number, u"--pdf"_qs,
                                       temporary.filePath(u"tamo.pdf"_qs)}));
        pdfs.push_back(runMs(
            tamo, {u"--store"_qs, store, u"pdf"_qs, number, temporary.filePath(u"sent.pdf"_qs)}));
        wks.push_back(convert(htmlFile, temporary.filePath(u"wk.pdf"_qs)));
    }
    const auto median = [](std::vector<double> v) {
        std::sort(v.begin(), v.end());
        return v[v.size() / 2];
    };
    const double cold = median(renders), sent = median(pdfs), wk = median(wks),
                 alone = median(engine);
    out << QStringLiteral(
               "cold pdf N FILE: tamo %1 ms, wkhtmltopdf %2 ms (ratio %3, target at "
               "most 1); render --pdf %4 ms (ratio %5); medians of %6\n")
               .arg(sent, 0, 'f', 0)
               .arg(wk, 0, 'f', 0)
               .arg(sent / wk, 0, 'f', 2)
               .arg(cold, 0, 'f', 0)
               .arg(cold / wk, 0, 'f', 2)
               .arg(coldRuns);
    out << QStringLiteral(
               "  the web engine alone, loading and printing the page: %1 ms (ratio %2)\n")
               .arg(alone, 0, 'f', 0)
               .arg(alone / wk, 0, 'f', 2);

    // 100 documents of 6 lines: one export-pdfs against 100 wkhtmltopdf runs on their pages.
    const QString batch = temporary.filePath(u"batch"_qs);
    {
        Bench many(batch, 6);
        many.document->setValue("number", u"RE-100"_qs);
        for (int i = 1; i < 100; ++i) {
            Record* d = insertSampleDocument(*many.context, many.clock.now(), 6);
            d->setValue("number", QStringLiteral("RE-%1").arg(i));
        }
        many.session.saveContext();
        InvoiceHtml pages(many.session, many.designs);
        const QString folder = temporary.filePath(u"wk"_qs);
        QDir().mkpath(folder);
        int n = 0;
        for (const Record* d : many.context->fetch("Invoice")) {
            writeFileAtomically(QStringLiteral("%1/%2.html").arg(folder).arg(++n),
                                pages.invoiceHTMLStringFromInvoice(*d).toUtf8());
        }
    }
    // Timed on its own: sampling the memory of a process tree takes a good part of a core.
    // The memory is sampled in a second run: tamo and the engine's helper processes together.
    const auto exportPdfs = [&](bool sampleMemory) {
        QDir(temporary.filePath(u"pdfs"_qs)).removeRecursively();
        double peakPss = 0;
        QElapsedTimer timer;
        timer.start();
        QProcess exporter;
        exporter.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        exporter.start(tamo,
                       {u"--store"_qs, batch, u"export-pdfs"_qs, temporary.filePath(u"pdfs"_qs)});
        while (!exporter.waitForFinished(sampleMemory ? 100 : 600000)) {
            peakPss = std::max(peakPss, processTreePssMiB(exporter.processId()));
        }
        if (exporter.exitCode() != 0) {
            out << "  export-pdfs failed: " << exporter.readAllStandardOutput() << '\n';
        }
        return sampleMemory ? peakPss : double(timer.nsecsElapsed()) / 1e6;
    };
    const double exported = exportPdfs(false);
    const double peakPss = exportPdfs(true);
    QElapsedTimer hundred;
    hundred.start();
    for (int i = 1; i <= 100; ++i) {
        convert(temporary.filePath(QStringLiteral("wk/%1.html").arg(i)),
                temporary.filePath(QStringLiteral("wk/%1.pdf").arg(i)));
    }
    const double wk100 = double(hundred.nsecsElapsed()) / 1e6;
    out << QStringLiteral(
               "export-pdfs of 100 documents: tamo %1 ms, 100 wkhtmltopdf runs %2 ms "
               "(%3 times faster, target at least 8)\n")
               .arg(exported, 0, 'f', 0)
               .arg(wk100, 0, 'f', 0)
               .arg(wk100 / exported, 0, 'f', 1);
    QStringList pages;
    for (int i = 1; i <= 100; ++i) {
        pages << temporary.filePath(QStringLiteral("wk/%1.html").arg(i));
    }
    const int atOnce = batchRendererCount(pages.size());
    const double floor =
        runMs(self, QStringList{u"--engine-only"_qs, QString::number(atOnce)} + pages);
    out << QStringLiteral(
               "  the web engine alone, %1 pages at a time: %2 ms (%3 times faster than "
               "wkhtmltopdf)\n")
               .arg(atOnce)
               .arg(floor, 0, 'f', 0)
               .arg(wk100 / floor, 0, 'f', 1);
    out << QStringLiteral(
               "export-pdfs memory: %1 MiB at most (tamo and its helper processes, "
               "proportional set size; target under 500)\n")
               .arg(peakPss, 0, 'f', 0);
    return 0;
}
