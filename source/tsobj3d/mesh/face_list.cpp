// Counting the faces of an index list.
#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

int32_t countFaces(const int32_t* coordIndex, int32_t coordIndexCount) {
    int32_t faces = 0;
    for (int32_t k = 0; k < coordIndexCount; ++k) faces += coordIndex[k] == kFaceEnd;
    return faces;
}

int32_t endOfFaces(const int32_t* coordIndex, int32_t coordIndexCount) {
    for (int32_t k = coordIndexCount; k > 0; --k)
        if (coordIndex[k - 1] == kFaceEnd) return k;
    return 0;
}

}  // namespace ts::mesh
