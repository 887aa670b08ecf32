// Timing helpers of the benchmarks: the median of several runs, a shell command's time.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

namespace bench {

// Median wall-clock seconds of `runs` calls of f.
template <typename F>
double medianSeconds(int runs, F f) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        auto start = std::chrono::steady_clock::now();
        f();
        times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// Median seconds of a shell command; negative when it fails.
inline double commandSeconds(int runs, const std::string& command) {
    bool ok = true;
    double t = medianSeconds(runs, [&] { ok = ok && std::system(command.c_str()) == 0; });
    return ok ? t : -1;
}

}  // namespace bench
