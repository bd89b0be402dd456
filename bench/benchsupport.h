#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <algorithm>
#include <functional>
#include <vector>

namespace tamo::bench {

// Median of `runs` timings of `work`, in milliseconds.
inline double medianMs(int runs, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// The value after `option` among the program's arguments, or `fallback`.
inline QString optionValue(const QStringList& args, const QString& option,
                           const QString& fallback = {})
{
    const auto at = args.indexOf(option);
    return at >= 0 && at + 1 < args.size() ? args[at + 1] : fallback;
}

// Makes the sample profile of 10,000 documents with 8 lines each in `folder`, through the tamo
// program beside this one (a child process, so that generating counts toward no figure here).
bool generateSampleProfile(const QString& folder);

// Peak resident memory of this process so far, in MiB.
double peakResidentMiB();
// Resident memory of this process now, in MiB.
double residentMiB();
// The proportional set size of a process and all its descendants (helper processes such as the
// web engine's), in MiB: shared pages count once in the sum.
double processTreePssMiB(qint64 pid);

}  // namespace tamo::bench
