// cScale3D: scales everything drawn after it by x, y, z.
#pragma once

#include "tsobj3d/visible/cvector3d.h"

class cScale3D : public cVector3D {
public:
    static constexpr int32_t kClassCode = 2010;

    cScale3D() : cVector3D(kClassCode) {}
    void draw(ts::DrawContext& context) override;
};
