// cBkMod2D: sets the background mode of the scene's device context (snBackMode2D).
#pragma once

#include "cobj_2d/node2d.h"

class cBkMod2D : public cNode {
public:
    static constexpr int32_t kClassCode = 4002;

    cBkMod2D() : cNode(kClassCode) {}
    // A GDI background mode: OPAQUE or TRANSPARENT.
    void set(ts::DrawContext* current, int mode);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t mode = 0;
};
