// cBkMod2D: parameters and drawing.
#include "cobj_2d/cbkmod2d.h"

#include <windows.h>

void cBkMod2D::set(ts::DrawContext* current, int newMode) {
    mode = newMode;
    const ts::State2D state = ts::currentState(current);
    if (state.backMode != nullptr) *state.backMode = newMode;
    ts::drawWhenSet(*this, current);
}

void cBkMod2D::draw(ts::DrawContext& context) { SetBkMode(context.state2D().dc, mode); }
