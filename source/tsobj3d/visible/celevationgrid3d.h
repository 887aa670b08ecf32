// cElevationGrid3D: a height field over a regular grid in the x-z plane, drawn as
// triangles with colours and normals per cell or per point, compiled into a display
// list of its own per shading mode, with crease-angle normals in the smooth mode.
#pragma once

#include "tsobj3d/cnode.h"
#include "tsobj3d/mesh/elevation_grid.h"

// The record: the cNode fields, the grid's fields (GridData), then creaseAngle, solid,
// listName and compiledFor; 72 bytes on Win32.
class cElevationGrid3D : public cNode, public ts::mesh::GridData {
public:
    static constexpr int32_t kClassCode = 1006;

    cElevationGrid3D() : cNode(kClassCode) {}
    // Deletes the node's list in the context current on this thread (see mesh_list.h).
    ~cElevationGrid3D() override;
    // Construction and edit alike, as for the indexed face set; errors show
    // "Error in ElevationGrid:\n" and their text and leave the node empty.
    void set(const ts::mesh::GridArgs& args, float creaseAngleDegrees, int32_t solidFlag);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float creaseAngle = 0;     // degrees
    int32_t solid = 0;
    uint32_t listName = 0;     // ownListName(): the handle on Win32
    int32_t compiledFor = 0;   // the shading mode the list holds, 0 before the first compile
};
