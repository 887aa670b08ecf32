// cTextBlock2D: text laid out in a rectangle by DrawText's format flags, in a colour of
// its own (snTextBlock2D).
#pragma once

#include <memory>

#include "cobj_2d/node2d.h"

class cTextBlock2D : public cNode {
public:
    static constexpr int32_t kClassCode = 3013;

    cTextBlock2D() : cNode(kClassCode) {}
    // Copies text; format holds DrawText's DT_* flags; r, g, b in 0..1.
    void set(ts::DrawContext* current, int left, int top, int right, int bottom, const char* text,
             unsigned format, float r, float g, float b);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t left = 0, top = 0, right = 0, bottom = 0;
    std::unique_ptr<char[]> text;  // owned copy, null when the copy failed
    uint32_t format = 0;
    uint32_t color = 0;
};
