// cRectangle2D: a rectangle that includes both of its corners (snRectangle2D).
#pragma once

#include "cobj_2d/two_points2d.h"

class cRectangle2D : public cTwoPoints2D {
public:
    static constexpr int32_t kClassCode = 3006;

    cRectangle2D() : cTwoPoints2D(kClassCode) {}
    void draw(ts::DrawContext& context) override;
};
