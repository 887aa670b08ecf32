// cRotate3D: turns everything drawn after it, a little further on every drawing when
// it has an increment.
#pragma once

#include "tsobj3d/cnode.h"

class cRotate3D : public cNode {
public:
    static constexpr int32_t kClassCode = 2007;

    cRotate3D() : cNode(kClassCode) {}
    void set(float angleDegrees, float ax, float ay, float az, float incrementDegrees);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float angle = 0;      // degrees; grows by increment on every drawing, no wrap-around
    float x = 0, y = 0, z = 0;
    float increment = 0;  // degrees
};
