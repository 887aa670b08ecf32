// cTextBlock2D: parameters and drawing.
#include "cobj_2d/ctextblock2d.h"

#include <windows.h>

#include <cstring>

#include "math/gdi_color.h"
#include "tsobj3d/text_copy.h"

void cTextBlock2D::set(ts::DrawContext* current, int newLeft, int newTop, int newRight, int newBottom,
                       const char* newText, unsigned newFormat, float r, float g, float b) {
    const ts::Offset2D o = ts::relativeOffset(current);
    left = ts::offsetBy(newLeft, o.x);
    top = ts::offsetBy(newTop, o.y);
    right = ts::offsetBy(newRight, o.x);
    bottom = ts::offsetBy(newBottom, o.y);
    text = ts::copyText(newText);
    // DT_MODIFYSTRING would let DrawText write up to four characters past the copy.
    format = newFormat & ~static_cast<uint32_t>(DT_MODIFYSTRING);
    color = ts::gdiColor(r, g, b);
    ts::drawWhenSet(*this, current);
}

void cTextBlock2D::draw(ts::DrawContext& context) {
    if (!text) return;
    const HDC dc = context.state2D().dc;
    // DT_CALCRECT writes the rectangle back: a copy keeps the node's own.
    RECT rect = {left, top, right, bottom};
    SetTextColor(dc, color);
    DrawTextA(dc, text.get(), static_cast<int>(std::strlen(text.get())), &rect, format);
}
