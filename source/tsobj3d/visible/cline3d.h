// cLine3D: one line segment.
#pragma once

#include "tsobj3d/cnode.h"

class cLine3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1009;

    cLine3D() : cNode(kClassCode) {}
    void set(float x1, float y1, float z1, float x2, float y2, float z2);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float p1[3] = {};
    float p2[3] = {};
};
