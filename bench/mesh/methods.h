// The ways of computing crease-angle vertex normals that the benchmark times: ours, a
// plain per-vertex sum without creases (the memory floor), and the peers' generators.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench_meshes.h"

namespace meshbench {

// One timed run: the constructor prepares (not timed, not metered), go() computes the
// normals and keeps them until destruction.
class Run {
public:
    virtual ~Run() = default;
    virtual void go() = 0;
    // One normal per coordinate after go(), where the method gives them that way.
    virtual const float* normals() const { return nullptr; }
};

struct Method {
    std::string name;
    std::function<std::unique_ptr<Run>(const BenchMesh&, float creaseDegrees)> make;
    bool peer = false;  // an established library, not ours or the floor
};

std::vector<Method> ourMethods();
// Empty, with a note on stderr, when the library was not found at build time.
std::vector<Method> osgMethods();
std::vector<Method> coinMethods();

}  // namespace meshbench
