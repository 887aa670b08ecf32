// cFrMix2D: sets the foreground mix mode of the scene's device context (snForeMix2D).
#pragma once

#include "cobj_2d/node2d.h"

class cFrMix2D : public cNode {
public:
    static constexpr int32_t kClassCode = 4005;

    cFrMix2D() : cNode(kClassCode) {}
    // A GDI binary raster operation, R2_BLACK (1) to R2_WHITE (16).
    void set(ts::DrawContext* current, int rop2);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t rop2 = 0;
};
