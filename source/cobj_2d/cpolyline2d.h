// cPolyLine2D: a polyline through the caller's points, from the first point or on from the pen
// (snPolyLine2D).
#pragma once

#include "cobj_2d/point_list2d.h"

class cPolyLine2D : public cPointList2D {
public:
    static constexpr int32_t kClassCode = 3011;

    cPolyLine2D() : cPointList2D(kClassCode) {}
    // With fromCurrent the curve starts at the pen and the pen ends on the last point.
    void set(ts::DrawContext* current, const ts::Point2D* points, int count, int fromCurrent);
    void draw(ts::DrawContext& context) override;

    int32_t fromCurrent = 0;
};
