// cArc2D: an elliptic arc drawn with the pen (snArc2D).
#pragma once

#include "cobj_2d/arc_shape2d.h"

class cArc2D : public cArcShape2D {
public:
    static constexpr int32_t kClassCode = 3001;

    cArc2D() : cArcShape2D(kClassCode) {}
    void draw(ts::DrawContext& context) override;
};
