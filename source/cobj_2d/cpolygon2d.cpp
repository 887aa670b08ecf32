// cPolygon2D: parameters and drawing.
#include "cobj_2d/cpolygon2d.h"

#include <windows.h>

void cPolygon2D::set(ts::DrawContext* current, const ts::Point2D* given, int givenCount, int newFillMode) {
    copyPoints(current, given, givenCount, "cPolygon2D");
    fillMode = newFillMode;
    ts::drawWhenSet(*this, current);
}

void cPolygon2D::draw(ts::DrawContext& context) {
    const HDC dc = drawTarget(context);
    if (dc == nullptr) return;
    SetPolyFillMode(dc, fillMode);
    Polygon(dc, ts::gdiPoints(points.get()), count);
}
