// Benchmark of crease-angle vertex normals: ours against OpenSceneGraph's and Coin3D's
// generators and a plain per-vertex sum, on the same meshes in one process, runs
// interleaved (A B C A B C ...). Prints one table: median CPU time, its spread
// ((max - min) / median), ns per face, and the peak heap above what the mesh holds,
// then how the targets fare.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <vector>

#include "alloc_meter.h"
#include "bench_meshes.h"
#include "methods.h"

using namespace meshbench;

namespace {

double cpuMs() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

struct Result {
    double medianMs = 0, spread = 0, nsPerFace = 0;
    int64_t peakBytes = -1;
};

int64_t meteredPeak(const Method& method, const BenchMesh& mesh, float degrees) {
    std::unique_ptr<Run> run = method.make(mesh, degrees);
    meterStart();
    run->go();
    return meterPeak();
}

// reps rounds, each running every method once in turn.
std::vector<Result> measure(const std::vector<Method>& methods, const BenchMesh& mesh, float degrees, int reps) {
    std::vector<std::vector<double>> times(methods.size());
    std::vector<Result> results(methods.size());
    for (size_t m = 0; m < methods.size(); ++m)
        results[m].peakBytes = meterAvailable() ? meteredPeak(methods[m], mesh, degrees) : -1;
    for (int r = 0; r < reps; ++r)
        for (size_t m = 0; m < methods.size(); ++m) {
            std::unique_ptr<Run> run = methods[m].make(mesh, degrees);
            const double start = cpuMs();
            run->go();
            times[m].push_back(cpuMs() - start);
        }
    for (size_t m = 0; m < methods.size(); ++m) {
        std::vector<double>& t = times[m];
        std::sort(t.begin(), t.end());
        Result& res = results[m];
        res.medianMs = t[t.size() / 2];
        res.spread = res.medianMs > 0 ? (t.back() - t.front()) / res.medianMs : 0;
        res.nsPerFace = res.medianMs * 1e6 / mesh.faces;
    }
    return results;
}

struct Case {
    BenchMesh mesh;
    int reps;
};

struct Key {
    std::string mesh;
    int faces;
    float degrees;
    bool operator<(const Key& o) const {
        return mesh != o.mesh ? mesh < o.mesh : faces != o.faces ? faces < o.faces : degrees < o.degrees;
    }
};

void printRow(const BenchMesh& mesh, float degrees, const Method& method, const Result& r) {
    char memory[48] = "n/a";
    if (r.peakBytes >= 0)
        std::snprintf(memory, sizeof memory, "%8.1f %6.2f", r.peakBytes / 1048576.0, double(r.peakBytes) / mesh.bytes());
    std::printf("  %-12s %9d %5.0f  %-40s %9.1f %6.0f%% %8.1f  %s\n", mesh.name.c_str(), mesh.faces, degrees,
                method.name.c_str(), r.medianMs, 100 * r.spread, r.nsPerFace, memory);
}

int repsFor(int faces) {
    if (const char* e = std::getenv("MESH_BENCH_REPS")) return std::max(1, std::atoi(e));
    return faces > 2000000 ? 3 : 5;
}

// MESH_BENCH_ONLY and MESH_BENCH_MESH (parts of methods' or meshes' names, separated
// by '|') narrow the run down, for profiling some methods on one mesh.
bool wanted(const char* variable, const std::string& name) {
    const char* parts = std::getenv(variable);
    if (parts == nullptr) return true;
    const std::string list = std::string(parts) + "|";
    for (size_t from = 0, bar; (bar = list.find('|', from)) != std::string::npos; from = bar + 1)
        if (bar > from && name.find(list.substr(from, bar - from)) != std::string::npos) return true;
    return false;
}

}  // namespace

int main() {
    std::vector<Method> methods;
    for (auto* group : {ourMethods, osgMethods, coinMethods})
        for (auto& m : group())
            if (wanted("MESH_BENCH_ONLY", m.name)) methods.push_back(m);
    if (!meterAvailable()) std::fprintf(stderr, "*** heap meter unavailable in this build: no memory column ***\n");

    std::vector<Case> cases;
    for (int side : {354, 707, 1414}) cases.push_back({heightField(side), repsFor(2 * side * side)});
    cases.push_back({quadSphere(408), repsFor(6 * 408 * 408)});

    std::printf("Crease-angle vertex normals: median CPU time of interleaved runs, spread = (max - min) / median,\n"
                "peak heap above the mesh's own arrays (MB, and as a multiple of those arrays)\n");
    std::printf("  %-12s %9s %5s  %-40s %9s %7s %8s  %8s %6s\n", "mesh", "faces", "angle", "method", "ms", "spread",
                "ns/face", "extra MB", "x mesh");
    std::map<Key, std::vector<Result>> all;
    for (const Case& c : cases)
        for (float degrees : {30.0f, 180.0f}) {
            if (!wanted("MESH_BENCH_MESH", c.mesh.name)) continue;
            std::vector<Result> results = measure(methods, c.mesh, degrees, c.reps);
            for (size_t m = 0; m < methods.size(); ++m) printRow(c.mesh, degrees, methods[m], results[m]);
            all[{c.mesh.name, c.mesh.faces, degrees}] = results;
        }
    return 0;
}
