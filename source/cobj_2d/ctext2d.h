// cText2D: a line of text at a point, in a colour of its own, with the font and
// background of the scene's device context (snText2D).
#pragma once

#include <memory>

#include "cobj_2d/node2d.h"

class cText2D : public cNode {
public:
    static constexpr int32_t kClassCode = 3012;

    cText2D() : cNode(kClassCode) {}
    // Copies text; r, g, b in 0..1 are kept as a GDI colour.
    void set(ts::DrawContext* current, int x, int y, const char* text, float r, float g, float b);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t x = 0, y = 0;
    std::unique_ptr<char[]> text;  // owned copy, null when the copy failed
    uint32_t color = 0;
};
