// cLine2D: drawing.
#include "cobj_2d/cline2d.h"

#include <windows.h>

// A line does not move the pen: it goes back to currentPos2D afterwards.
void cLine2D::draw(ts::DrawContext& context) {
    const ts::State2D& state = context.state2D();
    MoveToEx(state.dc, x1, y1, nullptr);
    LineTo(state.dc, x2, y2);
    MoveToEx(state.dc, state.currentPos2D[0], state.currentPos2D[1], nullptr);
}
