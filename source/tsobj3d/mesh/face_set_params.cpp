// Checking and copying the arguments of an indexed face set, step by step in the order
// whose messages applications have always seen.
#include "tsobj3d/mesh/face_set_params.h"

#include <algorithm>

#include "tsobj3d/mesh/array_copy.h"

namespace ts::mesh {

namespace {

bool anyAtOrAbove(const int32_t* index, int32_t count, int32_t limit) {
    return std::any_of(index, index + count, [limit](int32_t i) { return i >= limit; });
}

const char* setCoords(const FaceSetArgs& a, FaceSetData& d) {
    if (a.coord == nullptr || a.coordCount == 0 || a.coordIndex == nullptr || a.coordIndexCount == 0)
        return "Invalid input parameter";
    if (!copyArray(d.coords, a.coord, 3 * int64_t(a.coordCount))) return "Allocation of array ver failed";
    d.coordCount = a.coordCount;
    if (!copyArray(d.coordIndex, a.coordIndex, a.coordIndexCount)) return "Allocation of array veri failed";
    d.coordIndexCount = a.coordIndexCount;
    for (int32_t k = 0; k < d.coordIndexCount; ++k) {
        if (d.coordIndex[k] == kFaceEnd) ++d.faceCount;
        if (d.coordIndex[k] >= a.coordCount) return "Coord index > number of coords";
    }
    return nullptr;
}

const char* setColors(const FaceSetArgs& a, FaceSetData& d) {
    if (a.color == nullptr || a.colorCount == 0) return nullptr;
    d.colorPerVertex = a.colorPerVertex != 0;
    if (!d.coords || !copyArray(d.colors, a.color, 3 * int64_t(a.colorCount)))
        return "Allocation of array col failed";
    d.colorCount = a.colorCount;
    if (a.colorIndex != nullptr && a.colorIndexCount != 0) {
        if (!copyArray(d.colorIndex, a.colorIndex, a.colorIndexCount)) return "Allocation of array coli failed";
        d.colorIndexCount = a.colorIndexCount;
        if (d.colorPerVertex && a.colorIndexCount != a.coordIndexCount)
            return "NO. of color indexes <> NO. of coord. indexes";
        if (!d.colorPerVertex && a.colorIndexCount != d.faceCount) return "NO. of colors <> NO. of faces";
        if (anyAtOrAbove(d.colorIndex.get(), d.colorIndexCount, a.colorCount)) return "Color index > NO. of colors";
    } else if (!d.colorPerVertex && a.colorCount != d.faceCount) {
        return "Number of colors <> number of faces";
    } else if (d.colorPerVertex && a.colorCount != a.coordCount) {
        return "Number of colors <> number of vertices";
    }
    return nullptr;
}

// As the colours, except that per-vertex normals without an index only need to be at
// least as many as the coordinates.
const char* setNormals(const FaceSetArgs& a, FaceSetData& d) {
    if (a.normal == nullptr || a.normalCount == 0) return nullptr;
    d.normalPerVertex = a.normalPerVertex != 0;
    if (!copyArray(d.normals, a.normal, 3 * int64_t(a.normalCount))) return "Allocation of normal array failed";
    d.normalCount = a.normalCount;
    if (a.normalIndex != nullptr && a.normalIndexCount != 0) {
        if (!copyArray(d.normalIndex, a.normalIndex, a.normalIndexCount)) return "Allocation of array nori failed";
        d.normalIndexCount = a.normalIndexCount;
        if (d.normalPerVertex && a.normalIndexCount != a.coordIndexCount)
            return "NO. of normal indexes <> NO. of coord. indexes";
        if (!d.normalPerVertex && a.normalIndexCount != d.faceCount) return "NO. of normals <> NO. of faces";
        if (anyAtOrAbove(d.normalIndex.get(), d.normalIndexCount, a.normalCount)) return "Normal index > number of normals";
    } else if (!d.normalPerVertex && a.normalCount != d.faceCount) {
        return "Number of normals <> number of faces";
    } else if (d.normalPerVertex && a.normalCount < a.coordCount) {
        return "Number of normals <> number of vertices";
    }
    return nullptr;
}

}  // namespace

void FaceSetData::clear() {
    *this = FaceSetData();
}

FaceSetView FaceSetData::view() const {
    FaceSetView v;
    v.mesh = {coords.get(), coordCount, coordIndex.get(), coordIndexCount};
    v.faceCount = faceCount;
    v.colorPerVertex = colorPerVertex != 0;
    v.colors = colors.get();
    v.colorCount = colorCount;
    v.colorIndex = colorIndex.get();
    v.colorIndexCount = colorIndexCount;
    v.normalPerVertex = normalPerVertex != 0;
    v.normals = normals.get();
    v.normalCount = normalCount;
    v.normalIndex = normalIndex.get();
    v.normalIndexCount = normalIndexCount;
    return v;
}

const char* setFaceSet(const FaceSetArgs& args, FaceSetData& data) {
    data.clear();
    const char* error = setCoords(args, data);
    if (error == nullptr) error = setColors(args, data);
    if (error == nullptr) error = setNormals(args, data);
    if (error != nullptr) data.clear();
    return error;
}

}  // namespace ts::mesh
