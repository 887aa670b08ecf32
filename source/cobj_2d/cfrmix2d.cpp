// cFrMix2D: parameters and drawing.
#include "cobj_2d/cfrmix2d.h"

#include <windows.h>

void cFrMix2D::set(ts::DrawContext* current, int newRop2) {
    rop2 = newRop2;
    const ts::State2D state = ts::currentState(current);
    if (state.foreMix != nullptr) *state.foreMix = newRop2;
    ts::drawWhenSet(*this, current);
}

void cFrMix2D::draw(ts::DrawContext& context) { SetROP2(context.state2D().dc, rop2); }
