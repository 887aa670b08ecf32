// A polygon mesh as the indexed face set holds it: coordinate triples and an index
// list in which every face is closed by -1. Entries after the last -1 belong to no
// face; they are neither counted nor drawn.
#pragma once

#include <cstdint>

namespace ts::mesh {

constexpr int32_t kFaceEnd = -1;

struct MeshView {
    const float* coords = nullptr;  // coordCount x, y, z triples
    int32_t coordCount = 0;
    const int32_t* coordIndex = nullptr;
    int32_t coordIndexCount = 0;
};

// An index names a coordinate when it lies in 0 .. coordCount - 1. Other negative
// values than -1 pass the node's validation and are skipped wherever the mesh is read.
inline bool namesCoord(int32_t index, int32_t coordCount) {
    return index >= 0 && index < coordCount;
}

// Number of faces: the number of -1 entries.
int32_t countFaces(const int32_t* coordIndex, int32_t coordIndexCount);

// One past the last -1 of the list (0 when there is none): where the faces end.
int32_t endOfFaces(const int32_t* coordIndex, int32_t coordIndexCount);

// Calls visit(face, first, end) for every face in order: its entries are the
// positions first .. end - 1 and coordIndex[end] is its -1.
template <typename Visit>
void forEachFace(const int32_t* coordIndex, int32_t coordIndexCount, Visit&& visit) {
    int32_t face = 0;
    int32_t first = 0;
    for (int32_t k = 0; k < coordIndexCount; ++k) {
        if (coordIndex[k] != kFaceEnd) continue;
        visit(face++, first, k);
        first = k + 1;
    }
}

}  // namespace ts::mesh
