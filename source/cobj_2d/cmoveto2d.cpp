// cMoveTo2D: parameters and drawing.
#include "cobj_2d/cmoveto2d.h"

#include <windows.h>

void cMoveTo2D::set(ts::DrawContext* current, int newX, int newY) {
    x = newX;
    y = newY;
    ts::drawWhenSet(*this, current);
}

void cMoveTo2D::draw(ts::DrawContext& context) {
    const ts::State2D& state = context.state2D();
    MoveToEx(state.dc, x, y, nullptr);
    state.currentPos2D[0] = x;
    state.currentPos2D[1] = y;
}
