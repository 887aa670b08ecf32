// cDisk3D: a GLU partial disk in the z = 0 plane (angles in degrees, as GLU takes them).
#pragma once

#include "tsobj3d/cnode.h"
#include "tsobj3d/visible/quadric.h"

class cDisk3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1005;

    cDisk3D() : cNode(kClassCode), quadric(ts::newQuadric()) {}
    void set(float innerRadius, float outerRadius, int slices, int loops, float startAngle,
             float sweepAngle, int drawStyle, int normals, int orientation);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    ts::Quadric quadric;
    float innerRadius = 0, outerRadius = 0;
    int32_t slices = 0, loops = 0;
    float startAngle = 0, sweepAngle = 0;
    int32_t drawStyle = 0, normals = 0, orientation = 0;
};
