// Timing helpers of the benchmarks: the best of several runs (the machine is shared, so
// the fastest run is the one least disturbed), and a shell command's time.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

namespace bench {

// Fastest wall-clock seconds of `runs` calls of f.
template <typename F>
double bestSeconds(int runs, F f) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        auto start = std::chrono::steady_clock::now();
        f();
        times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return *std::min_element(times.begin(), times.end());
}

// Fastest seconds of a shell command; negative when it fails.
inline double commandSeconds(int runs, const std::string& command) {
    bool ok = true;
    double t = bestSeconds(runs, [&] { ok = ok && std::system(command.c_str()) == 0; });
    return ok ? t : -1;
}

}  // namespace bench
