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
#include <vector>

#include "tsobj3d/mesh/array_copy.h"
#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

// One use of a coordinate by a face, with the coordinates before and after it in the
// face: the two edges of the face that meet there. A neighbour that names no
// coordinate, or the corner's own coordinate, makes no edge: kNoEdge.
constexpr int32_t kNoEdge = -1;
struct Corner {
    int32_t face;
    int32_t key[2];
    bool hasArea;          // the face's normal is not (0, 0, 0)
    const float* normal;   // the face's normal
};

class MeshTopology {
public:
    // False when the memory cannot be had.
    bool build(const MeshView& mesh);

    int32_t faceCount() const { return faceCount_; }
    int32_t cornerCount(int32_t coord) const { return cornerEnd_[coord] - cornerBegin(coord); }

    // Writes the corners of coord in the order of their positions (so the corners of
    // one face follow each other) into out, which has room for cornerCount(coord), with
    // their faces' normals from faceNormals (3 floats per face; may be null when the
    // normals are not wanted).
    void corners(int32_t coord, const float* faceNormals, Corner* out) const;

    // Calls visit(coord, corners, count) for every coordinate in order, with its
    // corners as corners() gives them; scratch grows to the largest count.
    template <typename Visit>
    void forEachCoordinate(const float* faceNormals, std::vector<Corner>& scratch, Visit&& visit) const;

    // faceNormal() of every face (3 floats each), found from the face starts.
    void faceNormals(float* out) const;

private:
    int32_t cornerBegin(int32_t coord) const { return coord == 0 ? 0 : cornerEnd_[coord - 1]; }
    template <typename Visit>
    void forOneCoordinate(int32_t coord, const float* faceNormals, Corner* out, Visit&& visit) const;
    template <typename Faces, typename Visit>
    void gather(const Faces& faces, int32_t coord, const float* faceNormals, Corner* out, Visit&& visit) const;
    void noteUniformFaces();
    bool countCorners(int32_t end);
    void placeCorners(int32_t end);

    MeshView mesh_;
    int32_t faceCount_ = 0;
    int64_t cornerTotal_ = 0;
    // When every face has the same number of entries (all triangles, all quads), the
    // face of a position is a division: stride_ entries per face with its -1.
    int32_t stride_ = 0;
    Buffer<int32_t> faceStart_;   // faceCount + 1: first position of each face, then one past the last -1
    Buffer<uint64_t> endBits_;    // one bit per position, set at each -1
    Buffer<int32_t> endsBefore_;  // per 64 positions: the -1 entries before them
    Buffer<int32_t> cornerEnd_;   // per coordinate: one past its last corner in corners_
    Buffer<int32_t> corners_;     // positions, grouped by coordinate
};

namespace topology {

// Set bits of a word, without relying on a popcount instruction the target may lack.
inline int32_t bitCount(uint64_t x) {
    x = x - ((x >> 1) & 0x5555555555555555ull);
    x = (x & 0x3333333333333333ull) + ((x >> 2) & 0x3333333333333333ull);
    x = (x + (x >> 4)) & 0x0f0f0f0f0f0f0f0full;
    return int32_t((x * 0x0101010101010101ull) >> 56);
}

// The face of a position and the face's first and last entries, when all faces have
// the same stride: k / stride as a multiplication (exact for every k below 2^32).
struct UniformFaces {
    uint64_t magic;
    int shift;
    int32_t stride;

    explicit UniformFaces(int32_t s) : stride(s) {
        int log = 0;
        while ((int64_t(1) << log) < s) ++log;
        shift = 32 + log;
        magic = ((uint64_t(1) << shift) + uint64_t(s) - 1) / uint64_t(s);
    }
    void span(int32_t k, int32_t& face, int32_t& first, int32_t& last) const {
        face = int32_t((uint64_t(k) * magic) >> shift);
        first = face * stride;
        last = first + stride - 2;
    }
};

// The same for faces of any size: the -1 entries before a position, counted by 64-bit
// blocks and bits, and the faces' starts.
struct MixedFaces {
    const uint64_t* endBits;
    const int32_t* endsBefore;
    const int32_t* faceStart;

    void span(int32_t k, int32_t& face, int32_t& first, int32_t& last) const {
        const uint64_t below = endBits[k >> 6] & ((uint64_t(1) << (k & 63)) - 1);
        face = endsBefore[k >> 6] + bitCount(below);
        first = faceStart[face];
        last = faceStart[face + 1] - 2;
    }
};

}  // namespace topology

template <typename Faces, typename Visit>
void MeshTopology::gather(const Faces& faces, int32_t coord, const float* faceNormals, Corner* out, Visit&& visit) const {
    const int32_t* index = mesh_.coordIndex;
    const uint32_t coords = uint32_t(mesh_.coordCount);
    const int32_t begin = cornerBegin(coord);
    const int32_t count = cornerEnd_[coord] - begin;
    const int32_t* positions = corners_.get() + begin;
    for (int32_t c = 0; c < count; ++c) {
        const int32_t k = positions[c];
        int32_t face, first, last;
        faces.span(k, face, first, last);
        const int32_t before = index[k == first ? last : k - 1];
        const int32_t after = index[k == last ? first : k + 1];
        Corner& corner = out[c];
        corner.face = face;
        corner.key[0] = uint32_t(before) < coords && before != coord ? before : kNoEdge;
        corner.key[1] = uint32_t(after) < coords && after != coord ? after : kNoEdge;
        if (faceNormals == nullptr) continue;
        const float* n = faceNormals + 3 * int64_t(face);
        corner.normal = n;
        corner.hasArea = n[0] != 0.0f || n[1] != 0.0f || n[2] != 0.0f;
    }
    visit(coord, static_cast<const Corner*>(out), count);
}

template <typename Visit>
void MeshTopology::forOneCoordinate(int32_t coord, const float* faceNormals, Corner* out, Visit&& visit) const {
    if (stride_ > 0)
        gather(topology::UniformFaces(stride_), coord, faceNormals, out, visit);
    else
        gather(topology::MixedFaces{endBits_.get(), endsBefore_.get(), faceStart_.get()}, coord, faceNormals, out,
               visit);
}

template <typename Visit>
void MeshTopology::forEachCoordinate(const float* faceNormals, std::vector<Corner>& scratch, Visit&& visit) const {
    auto all = [&](const auto& faces) {
        for (int32_t v = 0; v < mesh_.coordCount; ++v) {
            const size_t count = size_t(cornerCount(v));
            if (scratch.size() < count) scratch.resize(count);
            gather(faces, v, faceNormals, scratch.data(), visit);
        }
    };
    if (stride_ > 0)
        all(topology::UniformFaces(stride_));
    else
        all(topology::MixedFaces{endBits_.get(), endsBefore_.get(), faceStart_.get()});
}

}  // namespace ts::mesh
