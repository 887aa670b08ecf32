// Selecting the caller's pen, brush or font into the scene's device context.
#include "cobj_2d/select_object2d.h"

#include <windows.h>

void cSelectObject2D::draw(ts::DrawContext& context) { SelectObject(context.state2D().dc, object); }

void cSelectObject2D::setObject(ts::DrawContext* current, HGDIOBJ newObject, HGDIOBJ* ts::State2D::*slot) {
    object = newObject;
    const ts::State2D state = ts::currentState(current);
    if (state.*slot != nullptr) *(state.*slot) = newObject;
    ts::drawWhenSet(*this, current);
}
