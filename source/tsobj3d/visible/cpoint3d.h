// cPoint3D: one point, optionally with a colour that stays current after it.
#pragma once

#include "tsobj3d/cnode.h"

class cPoint3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1012;

    cPoint3D() : cNode(kClassCode) {}
    // color: three floats r, g, b, or null for none; read only when not null.
    void set(float px, float py, float pz, const float* color);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float x = 0, y = 0, z = 0;
    float r = 0, g = 0, b = 0;
    int32_t hasColor = 0;
};
