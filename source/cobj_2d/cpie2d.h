// cPie2D: a pie wedge outlined with the pen and filled with the brush (snPie2D).
#pragma once

#include "cobj_2d/arc_shape2d.h"

class cPie2D : public cArcShape2D {
public:
    static constexpr int32_t kClassCode = 3007;

    cPie2D() : cArcShape2D(kClassCode) {}
    void draw(ts::DrawContext& context) override;
};
