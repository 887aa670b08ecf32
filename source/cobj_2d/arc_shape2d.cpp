// cArcShape2D: the eight coordinates of the arc and pie nodes.
#include "cobj_2d/arc_shape2d.h"

void cArcShape2D::set(ts::DrawContext* current, int left, int top, int right, int bottom, int xStart, int yStart,
                      int xEnd, int yEnd) {
    const ts::Offset2D o = ts::relativeOffset(current);
    const int32_t given[8] = {left, top, right, bottom, xStart, yStart, xEnd, yEnd};
    for (int i = 0; i < 8; ++i) v[i] = ts::offsetBy(given[i], i % 2 == 0 ? o.x : o.y);
    ts::drawWhenSet(*this, current);
}
