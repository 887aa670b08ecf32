// cBkCol2D: sets the background colour of the scene's device context (snBackColor2D).
#pragma once

#include "cobj_2d/node2d.h"

class cBkCol2D : public cNode {
public:
    static constexpr int32_t kClassCode = 4001;

    cBkCol2D() : cNode(kClassCode) {}
    // r, g, b in 0..1, converted with the library's wrap-around colour conversion.
    void set(ts::DrawContext* current, float r, float g, float b);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float color[3] = {0.0f, 0.0f, 0.0f};
};
