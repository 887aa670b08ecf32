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

bool creaseNormals(const MeshView& mesh, const float* faceNormals, float creaseAngleDegrees, float* out) {
    MeshTopology topology;
    if (!topology.build(mesh)) {
        zeroNormals(mesh.coordCount, out);
        return false;
    }
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

bool creaseNormals(const MeshView& mesh, float creaseAngleDegrees, float* out) {
    const int32_t faces = countFaces(mesh.coordIndex, mesh.coordIndexCount);
    Buffer<float> normals = allocateBuffer<float>(3 * int64_t(faces));
    if (!normals) {
        zeroNormals(mesh.coordCount, out);
        return false;
    }
    faceNormals(mesh, normals.get());
    return creaseNormals(mesh, normals.get(), creaseAngleDegrees, out);
}

}  // namespace ts::mesh
