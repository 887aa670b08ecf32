// cIndexedFaceSet3D: a polygon mesh given as coordinates and an index list of faces,
// with colours and normals per face or per vertex, compiled into a display list of its
// own per shading mode, with crease-angle normals in the smooth mode.
#pragma once

#include "tsobj3d/cnode.h"
#include "tsobj3d/mesh/face_set_params.h"

// The record: the cNode fields, the face set's arrays and counts (FaceSetData), then
// solid, creaseAngle, listName and compiledFor; 88 bytes on Win32.
class cIndexedFaceSet3D : public cNode, public ts::mesh::FaceSetData {
public:
    static constexpr int32_t kClassCode = 1008;

    cIndexedFaceSet3D() : cNode(kClassCode) {}
    // Deletes the node's list in the context current on this thread (see mesh_list.h).
    ~cIndexedFaceSet3D() override;
    // Construction and edit alike: frees everything, stores solid, the crease angle and
    // the list name, forces a compile at the next drawing, then checks and copies the
    // arrays; the first error shows "Error in IndexedFaceSet:\n" and its text in the
    // error box and leaves the node empty.
    void set(const ts::mesh::FaceSetArgs& args, float creaseAngleDegrees, int32_t solidFlag);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t solid = 0;
    float creaseAngle = 0;     // degrees
    uint32_t listName = 0;     // ownListName(): the handle on Win32
    int32_t compiledFor = 0;   // the shading mode the list holds, 0 before the first compile
};
