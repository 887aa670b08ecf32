// cCircle2D: parameters and drawing.
#include "cobj_2d/ccircle2d.h"

#include <windows.h>

#include "cobj_2d/circle_arc.h"

void cCircle2D::set(ts::DrawContext* current, int newX, int newY, int newRadius, float newStart, float newSweep) {
    const ts::Offset2D o = ts::relativeOffset(current);
    x = ts::offsetBy(newX, o.x);
    y = ts::offsetBy(newY, o.y);
    radius = newRadius;
    startAngle = newStart;
    sweepAngle = newSweep;
    ts::drawWhenSet(*this, current);
}

void cCircle2D::draw(ts::DrawContext& context) {
    const ts::ArcCall a = ts::circleArc(x, y, radius, startAngle, sweepAngle);
    Arc(context.state2D().dc, a.left, a.top, a.right, a.bottom, a.xStart, a.yStart, a.xEnd, a.yEnd);
}
