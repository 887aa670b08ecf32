// Benchmark of crease-angle vertex normals: ours against OpenSceneGraph's and Coin3D's
// generators and a plain per-vertex sum, on the same meshes in one process, runs
// interleaved (A B C A B C ...). Prints one table: median CPU time, its spread
// ((max - min) / median), ns per face, and the peak heap above what the mesh holds,
// then how the targets fare.
#include <algorithm>
#include <cmath>
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
    double extraRatio = 0;  // peakBytes over the mesh's own arrays
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
        res.extraRatio = double(res.peakBytes) / double(mesh.bytes());
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

using Table = std::map<Key, std::vector<Result>>;

const char* verdict(bool met) { return met ? "met" : "MISSED"; }

// The targets: at about 1M faces at least twice as fast as the faster peer and within 8
// times the plain sum; ns per face at 4M within 1.3 times that at 250k; extra memory at
// most twice the mesh's arrays. Methods 0 and 1 are ours and the plain sum.
void printTargets(const std::vector<Method>& methods, const Table& all) {
    std::printf("Targets\n");
    for (const auto& [key, r] : all) {
        const std::string what = key.mesh + " " + std::to_string(key.faces) + " at " + std::to_string(int(key.degrees));
        if (key.faces > 500000 && key.faces < 2000000) {
            double peer = 0;
            std::string name = "none measured";
            for (size_t m = 2; m < methods.size(); ++m)
                if (methods[m].peer && (peer == 0 || r[m].nsPerFace < peer)) {
                    peer = r[m].nsPerFace;
                    name = methods[m].name;
                }
            const double speedup = peer / r[0].nsPerFace, floor = r[0].nsPerFace / r[1].nsPerFace;
            if (peer > 0)
                std::printf("  %-28s %5.2fx faster than %-40s (>= 2: %s)\n", what.c_str(), speedup, name.c_str(),
                            verdict(speedup >= 2));
            std::printf("  %-28s %5.2fx the plain sum (<= 8: %s)\n", what.c_str(), floor, verdict(floor <= 8));
        }
        if (r[0].peakBytes >= 0)
            std::printf("  %-28s extra memory %.2fx the mesh's arrays (<= 2: %s)\n", what.c_str(), r[0].extraRatio,
                        verdict(r[0].extraRatio <= 2));
    }
    for (const auto& [key, r] : all) {
        if (key.faces < 3000000) continue;
        for (const auto& [small, rs] : all)
            if (small.mesh == key.mesh && small.degrees == key.degrees && small.faces < 500000) {
                const double growth = r[0].nsPerFace / rs[0].nsPerFace;
                std::printf("  %-28s ns/face %.1f at %d against %.1f at %d: %.2fx (<= 1.3: %s)\n",
                            (key.mesh + " at " + std::to_string(int(key.degrees))).c_str(), r[0].nsPerFace, key.faces,
                            rs[0].nsPerFace, small.faces, growth, verdict(growth <= 1.3));
            }
    }
}

void printRow(const BenchMesh& mesh, float degrees, const Method& method, const Result& r) {
    char memory[48] = "n/a";
    if (r.peakBytes >= 0) std::snprintf(memory, sizeof memory, "%8.1f %6.2f", r.peakBytes / 1048576.0, r.extraRatio);
    std::printf("  %-12s %9d %5.0f  %-40s %9.1f %6.0f%% %8.1f  %s\n", mesh.name.c_str(), mesh.faces, degrees,
                method.name.c_str(), r.medianMs, 100 * r.spread, r.nsPerFace, memory);
}

// At 180 degrees nothing is a crease, so on these meshes our normals are the plain
// sum's: the largest difference of a component checks that the timed code computes
// what it should.
double agreementWithPlainSum(const std::vector<Method>& methods, const BenchMesh& mesh) {
    std::unique_ptr<Run> ours = methods[0].make(mesh, 180.0f), plain = methods[1].make(mesh, 180.0f);
    ours->go();
    plain->go();
    double worst = 0;
    for (int32_t v = 0; v < mesh.coordCount(); ++v) {
        const float* a = ours->normals() + 3 * v;
        const float* b = plain->normals() + 3 * v;
        for (int c = 0; c < 3; ++c) worst = std::max(worst, std::fabs(double(a[c]) - b[c]));
    }
    return worst;
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
    Table all;
    for (const Case& c : cases)
        for (float degrees : {30.0f, 180.0f}) {
            if (!wanted("MESH_BENCH_MESH", c.mesh.name)) continue;
            std::vector<Result> results = measure(methods, c.mesh, degrees, c.reps);
            for (size_t m = 0; m < methods.size(); ++m) printRow(c.mesh, degrees, methods[m], results[m]);
            all[{c.mesh.name, c.mesh.faces, degrees}] = results;
        }
    if (methods.size() >= 2 && methods[0].name.find("Tessarin") == 0 && methods[1].name.find("plain") == 0) {
        printTargets(methods, all);
        for (const Case& c : cases)
            if (wanted("MESH_BENCH_MESH", c.mesh.name))
                std::printf("  check: %s of %d faces at 180 degrees, ours against the plain sum: components at most %.2g apart\n",
                            c.mesh.name.c_str(), c.mesh.faces, agreementWithPlainSum(methods, c.mesh));
    }
    return 0;
}
