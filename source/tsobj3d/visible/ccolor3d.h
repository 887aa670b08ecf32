// cColor3D: sets the current colour for everything drawn after it.
#pragma once

#include "tsobj3d/cnode.h"

class cColor3D : public cNode {
public:
    static constexpr int32_t kClassCode = 2001;

    cColor3D() : cNode(kClassCode) {}
    void set(float red, float green, float blue);
    // rgb: three floats, read without a pointer test.
    void set(const float* rgb) { set(rgb[0], rgb[1], rgb[2]); }
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float r = 0, g = 0, b = 0;
};
