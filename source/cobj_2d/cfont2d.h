// cFont2D: selects the caller's font into the scene's device context (snFont2D).
#pragma once

#include "cobj_2d/select_object2d.h"

class cFont2D : public cSelectObject2D {
public:
    static constexpr int32_t kClassCode = 4004;

    cFont2D() : cSelectObject2D(kClassCode) {}
    void set(ts::DrawContext* current, HGDIOBJ font) { setObject(current, font, &ts::State2D::font); }
};
