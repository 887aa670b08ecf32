// cBrush2D: selects the caller's brush into the scene's device context (snBrush2D).
#pragma once

#include "cobj_2d/select_object2d.h"

class cBrush2D : public cSelectObject2D {
public:
    static constexpr int32_t kClassCode = 4003;

    cBrush2D() : cSelectObject2D(kClassCode) {}
    void set(ts::DrawContext* current, HGDIOBJ brush) { setObject(current, brush, &ts::State2D::brush); }
};
