// cPointList2D: what the polyline, Bezier and polygon nodes share: their own copy of
// the caller's points, made relative when the scene asks for it.
#pragma once

#include <memory>

#include "cobj_2d/node2d.h"

struct tagPOINT;

namespace ts {
// One point in window pixels, laid out as the Windows POINT.
struct Point2D {
    int32_t x;
    int32_t y;
};
}  // namespace ts

class cPointList2D : public cNode {
public:
    void hook() override {}

    std::unique_ptr<ts::Point2D[]> points;  // owned copy
    int32_t count = 0;

protected:
    explicit cPointList2D(int32_t classCode) : cNode(classCode) {}
    // Frees the old copy and copies count points, each plus the relative offset. When
    // count is negative or the copy cannot be allocated, the library's error box shows
    // "Error in <className>: Allocation failed" and the node is left without points.
    void copyPoints(ts::DrawContext* current, const ts::Point2D* given, int givenCount, const char* className);
    // The device context of a draw, or null when there is nothing to draw.
    HDC__* drawTarget(ts::DrawContext& context) const;

    // One GDI curve call over the points: its plain form, or with fromCurrent its form
    // that starts at the pen, after which currentPos2D is the last point.
    using CurveCall = int (*)(HDC__* dc, const ts::Point2D* points, int count);
    void drawCurve(ts::DrawContext& context, int fromCurrent, CurveCall plain, CurveCall fromPen) const;
};

namespace ts {
// The points as GDI takes them.
const tagPOINT* gdiPoints(const Point2D* points);
}  // namespace ts
