// Fuzz target of the crease-angle smoothing: any mesh, however degenerate, gets finite
// normals of unit length or zero, and its faces emit only its own coordinates.
//
// Input: byte 0 the crease angle (0 .. 250 times 1.5 degrees; 251 NaN, 252 -30,
// 253 infinity, 254 180, 255 90), byte 1 the coordinate count, byte 2 the coordinate
// form (even: one signed byte per component, divided by 4; odd: little-endian floats),
// the coordinates (zeros where the input runs out), then the index list, one signed
// byte per entry (-1 ends a face).
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <vector>

#include "checking_sink.h"
#include "tsobj3d/mesh/adjacency_dump.h"
#include "tsobj3d/mesh/crease_normals.h"
#include "tsobj3d/mesh/face_normals.h"
#include "tsobj3d/mesh/face_set_emit.h"

namespace {

float angleOf(uint8_t b) {
    switch (b) {
        case 251: return std::numeric_limits<float>::quiet_NaN();
        case 252: return -30.0f;
        case 253: return std::numeric_limits<float>::infinity();
        case 254: return 180.0f;
        case 255: return 90.0f;
        default: return b * 1.5f;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 3) return 0;
    const float angle = angleOf(data[0]);
    const int32_t coordCount = data[1];
    const bool rawFloats = data[2] & 1;
    size_t at = 3;
    std::vector<float> coords(3 * size_t(coordCount), 0.0f);
    for (float& c : coords) {
        if (rawFloats && at + 4 <= size) {
            std::memcpy(&c, data + at, 4);
            at += 4;
        } else if (!rawFloats && at < size) {
            c = int8_t(data[at++]) / 4.0f;
        }
    }
    std::vector<int32_t> index;
    for (; at < size; ++at) index.push_back(int8_t(data[at]));

    const ts::mesh::MeshView mesh{coords.data(), coordCount, index.data(), int32_t(index.size())};
    const int32_t faces = ts::mesh::countFaces(index.data(), int32_t(index.size()));
    std::vector<float> faceNormals(3 * size_t(faces) + 1);
    ts::mesh::faceNormals(mesh, faceNormals.data());
    meshfuzz::checkNormals(faceNormals.data(), faces);
    std::vector<float> normals(coords.size() + 1);
    if (!ts::mesh::creaseNormals(mesh, angle, normals.data())) std::abort();
    meshfuzz::checkNormals(normals.data(), coordCount);

    ts::mesh::FaceSetView set;
    set.mesh = mesh;
    set.faceCount = faces;
    for (bool smooth : {false, true}) {
        meshfuzz::CheckingSink sink(coords.data(), coordCount);
        if (!ts::mesh::emitFaceSet(set, smooth, angle, sink)) std::abort();
    }
    static std::FILE* nowhere = std::fopen("/dev/null", "w");
    if (nowhere != nullptr && index.size() < 2000) ts::mesh::dumpAdjacency(mesh, nowhere);
    return 0;
}
