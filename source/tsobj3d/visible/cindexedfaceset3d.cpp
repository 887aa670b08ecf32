// cIndexedFaceSet3D: parameters through the mesh core, drawing through the node's own
// display list.
#include "tsobj3d/visible/cindexedfaceset3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "guard/guard.h"
#include "tsobj3d/mesh/adjacency_dump.h"
#include "tsobj3d/mesh/face_set_emit.h"
#include "tsobj3d/visible/mesh_list.h"

cIndexedFaceSet3D::~cIndexedFaceSet3D() { ts::deleteMeshList(listName, compiledFor); }

void cIndexedFaceSet3D::set(const ts::mesh::FaceSetArgs& args, float creaseAngleDegrees, int32_t solidFlag) {
    ts::setMeshNode(*this, listName, compiledFor, "Error in IndexedFaceSet:\n", [&] {
        clear();
        solid = solidFlag;
        creaseAngle = creaseAngleDegrees;
        const GLuint IndexedFaceSetList = listName;
        TS_ASSERT(!glIsList(IndexedFaceSetList), "tsobj3d\\visible\\cindexedfaceset3d", __LINE__);
        return ts::mesh::setFaceSet(args, *this);
    });
}

void cIndexedFaceSet3D::draw(ts::DrawContext& context) {
    auto emit = [this](bool smooth, ts::mesh::MeshSink& sink) {
        const ts::mesh::FaceSetView set = view();
        if (smooth && set.normals == nullptr) ts::mesh::dumpAdjacencyIfOn(set.mesh);
        ts::mesh::emitFaceSet(set, smooth, creaseAngle, sink);
    };
    ts::MeshSourceOf<decltype(emit)> source(emit);
    ts::drawMeshList(context, {listName, solid != 0, true}, compiledFor, source);
}
