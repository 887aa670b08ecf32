// cPixel2D: parameters and drawing.
#include "cobj_2d/cpixel2d.h"

#include <windows.h>

#include "math/gdi_color.h"

void cPixel2D::set(ts::DrawContext* current, int newX, int newY, float r, float g, float b) {
    const ts::Offset2D o = ts::relativeOffset(current);
    x = ts::offsetBy(newX, o.x);
    y = ts::offsetBy(newY, o.y);
    color = ts::gdiColor(r, g, b);
    ts::drawWhenSet(*this, current);
}

void cPixel2D::draw(ts::DrawContext& context) { SetPixel(context.state2D().dc, x, y, color); }
