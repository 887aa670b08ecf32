// cLineTo2D: parameters and drawing.
#include "cobj_2d/clineto2d.h"

#include <windows.h>

void cLineTo2D::set(ts::DrawContext* current, int newX, int newY) {
    const ts::Offset2D o = ts::relativeOffset(current);
    x = ts::offsetBy(newX, o.x);
    y = ts::offsetBy(newY, o.y);
    ts::drawWhenSet(*this, current);
}

void cLineTo2D::draw(ts::DrawContext& context) {
    const ts::State2D& state = context.state2D();
    LineTo(state.dc, x, y);
    state.currentPos2D[0] = x;
    state.currentPos2D[1] = y;
}
