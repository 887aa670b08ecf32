// cBitmap2D: a device-dependent bitmap of the caller's, drawn as it is or stretched to
// the window (snBitmap2D).
#pragma once

#include "cobj_2d/node2d.h"

struct HBITMAP__;

class cBitmap2D : public cNode {
public:
    static constexpr int32_t kClassCode = 3002;

    cBitmap2D() : cNode(kClassCode) {}
    // At (x, y); stretched to the client width - a and height - b when stretch is set.
    void set(ts::DrawContext* current, HBITMAP__* bitmap, int x, int y, int a, int b, int stretch);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    HBITMAP__* bitmap = nullptr;  // the caller's: the node never deletes it
    int32_t x = 0, y = 0, a = 0, b = 0;
    int32_t stretch = 0;
};
