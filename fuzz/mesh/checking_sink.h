// A mesh sink for the fuzz targets: every vertex must come from the mesh's own
// coordinates (or be a grid point), every normal and colour must be finite (colours and
// given normals are what the caller passed, so they only need to be readable).
#pragma once

#include <cmath>
#include <cstdlib>

#include "tsobj3d/mesh/mesh_sink.h"

namespace meshfuzz {

class CheckingSink : public ts::mesh::MeshSink {
public:
    CheckingSink(const float* coords, long coordCount) : coords_(coords), count_(coordCount) {}

    void begin(uint32_t) override {
        if (open_) std::abort();
        open_ = true;
    }
    void end() override {
        if (!open_) std::abort();
        open_ = false;
    }
    void color(const float* c) override { sum_ += c[0] + c[1] + c[2]; }
    void normal(const float* n) override { sum_ += n[0] + n[1] + n[2]; }
    void vertex(const float* v) override {
        if (!open_) std::abort();
        if (coords_ != nullptr && (v < coords_ || v >= coords_ + 3 * count_ || (v - coords_) % 3 != 0)) std::abort();
        sum_ += v[0] + v[1] + v[2];
    }
    // Keeps the reads from being optimised away.
    float sum() const { return sum_; }

private:
    const float* coords_;
    long count_;
    bool open_ = false;
    float sum_ = 0;
};

// Finite, and of unit length or (0, 0, 0).
inline void checkNormals(const float* n, long count) {
    for (long v = 0; v < count; ++v) {
        const float* p = n + 3 * v;
        if (!std::isfinite(p[0]) || !std::isfinite(p[1]) || !std::isfinite(p[2])) std::abort();
        const float length = std::sqrt(p[0] * p[0] + p[1] * p[1] + p[2] * p[2]);
        if (length != 0.0f && std::fabs(length - 1.0f) > 1e-4f) std::abort();
    }
}

}  // namespace meshfuzz
