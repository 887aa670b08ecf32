// cMoveTo2D: moves the pen of the scene's device context and its currentPos2D
// (snMoveTo2D).
#pragma once

#include "cobj_2d/node2d.h"

class cMoveTo2D : public cNode {
public:
    static constexpr int32_t kClassCode = 4006;

    cMoveTo2D() : cNode(kClassCode) {}
    // Window pixels; always absolute (the relative mode is for the drawing nodes).
    void set(ts::DrawContext* current, int x, int y);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t x = 0;
    int32_t y = 0;
};
