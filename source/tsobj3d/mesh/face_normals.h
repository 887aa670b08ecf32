// Face normals of a mesh: the library's face-normal rule on each face's first three
// vertices, guarded so that no face yields a non-finite normal.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>

#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

// Unit normal of the face at positions first .. end - 1 of mesh.coordIndex.
// A face whose first three entries name coordinates gets (p0 - p1) x (p1 - p2),
// each component multiplied by the float 1 / |n|: counter-clockwise faces seen from
// the viewer face the viewer. When that is not a finite unit vector (fewer than three
// entries, an entry that names no coordinate, the first three in a line or
// repeated, lengths that underflow or overflow in float), the face gets the
// normalised Newell normal of all its entries that name coordinates, computed in
// double; when that has no length either (a face without area), (0, 0, 0).
void faceNormal(const MeshView& mesh, int32_t first, int32_t end, float* n);

// The same rule for three points: the three-point normal when it is a finite unit
// vector, else their cross product in double, normalised, else (0, 0, 0).
void triangleNormal(const float* p0, const float* p1, const float* p2, float* n);

// faceNormal of every face, in order: 3 floats per face.
void faceNormals(const MeshView& mesh, float* out);

inline bool normalizeNormal(const double* v, float* n) {
    const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
    if (!(length > 0.0 && length <= DBL_MAX)) return false;
    for (int c = 0; c < 3; ++c) n[c] = float(v[c] / length);
    return true;
}

// n := v / |v| as the library has always normalised, in float with the reciprocal formed
// once, when |v|^2 is a normal float; otherwise in double. False, with n untouched,
// when v has no finite length above 0.
inline bool normalizeNormal(const float* v, float* n) {
    const float squared = v[0] * v[0] + v[1] * v[1] + v[2] * v[2];
    if (squared >= FLT_MIN && squared <= FLT_MAX) {
        const float reciprocal = 1.0f / std::sqrt(squared);
        n[0] = v[0] * reciprocal;
        n[1] = v[1] * reciprocal;
        n[2] = v[2] * reciprocal;
        return true;
    }
    const double d[3] = {v[0], v[1], v[2]};
    return normalizeNormal(d, n);
}

// True for the (0, 0, 0) that a face without area gets.
inline bool isZeroNormal(const float* n) {
    return n[0] == 0.0f && n[1] == 0.0f && n[2] == 0.0f;
}

}  // namespace ts::mesh
