// The benchmark's meshes: noisy height fields of triangles and a sphere of quads, as
// coordinate triples and a -1-terminated index list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace meshbench {

struct BenchMesh {
    std::string name;
    std::vector<float> coords;
    std::vector<int32_t> index;  // each face closed by -1
    int32_t faces = 0;
    int vertsPerFace = 0;  // 3 or 4: every face has as many

    int32_t coordCount() const { return int32_t(coords.size() / 3); }
    // The mesh's own arrays: what every method is given.
    size_t bytes() const { return coords.size() * sizeof(float) + index.size() * sizeof(int32_t); }
};

// side x side cells of two triangles each over a rolling terrain with random noise of
// about the grid spacing, so that many edges are sharper than 30 degrees.
BenchMesh heightField(int side);

// A cube's faces cut into n x n quads each and pushed out onto the unit sphere: 6 n^2
// quads, four at nearly every point.
BenchMesh quadSphere(int n);

}  // namespace meshbench
