// Fuzz target of the crease-angle smoothing: any mesh, however degenerate, gets finite
// normals of unit length or zero, and its faces emit only its own coordinates.
//
// Input: see mesh_inputs.h.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "checking_sink.h"
#include "mesh_inputs.h"
#include "tsobj3d/mesh/adjacency_dump.h"
#include "tsobj3d/mesh/crease_normals.h"
#include "tsobj3d/mesh/face_normals.h"
#include "tsobj3d/mesh/face_set_emit.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    meshinput::SmoothingInput in;
    if (!meshinput::readSmoothing(data, size, in)) return 0;
    const float angle = in.angle;
    const std::vector<float>& coords = in.coords;
    const std::vector<int32_t>& index = in.index;
    const int32_t coordCount = int32_t(coords.size() / 3);
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
