// cBkCol2D: parameters and drawing.
#include "cobj_2d/cbkcol2d.h"

#include <windows.h>

#include "math/gdi_color.h"

void cBkCol2D::set(ts::DrawContext* current, float r, float g, float b) {
    color[0] = r;
    color[1] = g;
    color[2] = b;
    const ts::State2D state = ts::currentState(current);
    if (state.backColor != nullptr) {
        for (int i = 0; i < 3; ++i) state.backColor[i] = color[i];
    }
    ts::drawWhenSet(*this, current);
}

void cBkCol2D::draw(ts::DrawContext& context) {
    SetBkColor(context.state2D().dc, ts::gdiColor(color[0], color[1], color[2]));
}
