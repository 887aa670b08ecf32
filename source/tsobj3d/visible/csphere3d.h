// cSphere3D: a GLU sphere around the origin.
#pragma once

#include "tsobj3d/cnode.h"
#include "tsobj3d/visible/quadric.h"

class cSphere3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1015;

    cSphere3D() : cNode(kClassCode), quadric(ts::newQuadric()) {}
    void set(float radius, int slices, int stacks, int drawStyle, int normals, int orientation);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    ts::Quadric quadric;
    float radius = 0;
    int32_t slices = 0, stacks = 0;
    int32_t drawStyle = 0, normals = 0, orientation = 0;
};
