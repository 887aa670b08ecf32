// cTetragon3D: a quadrilateral drawn as the two triangles p1 p2 p3 and p1 p3 p4.
#pragma once

#include "tsobj3d/cnode.h"

class cTetragon3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1016;

    cTetragon3D() : cNode(kClassCode) {}
    void set(float x1, float y1, float z1, float x2, float y2, float z2, float x3, float y3,
             float z3, float x4, float y4, float z4);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float p[4][3] = {};
};
