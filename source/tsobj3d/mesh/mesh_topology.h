// The neighbourhood of every coordinate of a mesh: which face each index position
// belongs to, and each coordinate's corners (the positions that name it), so that the
// faces around a coordinate can be found without a search over the whole mesh.
//
// Memory: 4 bytes per face, per coordinate and per corner, and 12 bits per index
// entry; nothing per edge.
#pragma once

#include <cstdint>
#include <memory>
#include <new>

#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

template <typename T>
using Buffer = std::unique_ptr<T[]>;

// Uninitialised storage, or null when it cannot be had.
template <typename T>
Buffer<T> allocateBuffer(int64_t count) {
    if (count < 0 || uint64_t(count) > SIZE_MAX / sizeof(T)) return nullptr;
    return Buffer<T>(new (std::nothrow) T[count > 0 ? size_t(count) : 1]);
}

// One use of a coordinate by a face, with the coordinates before and after it in the
// face: the two edges of the face that meet there. A neighbour that names no
// coordinate, or the corner's own coordinate, makes no edge: kNoEdge.
constexpr int32_t kNoEdge = -1;
struct Corner {
    int32_t face;
    int32_t key[2];
};

class MeshTopology {
public:
    // False when the memory cannot be had.
    bool build(const MeshView& mesh);

    int32_t faceCount() const { return faceCount_; }
    int32_t cornerCount(int32_t coord) const { return cornerEnd_[coord] - cornerBegin(coord); }

    // Writes the corners of coord in the order of their positions (so the corners of
    // one face follow each other) into out, which has room for cornerCount(coord).
    void corners(int32_t coord, Corner* out) const;

    // Positions first .. end - 1 of the face (coordIndex[end] is its -1).
    int32_t faceFirst(int32_t face) const { return faceStart_[face]; }
    int32_t faceEnd(int32_t face) const { return faceStart_[face + 1] - 1; }

private:
    int32_t cornerBegin(int32_t coord) const { return coord == 0 ? 0 : cornerEnd_[coord - 1]; }
    int32_t faceOfPosition(int32_t k) const;
    bool countCorners(int32_t end);
    void placeCorners(int32_t end);

    MeshView mesh_;
    int32_t faceCount_ = 0;
    int64_t cornerTotal_ = 0;
    Buffer<int32_t> faceStart_;   // faceCount + 1: first position of each face, then one past the last -1
    Buffer<uint64_t> endBits_;    // one bit per position, set at each -1
    Buffer<int32_t> endsBefore_;  // per 64 positions: the -1 entries before them
    Buffer<int32_t> cornerEnd_;   // per coordinate: one past its last corner in corners_
    Buffer<int32_t> corners_;     // positions, grouped by coordinate
};

}  // namespace ts::mesh
