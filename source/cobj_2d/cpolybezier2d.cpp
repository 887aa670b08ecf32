// cPolyBezier2D: parameters and drawing.
#include "cobj_2d/cpolybezier2d.h"

#include <windows.h>

void cPolyBezier2D::set(ts::DrawContext* current, const ts::Point2D* given, int givenCount, int newFromCurrent) {
    copyPoints(current, given, givenCount, "cPolyBezier2D");
    fromCurrent = newFromCurrent;
    ts::drawWhenSet(*this, current);
}

void cPolyBezier2D::draw(ts::DrawContext& context) {
    drawCurve(context, fromCurrent, [](HDC dc, const ts::Point2D* p, int n) { return int(PolyBezier(dc, ts::gdiPoints(p), DWORD(n))); },
              [](HDC dc, const ts::Point2D* p, int n) { return int(PolyBezierTo(dc, ts::gdiPoints(p), DWORD(n))); });
}
