// cCylinder3D: a GLU cylinder along +z from z = 0, with optional caps at both ends.
#pragma once

#include "tsobj3d/cnode.h"
#include "tsobj3d/visible/quadric.h"

class cCylinder3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1004;

    cCylinder3D() : cNode(kClassCode), quadric(ts::newQuadric()) {}
    // Deletes the cap quadrics it had and creates those now asked for.
    void set(float height, float baseRadius, float topRadius, int bottomCap, int topCap,
             int slices, int stacks, int drawStyle, int normals, int orientation);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    ts::Quadric quadric;
    ts::Quadric topCap;     // null without a top cap
    ts::Quadric bottomCap;  // null without a bottom cap
    float height = 0, baseRadius = 0, topRadius = 0;
    int32_t slices = 0, stacks = 0;
    int32_t drawStyle = 0, normals = 0, orientation = 0;

private:
    void drawCaps();
};
