#pragma once

#include <QElapsedTimer>
#include <algorithm>
#include <functional>
#include <vector>

// The median time of `runs` runs of `work`, in milliseconds: one slow run
// on a busy machine does not move it.
inline double medianMilliseconds(int runs, const std::function<void()> &work) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
