// Checking and copying the arguments of an indexed face set, step by step in the order
// whose messages applications have always seen.
#include "tsobj3d/mesh/face_set_params.h"

#include "tsobj3d/mesh/array_copy.h"

namespace ts::mesh {

namespace {

bool anyAtOrAbove(const std::vector<int32_t>& index, int32_t limit) {
    for (int32_t i : index)
        if (i >= limit) return true;
    return false;
}

const char* setCoords(const FaceSetArgs& a, FaceSetData& d) {
    if (a.coord == nullptr || a.coordCount == 0 || a.coordIndex == nullptr || a.coordIndexCount == 0)
        return "Invalid input parameter";
    if (!copyArray(d.coords, a.coord, 3 * int64_t(a.coordCount))) return "Allocation of array ver failed";
    if (!copyArray(d.coordIndex, a.coordIndex, a.coordIndexCount)) return "Allocation of array veri failed";
    for (int32_t i : d.coordIndex) {
        if (i == kFaceEnd) ++d.faceCount;
        if (i >= a.coordCount) return "Coord index > number of coords";
    }
    return nullptr;
}

const char* setColors(const FaceSetArgs& a, FaceSetData& d) {
    if (a.color == nullptr || a.colorCount == 0) return nullptr;
    d.colorPerVertex = a.colorPerVertex != 0;
    if (d.coords.empty() || !copyArray(d.colors, a.color, 3 * int64_t(a.colorCount)))
        return "Allocation of array col failed";
    if (a.colorIndex != nullptr && a.colorIndexCount != 0) {
        if (!copyArray(d.colorIndex, a.colorIndex, a.colorIndexCount)) return "Allocation of array coli failed";
        if (d.colorPerVertex && a.colorIndexCount != a.coordIndexCount)
            return "NO. of color indexes <> NO. of coord. indexes";
        if (!d.colorPerVertex && a.colorIndexCount != d.faceCount) return "NO. of colors <> NO. of faces";
        if (anyAtOrAbove(d.colorIndex, a.colorCount)) return "Color index > NO. of colors";
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
    if (a.normalIndex != nullptr && a.normalIndexCount != 0) {
        if (!copyArray(d.normalIndex, a.normalIndex, a.normalIndexCount)) return "Allocation of array nori failed";
        if (d.normalPerVertex && a.normalIndexCount != a.coordIndexCount)
            return "NO. of normal indexes <> NO. of coord. indexes";
        if (!d.normalPerVertex && a.normalIndexCount != d.faceCount) return "NO. of normals <> NO. of faces";
        if (anyAtOrAbove(d.normalIndex, a.normalCount)) return "Normal index > number of normals";
    } else if (!d.normalPerVertex && a.normalCount != d.faceCount) {
        return "Number of normals <> number of faces";
    } else if (d.normalPerVertex && a.normalCount < a.coordCount) {
        return "Number of normals <> number of vertices";
    }
    return nullptr;
}

}  // namespace

void FaceSetData::clear() {
    release(coords);
    release(coordIndex);
    faceCount = 0;
    colorPerVertex = false;
    release(colors);
    release(colorIndex);
    normalPerVertex = false;
    release(normals);
    release(normalIndex);
}

FaceSetView FaceSetData::view() const {
    FaceSetView v;
    v.mesh = {coords.data(), int32_t(coords.size() / 3), coordIndex.data(), int32_t(coordIndex.size())};
    v.faceCount = faceCount;
    v.colorPerVertex = colorPerVertex;
    v.colors = colors.empty() ? nullptr : colors.data();
    v.colorCount = int32_t(colors.size() / 3);
    v.colorIndex = colorIndex.empty() ? nullptr : colorIndex.data();
    v.colorIndexCount = int32_t(colorIndex.size());
    v.normalPerVertex = normalPerVertex;
    v.normals = normals.empty() ? nullptr : normals.data();
    v.normalCount = int32_t(normals.size() / 3);
    v.normalIndex = normalIndex.empty() ? nullptr : normalIndex.data();
    v.normalIndexCount = int32_t(normalIndex.size());
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
