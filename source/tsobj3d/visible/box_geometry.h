// The corners and faces of an axis-aligned box, for either GLU orientation.
#pragma once

#include <cstdint>

namespace ts {

// Corners c0 .. c7 of the box spanned by two opposite corners (either order per
// axis): c0 (xmin, ymin, zmax), c1 (xmax, ymin, zmax), c2 (xmax, ymin, zmin),
// c3 (xmin, ymin, zmin), c4 (xmin, ymax, zmax), c5 (xmax, ymax, zmax),
// c6 (xmax, ymax, zmin), c7 (xmin, ymax, zmin).
void boxCorners(const float* a, const float* b, float (*corners)[3]);

struct BoxFace {
    float normal[3];
    int corner[4];  // indices into the corners, counter-clockwise seen along -normal
};

// The six faces in drawing order. For GLU_OUTSIDE the normals point out of the box in
// the order -y, +y, +z, +x, -z, -x; for any other value they point in (+y, -y, -z,
// -x, +z, +x). Each face is wound counter-clockwise as seen from the side its normal
// points to, so back-face culling and the normal agree.
const BoxFace* boxFaces(int32_t orientation);

}  // namespace ts
