// cLine2D: a line between two points that leaves the pen where it was (snLine2D).
#pragma once

#include "cobj_2d/two_points2d.h"

class cLine2D : public cTwoPoints2D {
public:
    static constexpr int32_t kClassCode = 3005;

    cLine2D() : cTwoPoints2D(kClassCode) {}
    void draw(ts::DrawContext& context) override;
};
