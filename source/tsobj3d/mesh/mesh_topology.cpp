// Building the corner lists of a mesh with two passes over its index list (a counting
// sort of the positions by coordinate), and reading a coordinate's corners back.
#include "tsobj3d/mesh/mesh_topology.h"

#include <algorithm>

namespace ts::mesh {

bool MeshTopology::build(const MeshView& mesh) {
    mesh_ = mesh;
    const int32_t end = endOfFaces(mesh.coordIndex, mesh.coordIndexCount);
    faceCount_ = countFaces(mesh.coordIndex, end);
    const int64_t blocks = int64_t(end) / 64 + 1;
    faceStart_ = allocateBuffer<int32_t>(int64_t(faceCount_) + 1);
    endBits_ = allocateBuffer<uint64_t>(blocks);
    endsBefore_ = allocateBuffer<int32_t>(blocks);
    cornerEnd_ = allocateBuffer<int32_t>(mesh.coordCount);
    if (!faceStart_ || !endBits_ || !endsBefore_ || !cornerEnd_ || !countCorners(end)) return false;
    corners_ = allocateBuffer<int32_t>(cornerTotal_);
    if (!corners_) return false;
    placeCorners(end);
    return true;
}

// Face starts, the -1 bits and their running count, and the number of corners of each
// coordinate, turned into each coordinate's first place in corners_.
bool MeshTopology::countCorners(int32_t end) {
    const int32_t* index = mesh_.coordIndex;
    const int32_t coords = mesh_.coordCount;
    for (int32_t v = 0; v < coords; ++v) cornerEnd_[v] = 0;
    int32_t face = 0;
    faceStart_[0] = 0;
    for (int32_t block = 0; int64_t(block) * 64 <= end; ++block) {
        endsBefore_[block] = face;
        uint64_t bits = 0;
        const int32_t stop = int32_t(std::min<int64_t>(int64_t(block) * 64 + 64, end));
        for (int32_t k = block * 64; k < stop; ++k) {
            const int32_t i = index[k];
            if (i == kFaceEnd) {
                bits |= uint64_t(1) << (k & 63);
                faceStart_[++face] = k + 1;
            } else if (namesCoord(i, coords)) {
                ++cornerEnd_[i];
            }
        }
        endBits_[block] = bits;
    }
    int64_t total = 0;
    for (int32_t v = 0; v < coords; ++v) {
        const int32_t count = cornerEnd_[v];
        cornerEnd_[v] = int32_t(total);
        total += count;
    }
    cornerTotal_ = total;
    return total <= INT32_MAX;
}

// Scatters each position to its coordinate's group, in position order; afterwards
// cornerEnd_[v] has moved from the group's start to its end.
void MeshTopology::placeCorners(int32_t end) {
    const int32_t* index = mesh_.coordIndex;
    const int32_t coords = mesh_.coordCount;
    for (int32_t k = 0; k < end; ++k) {
        const int32_t i = index[k];
        if (namesCoord(i, coords)) corners_[cornerEnd_[i]++] = k;
    }
}

int32_t MeshTopology::faceOfPosition(int32_t k) const {
    const uint64_t below = endBits_[k >> 6] & ((uint64_t(1) << (k & 63)) - 1);
    return endsBefore_[k >> 6] + __builtin_popcountll(below);
}

void MeshTopology::corners(int32_t coord, Corner* out) const {
    const int32_t* index = mesh_.coordIndex;
    const int32_t coords = mesh_.coordCount;
    const int32_t begin = cornerBegin(coord);
    const int32_t count = cornerEnd_[coord] - begin;
    for (int32_t c = 0; c < count; ++c) {
        const int32_t k = corners_[begin + c];
        const int32_t face = faceOfPosition(k);
        const int32_t first = faceStart_[face];
        const int32_t last = faceStart_[face + 1] - 2;
        const int32_t before = index[k == first ? last : k - 1];
        const int32_t after = index[k == last ? first : k + 1];
        out[c].face = face;
        out[c].key[0] = namesCoord(before, coords) && before != coord ? before : kNoEdge;
        out[c].key[1] = namesCoord(after, coords) && after != coord ? after : kNoEdge;
    }
}

}  // namespace ts::mesh
