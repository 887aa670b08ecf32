// cPixel2D: one pixel in a colour of its own (snPixel2D).
#pragma once

#include "cobj_2d/node2d.h"

class cPixel2D : public cNode {
public:
    static constexpr int32_t kClassCode = 3008;

    cPixel2D() : cNode(kClassCode) {}
    // r, g, b in 0..1, kept as a GDI colour.
    void set(ts::DrawContext* current, int x, int y, float r, float g, float b);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t x = 0, y = 0;
    uint32_t color = 0;  // red | green << 8 | blue << 16
};
