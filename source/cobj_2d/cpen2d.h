// cPen2D: selects the caller's pen into the scene's device context (snPen2D).
#pragma once

#include "cobj_2d/select_object2d.h"

class cPen2D : public cSelectObject2D {
public:
    static constexpr int32_t kClassCode = 4007;

    cPen2D() : cSelectObject2D(kClassCode) {}
    void set(ts::DrawContext* current, HGDIOBJ pen) { setObject(current, pen, &ts::State2D::pen); }
};
