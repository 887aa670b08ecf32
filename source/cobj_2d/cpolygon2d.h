// cPolygon2D: a closed polygon through the caller's points, outlined with the pen and
// filled with the brush (snPolygon2D).
#pragma once

#include "cobj_2d/point_list2d.h"

class cPolygon2D : public cPointList2D {
public:
    static constexpr int32_t kClassCode = 3010;

    cPolygon2D() : cPointList2D(kClassCode) {}
    // fillMode: ALTERNATE (1) or WINDING (2), as SetPolyFillMode takes it.
    void set(ts::DrawContext* current, const ts::Point2D* points, int count, int fillMode);
    void draw(ts::DrawContext& context) override;

    int32_t fillMode = 0;
};
