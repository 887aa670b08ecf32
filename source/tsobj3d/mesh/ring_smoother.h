// The normal of one coordinate from its corners: links the faces that share an edge
// through it, walks from the start face across the edges within the crease angle and
// sums the run it reaches. Keeps its scratch arrays from one coordinate to the next.
#pragma once

#include <cstdint>
#include <vector>

#include "tsobj3d/mesh/mesh_topology.h"

namespace ts::mesh {

class RingSmoother {
public:
    // n := the normal of the coordinate whose corners (in position order) are
    // corners[0 .. count - 1]; faceNormals holds 3 floats per face.
    void smooth(const Corner* corners, int32_t count, const float* faceNormals, float cosCrease, float* n);

private:
    // Up to four neighbours per corner: the corner before and after it among those
    // that share each of its two edges; -1 where there is none.
    struct Links {
        int32_t to[4];
    };

    void linkByScan(const Corner* corners, int32_t count);
    void linkBySort(const Corner* corners, int32_t count);
    void walkFew(const Corner* corners, int32_t count, int32_t start);
    void walkMany(const Corner* corners, int32_t count, int32_t start);
    bool joins(int32_t from, const Corner& to, int32_t toIndex);
    void finish(const Corner* corners, int32_t count, int32_t start, float* n) const;

    const float* faceNormals_ = nullptr;
    float cosCrease_ = 1.0f;
    std::vector<Links> links_;
    std::vector<int32_t> reference_;  // per corner: the face whose normal crease tests use
    std::vector<uint8_t> member_;
    std::vector<int64_t> keyed_;      // linkBySort: key, corner and side packed for sorting
    std::vector<int32_t> heap_;
};

}  // namespace ts::mesh
