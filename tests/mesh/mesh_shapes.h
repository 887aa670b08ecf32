// Small meshes whose normals are worked out by hand in the tests: the unit cube, a
// cylinder, a saddle and an open fan.
#pragma once

#include <cstdint>
#include <vector>

#include "tsobj3d/mesh/face_list.h"

namespace tst {

constexpr double kPi = 3.14159265358979323846;

struct Shape {
    std::vector<float> coords;
    std::vector<int32_t> index;

    ts::mesh::MeshView view() const {
        return {coords.data(), int32_t(coords.size() / 3), index.data(), int32_t(index.size())};
    }
    int32_t coordCount() const { return int32_t(coords.size() / 3); }
    void add(std::initializer_list<int32_t> face) {
        index.insert(index.end(), face);
        index.push_back(-1);
    }
};

// Coordinate v = x + 2y + 4z of the unit cube; faces counter-clockwise from outside:
// 0 bottom (-z), 1 top (+z), 2 front (-y), 3 back (+y), 4 left (-x), 5 right (+x).
Shape unitCube();

// Side quads 0 .. n-1 first (then top cap, then bottom cap) or caps first; bottom ring
// coordinates 0 .. n-1 at y = 0, top ring n .. 2n-1 at y = 1, point i at angle
// 2 pi i / n: (cos, y, sin).
Shape cylinder(int n, bool capsFirst);

}  // namespace tst
