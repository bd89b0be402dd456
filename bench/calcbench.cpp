// Measures the totals on the sample store of 10,000 documents with 5 lines each: the statistics
// pass over the whole list, the calculation of one 100-line document, and one edit of a line
// with its recalculation, statistics and save, as the window does it.
//
//   tamo-bench-calc [--runs N]

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <functional>
#include <vector>

#include "calc/totals.h"
#include "cli/samplegenerator.h"
#include "model/appsession.h"
#include "platform/scriptedprompter.h"

using namespace tamo;

namespace {

QTextStream out(stdout);

// Median of `runs` timings of `work`, in nanoseconds.
double medianNs(int runs, const std::function<void(int)>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work(i);
        times.push_back(double(timer.nsecsElapsed()));
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// A session on its own store in `folder`.
struct Bench {
    explicit Bench(const QString& folder)
        : profile(Profile::inDirectory(folder)), settings(profile.settingsFile)
    {
        settings.set(key::beforeTaxesBool, true);
    }
    Profile profile;
    Settings settings;
    FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC)};
    ScriptedPrompter prompter;
    AppSession session{profile, settings, clock, prompter};
};

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int runs =
        args.contains(u"--runs"_qs) ? args.value(args.indexOf(u"--runs"_qs) + 1).toInt() : 21;
    QTemporaryDir temporary;

    Bench big(temporary.filePath(u"sample"_qs));
    Context& store = *big.session.managedObjectContext();
    out << "generating 10,000 documents with 5 lines each ...\n";
    out.flush();
    if (auto made = generateSample(store, big.clock, {10000, 5, 300, 1}); !made) {
        out << "generating the sample failed: " << made.error().text() << '\n';
        return 1;
    }
    Totals totals(big.session);
    const auto& listed = big.session.documents().arranged();
    const double documents = double(listed.size());

    QElapsedTimer first;
    first.start();
    totals.calculateDatabase();  // moves the overdue ones; later passes only count
    const double firstPass = double(first.nsecsElapsed());
    const double pass = medianNs(runs, [&](int) { totals.calculateDatabase(); });
    out << QStringLiteral("statistics pass: %1 ns per document (%2 ms over %3; first pass %4 ms)\n")
               .arg(pass / documents, 0, 'f', 1)
               .arg(pass / 1e6, 0, 'f', 2)
               .arg(listed.size())
               .arg(firstPass / 1e6, 0, 'f', 2);

    // The document alone, so that the statistics pass at its end counts for nothing.
    Bench small(temporary.filePath(u"hundred"_qs));
    Context& own = *small.session.managedObjectContext();
    Record* document = own.insert("Invoice");
    document->setValue("tax1Percent", 0.19);
    for (int i = 0; i < 100; ++i) {
        Record* line = own.insert("Item");
        line->setValue("baseAmount", 10.0 + i * 0.37);
        line->setValue("unitCount", 1.0 + i % 7);
        line->setValue("isTax1Applied", true);
        line->setValue("tax1Percent", 0.19);
        line->setToOne("invoice", document);
    }
    Totals alone(small.session);
    alone.calculateInvoice(*document);
    const double hundred = medianNs(runs, [&](int) { alone.calculateInvoice(*document); });
    out << QStringLiteral("calculateInvoice of 100 lines: %1 ns per line (%2 us)\n")
               .arg(hundred / 100, 0, 'f', 1)
               .arg(hundred / 1e3, 0, 'f', 1);

    // One user edit on the big store: a quantity changes, the document and the list follow.
    Record* edited = listed[listed.size() / 2];
    Record* line = edited->toMany("items").front();
    const double edit = medianNs(runs, [&](int i) {
        {
            UndoGroup group(store, u"Edit Quantity"_qs);
            line->setValue("unitCount", double(2 + i % 2));
            totals.calculateInvoice(*edited);
        }
        big.session.saveContext();
    });
    out << QStringLiteral(
               "edit + recalculation + statistics + save: %1 ms (target: well under 16)\n")
               .arg(edit / 1e6, 0, 'f', 2);
    return 0;
}
