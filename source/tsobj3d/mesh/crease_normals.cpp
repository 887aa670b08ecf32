// Crease-angle smoothing over a whole mesh: the corner lists of every coordinate, then
// each coordinate's ring on its own.
#include "tsobj3d/mesh/crease_normals.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "tsobj3d/mesh/face_normals.h"
#include "tsobj3d/mesh/mesh_topology.h"
#include "tsobj3d/mesh/ring_smoother.h"

namespace ts::mesh {

namespace {

constexpr double kRadiansPerDegree = 0.01745329251994;

void zeroNormals(int32_t coordCount, float* out) {
    std::fill(out, out + 3 * int64_t(std::max(coordCount, 0)), 0.0f);
}

}  // namespace

float creaseCosine(float creaseAngleDegrees) {
    return float(std::cos(creaseAngleDegrees * kRadiansPerDegree));
}

namespace {

bool smoothAll(const MeshView& mesh, const MeshTopology& topology, const float* faceNormals, float creaseAngleDegrees,
               float* out) {
    const float cosCrease = creaseCosine(creaseAngleDegrees);
    RingSmoother smoother;
    std::vector<Corner> corners;
    try {
        topology.forEachCoordinate(faceNormals, corners, [&](int32_t v, const Corner* around, int32_t count) {
            smoother.smooth(around, count, cosCrease, out + 3 * int64_t(v));
        });
    } catch (const std::bad_alloc&) {
        zeroNormals(mesh.coordCount, out);
        return false;
    }
    return true;
}

}  // namespace

bool creaseNormals(const MeshView& mesh, const float* faceNormals, float creaseAngleDegrees, float* out) {
    MeshTopology topology;
    if (!topology.build(mesh)) {
        zeroNormals(mesh.coordCount, out);
        return false;
    }
    return smoothAll(mesh, topology, faceNormals, creaseAngleDegrees, out);
}

// The topology first: its face starts spare the face normals a search for each -1.
bool creaseNormals(const MeshView& mesh, float creaseAngleDegrees, float* out) {
    MeshTopology topology;
    Buffer<float> normals;
    if (topology.build(mesh)) normals = allocateBuffer<float>(3 * int64_t(topology.faceCount()));
    if (!normals) {
        zeroNormals(mesh.coordCount, out);
        return false;
    }
    topology.faceNormals(normals.get());
    return smoothAll(mesh, topology, normals.get(), creaseAngleDegrees, out);
}

}  // namespace ts::mesh
