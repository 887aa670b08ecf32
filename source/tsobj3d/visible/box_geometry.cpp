// Corners and faces of the box node.
#include "tsobj3d/visible/box_geometry.h"

#include <algorithm>

#include "tsobj3d/geometry_sink.h"

namespace ts {

void boxCorners(const float* a, const float* b, float (*corners)[3]) {
    const float lo[3] = {std::min(a[0], b[0]), std::min(a[1], b[1]), std::min(a[2], b[2])};
    const float hi[3] = {std::max(a[0], b[0]), std::max(a[1], b[1]), std::max(a[2], b[2])};
    // Per corner: x from lo or hi, y from lo or hi, z from lo or hi.
    static const bool high[8][3] = {{false, false, true}, {true, false, true},
                                    {true, false, false}, {false, false, false},
                                    {false, true, true},  {true, true, true},
                                    {true, true, false},  {false, true, false}};
    for (int c = 0; c < 8; ++c)
        for (int k = 0; k < 3; ++k) corners[c][k] = high[c][k] ? hi[k] : lo[k];
}

namespace {

const BoxFace kOutside[6] = {
    {{0, -1, 0}, {0, 3, 2, 1}},  // bottom
    {{0, 1, 0}, {4, 5, 6, 7}},   // top
    {{0, 0, 1}, {0, 1, 5, 4}},   // front
    {{1, 0, 0}, {1, 2, 6, 5}},   // right
    {{0, 0, -1}, {3, 7, 6, 2}},  // back
    {{-1, 0, 0}, {0, 4, 7, 3}},  // left
};

// The same faces in the same order, seen from inside: normals negated, windings
// reversed.
const BoxFace kInside[6] = {
    {{0, 1, 0}, {0, 1, 2, 3}},
    {{0, -1, 0}, {4, 7, 6, 5}},
    {{0, 0, -1}, {0, 4, 5, 1}},
    {{-1, 0, 0}, {1, 5, 6, 2}},
    {{0, 0, 1}, {3, 2, 6, 7}},
    {{1, 0, 0}, {0, 3, 7, 4}},
};

}  // namespace

const BoxFace* boxFaces(int32_t orientation) {
    return orientation == kGluOutside ? kOutside : kInside;
}

}  // namespace ts
