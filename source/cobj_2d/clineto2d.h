// cLineTo2D: a line from the pen to a point, which becomes the pen position
// (snLineTo2D).
#pragma once

#include "cobj_2d/node2d.h"

class cLineTo2D : public cNode {
public:
    static constexpr int32_t kClassCode = 3004;

    cLineTo2D() : cNode(kClassCode) {}
    void set(ts::DrawContext* current, int x, int y);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t x = 0, y = 0;
};
