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
    // n := the normal of the coordinate whose corners (in position order, with their
    // faces' normals) are corners[0 .. count - 1].
    void smooth(const Corner* corners, int32_t count, float cosCrease, float* n);

private:
    // Up to this many corners are linked by a scan and walked with bit masks.
    static constexpr int32_t kFewCorners = 64;

    // Up to four neighbours per corner: the corner before and after it among those
    // that share each of its two edges; -1 where there is none.
    struct Links {
        int32_t to[4];
    };

    void linkByScan(const Corner* corners, int32_t count);
    bool smoothClosedRing(const Corner* corners, int32_t count, float cosCrease, float* n);
    uint64_t walkFew(const Corner* corners, int32_t start);
    void linkBySort(const Corner* corners, int32_t count);
    void walkMany(const Corner* corners, int32_t count, int32_t start);
    bool joins(const Corner* corners, int32_t from, int32_t to);

    float cosCrease_ = 1.0f;
    int32_t* reference_ = nullptr;    // per corner: the corner whose normal crease tests use
    uint64_t adjacent_[kFewCorners];  // linkByScan: the neighbours of each corner as bits
    int32_t referenceFew_[kFewCorners];
    std::vector<Links> links_;        // linkBySort and walkMany
    std::vector<int32_t> referenceMany_;
    std::vector<uint8_t> member_;
    std::vector<int64_t> keyed_;      // key, corner and side packed for sorting
    std::vector<int32_t> heap_;
};

}  // namespace ts::mesh
