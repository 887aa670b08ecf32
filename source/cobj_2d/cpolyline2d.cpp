// cPolyLine2D: parameters and drawing.
#include "cobj_2d/cpolyline2d.h"

#include <windows.h>

void cPolyLine2D::set(ts::DrawContext* current, const ts::Point2D* given, int givenCount, int newFromCurrent) {
    copyPoints(current, given, givenCount, "cPolyLine2D");
    fromCurrent = newFromCurrent;
    ts::drawWhenSet(*this, current);
}

void cPolyLine2D::draw(ts::DrawContext& context) {
    drawCurve(context, fromCurrent, [](HDC dc, const ts::Point2D* p, int n) { return int(Polyline(dc, ts::gdiPoints(p), n)); },
              [](HDC dc, const ts::Point2D* p, int n) { return int(PolylineTo(dc, ts::gdiPoints(p), DWORD(n))); });
}
