// cTranslate3D: moves everything drawn after it by x, y, z.
#pragma once

#include "tsobj3d/visible/cvector3d.h"

class cTranslate3D : public cVector3D {
public:
    static constexpr int32_t kClassCode = 2011;

    cTranslate3D() : cVector3D(kClassCode) {}
    void draw(ts::DrawContext& context) override;
};
