// Face normals: the three-point rule, and Newell's normal where the rule has no answer.
#include "tsobj3d/mesh/face_normals.h"


namespace ts::mesh {

namespace {

// The three-point rule; false when it gives no finite unit vector: when the squared
// length is not a normal float (it underflows, losing the precision of the length, or
// overflows), the double-precision Newell normal answers instead.
inline bool threePointNormal(const float* p0, const float* p1, const float* p2, float* n) {
    const float a[3] = {p0[0] - p1[0], p0[1] - p1[1], p0[2] - p1[2]};
    const float b[3] = {p1[0] - p2[0], p1[1] - p2[1], p1[2] - p2[2]};
    const float v[3] = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    return normalizeNormal(v, n);
}

// Newell's normal of the points that point(k) gives for k in 0 .. count - 1 (null
// for none), in double, normalised; (0, 0, 0) when it has no finite length.
template <typename Point>
void newellNormal(int32_t count, Point point, float* n) {
    double sum[3] = {0, 0, 0};
    const float* firstPoint = nullptr;
    const float* previous = nullptr;
    auto edge = [&sum](const float* p, const float* q) {
        sum[0] += (double(p[1]) - q[1]) * (double(p[2]) + q[2]);
        sum[1] += (double(p[2]) - q[2]) * (double(p[0]) + q[0]);
        sum[2] += (double(p[0]) - q[0]) * (double(p[1]) + q[1]);
    };
    for (int32_t k = 0; k < count; ++k) {
        const float* p = point(k);
        if (p == nullptr) continue;
        if (previous != nullptr) edge(previous, p);
        else firstPoint = p;
        previous = p;
    }
    if (previous != nullptr) edge(previous, firstPoint);
    if (!normalizeNormal(sum, n)) n[0] = n[1] = n[2] = 0.0f;
}

}  // namespace

namespace {

inline bool facePointsNormal(const MeshView& mesh, int32_t first, int32_t end, float* n) {
    if (end - first < 3) return false;
    const int32_t* i = mesh.coordIndex + first;
    const uint32_t count = uint32_t(mesh.coordCount);
    if (uint32_t(i[0]) >= count || uint32_t(i[1]) >= count || uint32_t(i[2]) >= count) return false;
    const float* c = mesh.coords;
    return threePointNormal(c + 3 * int64_t(i[0]), c + 3 * int64_t(i[1]), c + 3 * int64_t(i[2]), n);
}

void wholeFaceNormal(const MeshView& mesh, int32_t first, int32_t end, float* n) {
    newellNormal(end - first, [&mesh, first](int32_t k) -> const float* {
        const int32_t index = mesh.coordIndex[first + k];
        return namesCoord(index, mesh.coordCount) ? mesh.coords + 3 * int64_t(index) : nullptr;
    }, n);
}

}  // namespace

void faceNormal(const MeshView& mesh, int32_t first, int32_t end, float* n) {
    if (!facePointsNormal(mesh, first, end, n)) wholeFaceNormal(mesh, first, end, n);
}

void triangleNormal(const float* p0, const float* p1, const float* p2, float* n) {
    if (threePointNormal(p0, p1, p2, n)) return;
    const float* points[3] = {p0, p1, p2};
    newellNormal(3, [&points](int32_t k) { return points[k]; }, n);
}

void faceNormals(const MeshView& mesh, float* out) {
    forEachFace(mesh.coordIndex, mesh.coordIndexCount, [&](int32_t face, int32_t first, int32_t end) {
        float* n = out + 3 * int64_t(face);
        if (!facePointsNormal(mesh, first, end, n)) wholeFaceNormal(mesh, first, end, n);
    });
}

}  // namespace ts::mesh
