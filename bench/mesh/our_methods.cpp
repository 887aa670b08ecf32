// Our crease-angle normals, and the plain per-vertex sum they are measured against.
#include <cmath>

#include "methods.h"
#include "tsobj3d/mesh/crease_normals.h"

namespace meshbench {

namespace {

ts::mesh::MeshView viewOf(const BenchMesh& m) {
    return {m.coords.data(), m.coordCount(), m.index.data(), int32_t(m.index.size())};
}

class CreaseRun : public Run {
public:
    CreaseRun(const BenchMesh& m, float degrees) : mesh_(m), degrees_(degrees) {}
    void go() override {
        normals_.resize(mesh_.coords.size());
        if (!ts::mesh::creaseNormals(viewOf(mesh_), degrees_, normals_.data())) std::abort();
    }
    const float* normals() const override { return normals_.data(); }

private:
    const BenchMesh& mesh_;
    float degrees_;
    std::vector<float> normals_;
};

// Each face's unit normal (from its first three points) added to its vertices, then
// every sum normalised: one pass over the faces, no memory besides the output.
class PlainSumRun : public Run {
public:
    explicit PlainSumRun(const BenchMesh& m) : mesh_(m) {}
    void go() override {
        normals_.assign(mesh_.coords.size(), 0.0f);
        const float* c = mesh_.coords.data();
        const int32_t* index = mesh_.index.data();
        const size_t entries = mesh_.index.size();
        for (size_t first = 0; first < entries;) {
            size_t end = first;
            while (index[end] != -1) ++end;
            const float* p0 = c + 3 * index[first];
            const float* p1 = c + 3 * index[first + 1];
            const float* p2 = c + 3 * index[first + 2];
            const float a[3] = {p0[0] - p1[0], p0[1] - p1[1], p0[2] - p1[2]};
            const float b[3] = {p1[0] - p2[0], p1[1] - p2[1], p1[2] - p2[2]};
            float n[3] = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
            const float r = 1.0f / std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
            for (size_t k = first; k < end; ++k) {
                float* sum = &normals_[3 * size_t(index[k])];
                sum[0] += n[0] * r;
                sum[1] += n[1] * r;
                sum[2] += n[2] * r;
            }
            first = end + 1;
        }
        for (size_t v = 0; v < normals_.size(); v += 3) {
            float* n = &normals_[v];
            const float r = 1.0f / std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
            n[0] *= r;
            n[1] *= r;
            n[2] *= r;
        }
    }
    const float* normals() const override { return normals_.data(); }

private:
    const BenchMesh& mesh_;
    std::vector<float> normals_;
};

}  // namespace

std::vector<Method> ourMethods() {
    return {
        {"Tessarin creaseNormals",
         [](const BenchMesh& m, float d) { return std::unique_ptr<Run>(new CreaseRun(m, d)); }, false},
        {"plain per-vertex sum (floor)",
         [](const BenchMesh& m, float) { return std::unique_ptr<Run>(new PlainSumRun(m)); }, false},
    };
}

}  // namespace meshbench
