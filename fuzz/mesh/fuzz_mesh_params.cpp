// Fuzz target of the parameter checks of the indexed face set and the elevation grid:
// any arguments end in a message and an empty node, or in copies that draw only their
// own points in every form.
//
// Input: see mesh_inputs.h.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "checking_sink.h"
#include "mesh_inputs.h"
#include "tsobj3d/mesh/elevation_grid.h"
#include "tsobj3d/mesh/face_set_emit.h"
#include "tsobj3d/mesh/face_set_params.h"

namespace {

void emitAll(const ts::mesh::FaceSetData& data) {
    const ts::mesh::FaceSetView view = data.view();
    if (view.faceCount != ts::mesh::countFaces(view.mesh.coordIndex, view.mesh.coordIndexCount)) std::abort();
    for (bool smooth : {false, true}) {
        meshfuzz::CheckingSink sink(view.mesh.coords, view.mesh.coordCount);
        ts::mesh::emitFaceSet(view, smooth, 45.0f, sink);
    }
}

void faceSet(meshinput::Reader& in) {
    meshinput::FaceSetInput f;
    meshinput::readFaceSet(in, f);
    ts::mesh::FaceSetArgs a;
    a.coord = f.coord;
    a.coordCount = f.counts[0];
    a.coordIndex = f.coordIndexArg;
    a.coordIndexCount = f.counts[1];
    a.colorPerVertex = f.colorPerVertex;
    a.color = f.color;
    a.colorCount = f.counts[2];
    a.colorIndex = f.colorIndexArg;
    a.colorIndexCount = f.counts[3];
    a.normalPerVertex = f.normalPerVertex;
    a.normal = f.normal;
    a.normalCount = f.counts[4];
    a.normalIndex = f.normalIndexArg;
    a.normalIndexCount = f.counts[5];
    ts::mesh::FaceSetData data;
    if (ts::mesh::setFaceSet(a, data) != nullptr) {
        if (data.coords || data.coordIndex || data.colors || data.normals || data.coordCount != 0)
            std::abort();
        return;
    }
    emitAll(data);
}

void grid(meshinput::Reader& in) {
    meshinput::GridInput g;
    meshinput::readGrid(in, g);
    ts::mesh::GridArgs a;
    a.xDimension = g.xDimension;
    a.zDimension = g.zDimension;
    a.xSpacing = g.xSpacing;
    a.zSpacing = g.zSpacing;
    a.height = g.height;
    a.colorPerVertex = g.colorPerVertex;
    a.color = g.color;
    a.normalPerVertex = g.normalPerVertex;
    a.normal = g.normal;
    ts::mesh::GridData data;
    if (ts::mesh::setElevationGrid(a, data) != nullptr) {
        if (data.heights || data.colors || data.normals || data.pointCount != 0) std::abort();
        return;
    }
    for (bool smooth : {false, true}) {
        meshfuzz::CheckingSink sink(nullptr, 0);
        ts::mesh::emitGrid(data, smooth, 45.0f, sink);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1) return 0;
    meshinput::Reader in(data + 1, size - 1);
    if (data[0] & 1) grid(in);
    else faceSet(in);
    return 0;
}
