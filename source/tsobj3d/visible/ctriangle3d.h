// cTriangle3D: one flat triangle; drawing it switches back-face culling on.
#pragma once

#include "tsobj3d/cnode.h"

class cTriangle3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1017;

    cTriangle3D() : cNode(kClassCode) {}
    void set(float x1, float y1, float z1, float x2, float y2, float z2, float x3, float y3,
             float z3);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float p1[3] = {};
    float p2[3] = {};
    float p3[3] = {};
};
