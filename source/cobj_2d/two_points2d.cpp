// cTwoPoints2D: the two points of the line and rectangle nodes.
#include "cobj_2d/two_points2d.h"

void cTwoPoints2D::set(ts::DrawContext* current, int newX1, int newY1, int newX2, int newY2) {
    const ts::Offset2D o = ts::relativeOffset(current);
    x1 = ts::offsetBy(newX1, o.x);
    y1 = ts::offsetBy(newY1, o.y);
    x2 = ts::offsetBy(newX2, o.x);
    y2 = ts::offsetBy(newY2, o.y);
    ts::drawWhenSet(*this, current);
}
