// cPointList2D: the point copy of the polyline, Bezier and polygon nodes.
#include "cobj_2d/point_list2d.h"

#include <windows.h>

#include <cstdint>
#include <new>
#include <string>

#include "guard/msgbox.h"

static_assert(sizeof(ts::Point2D) == sizeof(POINT), "points are handed to GDI as they are");

void cPointList2D::copyPoints(ts::DrawContext* current, const ts::Point2D* given, int givenCount,
                              const char* className) {
    points.reset();
    count = 0;
    const ts::Offset2D o = ts::relativeOffset(current);
    // A count whose byte size does not fit the address space cannot be allocated.
    if (givenCount >= 0 && static_cast<uint64_t>(givenCount) <= SIZE_MAX / sizeof(ts::Point2D)) {
        points.reset(new (std::nothrow) ts::Point2D[givenCount > 0 ? givenCount : 1]);
    }
    if (!points) {
        ts::errorBox((std::string("Error in ") + className + ": Allocation failed").c_str());
        return;
    }
    for (int i = 0; i < givenCount; ++i) {
        points[i] = {ts::offsetBy(given[i].x, o.x), ts::offsetBy(given[i].y, o.y)};
    }
    count = givenCount;
}

HDC cPointList2D::drawTarget(ts::DrawContext& context) const {
    return points && count > 0 ? context.state2D().dc : nullptr;
}

void cPointList2D::drawCurve(ts::DrawContext& context, int fromCurrent, CurveCall plain, CurveCall fromPen) const {
    const HDC dc = drawTarget(context);
    if (dc == nullptr) return;
    if (fromCurrent == 0) {
        plain(dc, points.get(), count);
        return;
    }
    fromPen(dc, points.get(), count);
    int* pos = context.state2D().currentPos2D;
    pos[0] = points[count - 1].x;
    pos[1] = points[count - 1].y;
}

namespace ts {
const POINT* gdiPoints(const Point2D* points) { return reinterpret_cast<const POINT*>(points); }
}  // namespace ts
