#pragma once

#include <QElapsedTimer>
#include <QString>
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

// Peak resident memory of this process so far, in MiB.
double peakResidentMiB();
// Resident memory of this process now, in MiB.
double residentMiB();

}  // namespace tamo::bench
