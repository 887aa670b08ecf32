// Timing of the GIF benchmarks: the median of repeated runs.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

namespace gifbench {

// Median (or, with GIF_BENCH_MIN set, the least) of reps runs of clock() - clock().
template <typename Clock>
double medianOf(int reps, Clock clock, const std::function<void()>& run) {
    std::vector<double> times;
    for (int i = 0; i < reps; ++i) {
        double start = clock();
        run();
        times.push_back(clock() - start);
    }
    std::sort(times.begin(), times.end());
    return std::getenv("GIF_BENCH_MIN") != nullptr ? times.front() : times[times.size() / 2];
}

}  // namespace gifbench
