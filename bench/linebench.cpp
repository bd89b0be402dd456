// Measures adding a line to a document of the 10,000-document sample store as the item popover
// does it: the line, the catalog upkeep, the document's totals, the statistics pass over the
// whole list and the save.
//
//   tamo-bench-lines [--runs N]

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include "benchsupport.h"
#include "cli/samplegenerator.h"
#include "documents/lineitems.h"
#include "platform/scriptedprompter.h"

using namespace tamo;

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const int runs = bench::optionValue(app.arguments(), u"--runs"_qs, u"31"_qs).toInt();

    QTemporaryDir folder;
    const Profile profile = Profile::inDirectory(folder.path());
    Settings settings(profile.settingsFile);
    applyOneTimeUpdates(settings);
    settings.set(key::tax1Enabled, true);
    settings.set(key::tax1Rate, 0.19);
    SystemClock clock;
    ScriptedPrompter prompter;
    AppSession session(profile, settings, clock, prompter);
    Context* context = session.managedObjectContext();
    if (!context || !generateSample(*context, clock, {10'000, 8, 300, 1})) {
        out << "could not build the sample store\n";
        return 1;
    }
    DocumentList& list = session.documents();
    LineItems lines(session);
    int n = 0;
    const double ms = bench::medianMs(runs, [&] {
        // A new created document each time, so that the guard lets the line in.
        Record* d = list.at(n % list.size());
        d->setValue("status", 0);
        list.setSelection({d});
        LineFields fields;
        fields.title = QStringLiteral("Consulting, session %1").arg(++n);
        fields.price = 95.0 + n;
        fields.quantity = 2.5;
        fields.tax1 = true;
        lines.addItem(fields);
    });
    out << "add a line (totals, statistics pass over " << list.size()
        << " documents, save): median " << QString::number(ms, 'f', 2) << " ms over " << runs
        << " runs (target at most 16 ms)\n";
    return 0;
}
