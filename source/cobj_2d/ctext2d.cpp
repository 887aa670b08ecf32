// cText2D: parameters and drawing.
#include "cobj_2d/ctext2d.h"

#include <windows.h>

#include <cstring>

#include "math/gdi_color.h"
#include "tsobj3d/text_copy.h"

void cText2D::set(ts::DrawContext* current, int newX, int newY, const char* newText, float r, float g, float b) {
    const ts::Offset2D o = ts::relativeOffset(current);
    x = ts::offsetBy(newX, o.x);
    y = ts::offsetBy(newY, o.y);
    text = ts::copyText(newText);
    color = ts::gdiColor(r, g, b);
    ts::drawWhenSet(*this, current);
}

void cText2D::draw(ts::DrawContext& context) {
    if (!text) return;
    const HDC dc = context.state2D().dc;
    SetTextColor(dc, color);
    TextOutA(dc, x, y, text.get(), static_cast<int>(std::strlen(text.get())));
}
