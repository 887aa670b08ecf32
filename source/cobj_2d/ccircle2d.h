// cCircle2D: an arc of a circle between two angles (snCircle2D).
#pragma once

#include "cobj_2d/node2d.h"

class cCircle2D : public cNode {
public:
    static constexpr int32_t kClassCode = 3003;

    cCircle2D() : cNode(kClassCode) {}
    // Centre (x, y) and radius in pixels; angles in degrees (see circle_arc.h).
    void set(ts::DrawContext* current, int x, int y, int radius, float startAngle, float sweepAngle);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t x = 0, y = 0, radius = 0;
    float startAngle = 0.0f, sweepAngle = 0.0f;
};
