// Building the corner lists of a mesh with two passes over its index list (a counting
// sort of the positions by coordinate), and reading a coordinate's corners back.
#include "tsobj3d/mesh/mesh_topology.h"

#include <algorithm>

#include "tsobj3d/mesh/face_normals.h"

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
    noteUniformFaces();
    return true;
}

void MeshTopology::faceNormals(float* out) const {
    for (int32_t f = 0; f < faceCount_; ++f) faceNormal(mesh_, faceStart_[f], faceStart_[f + 1] - 1, out + 3 * int64_t(f));
}

void MeshTopology::noteUniformFaces() {
    stride_ = faceCount_ > 0 ? faceStart_[1] : 0;
    for (int32_t f = 1; f < faceCount_ && stride_ > 0; ++f)
        if (faceStart_[f + 1] - faceStart_[f] != stride_) stride_ = 0;
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

void MeshTopology::corners(int32_t coord, const float* faceNormals, Corner* out) const {
    forOneCoordinate(coord, faceNormals, out, [](int32_t, const Corner*, int32_t) {});
}

}  // namespace ts::mesh
