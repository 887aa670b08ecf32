// cElevationGrid3D: parameters through the mesh core, drawing through the node's own
// display list.
#include "tsobj3d/visible/celevationgrid3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "guard/guard.h"
#include "tsobj3d/visible/mesh_list.h"

cElevationGrid3D::~cElevationGrid3D() { ts::deleteMeshList(listName, compiledFor); }

void cElevationGrid3D::set(const ts::mesh::GridArgs& args, float creaseAngleDegrees, int32_t solidFlag) {
    ts::setMeshNode(*this, listName, compiledFor, "Error in ElevationGrid:\n", [&] {
        clear();
        creaseAngle = creaseAngleDegrees;
        solid = solidFlag;
        const GLuint ElevationGridList = listName;
        TS_ASSERT(!glIsList(ElevationGridList), "tsobj3d\\visible\\celevationgrid3d", __LINE__);
        return ts::mesh::setElevationGrid(args, *this);
    });
}

void cElevationGrid3D::draw(ts::DrawContext& context) {
    auto emit = [this](bool smooth, ts::mesh::MeshSink& sink) {
        triangleCount = int32_t(triangles());
        ts::mesh::emitGrid(*this, smooth, creaseAngle, sink);
    };
    ts::MeshSourceOf<decltype(emit)> source(emit);
    ts::drawMeshList(context, {listName, solid != 0, false}, compiledFor, source);
}
