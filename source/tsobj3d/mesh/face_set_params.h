// The parameters of an indexed face set: the arguments of snIndexedFaceSet checked in
// the library's order and copied, with the message of the first error. The Win32 layer
// shows that message in the "Error in IndexedFaceSet:\n" box.
#pragma once

#include <cstdint>
#include "tsobj3d/mesh/array_copy.h"
#include "tsobj3d/mesh/face_list.h"

namespace ts::mesh {

// The arguments as the export receives them (BOOL switches as 32-bit integers).
struct FaceSetArgs {
    const float* coord = nullptr;
    int32_t coordCount = 0;
    const int32_t* coordIndex = nullptr;
    int32_t coordIndexCount = 0;
    int32_t colorPerVertex = 0;
    const float* color = nullptr;
    int32_t colorCount = 0;
    const int32_t* colorIndex = nullptr;
    int32_t colorIndexCount = 0;
    int32_t normalPerVertex = 0;
    const float* normal = nullptr;
    int32_t normalCount = 0;
    const int32_t* normalIndex = nullptr;
    int32_t normalIndexCount = 0;
};

// Read-only view of a face set's arrays, as the drawing code takes them. Absent
// colours or normals have null arrays and zero counts.
struct FaceSetView {
    MeshView mesh;
    int32_t faceCount = 0;
    bool colorPerVertex = false;
    const float* colors = nullptr;
    int32_t colorCount = 0;
    const int32_t* colorIndex = nullptr;
    int32_t colorIndexCount = 0;
    bool normalPerVertex = false;
    const float* normals = nullptr;
    int32_t normalCount = 0;
    const int32_t* normalIndex = nullptr;
    int32_t normalIndexCount = 0;
};

// The node's own copies of the arrays, in the order and widths of the node record:
// each array is followed by its count (triples for coordinates, colours and normals,
// entries for the index lists) and the switches are 32-bit booleans, so that on Win32
// the record is 15 words, as it has always been.
class FaceSetData {
public:
    Buffer<float> coords;
    int32_t coordCount = 0;
    Buffer<int32_t> coordIndex;
    int32_t coordIndexCount = 0;
    int32_t faceCount = 0;
    int32_t colorPerVertex = 0;
    Buffer<float> colors;
    int32_t colorCount = 0;
    Buffer<int32_t> colorIndex;
    int32_t colorIndexCount = 0;
    int32_t normalPerVertex = 0;
    Buffer<float> normals;
    int32_t normalCount = 0;
    Buffer<int32_t> normalIndex;
    int32_t normalIndexCount = 0;

    // Frees every array and zeroes the counts: the node then draws nothing.
    void clear();
    FaceSetView view() const;
};

// Frees data's arrays, then checks and copies the arguments in the library's order:
//  1. "Invalid input parameter": coord, coordCount, coordIndex or coordIndexCount null
//     or 0.
//  2. "Allocation of array ver failed", "Allocation of array veri failed"; then, index
//     by index, faces counted at each -1 and "Coord index > number of coords" for an
//     index >= coordCount (other negative indices pass).
//  3. Only with color and colorCount: "Allocation of array col failed"; with colorIndex
//     and colorIndexCount: "Allocation of array coli failed", then per vertex "NO. of
//     color indexes <> NO. of coord. indexes" unless the counts are equal, per face
//     "NO. of colors <> NO. of faces" unless colorIndexCount is the face count, then
//     "Color index > NO. of colors" for an index >= colorCount. Without an index: per
//     face "Number of colors <> number of faces", per vertex "Number of colors <>
//     number of vertices" unless colorCount equals coordCount.
//  4. The same for normals, with "Allocation of normal array failed", "Allocation of
//     array nori failed", "NO. of normal indexes <> NO. of coord. indexes", "NO. of
//     normals <> NO. of faces", "Normal index > number of normals", "Number of normals
//     <> number of faces" and, per vertex without an index, "Number of normals <>
//     number of vertices" only when normalCount is less than coordCount.
// The first error stops the rest, frees everything and returns its text; nullptr when
// all is well. A negative count is treated as an allocation that fails.
const char* setFaceSet(const FaceSetArgs& args, FaceSetData& data);

}  // namespace ts::mesh
