// cPopMatrix3D: pops the model-view matrix. An unbalanced pop goes to OpenGL as it is.
#pragma once

#include "tsobj3d/cnode.h"

class cPopMatrix3D : public cNode {
public:
    static constexpr int32_t kClassCode = 2008;

    cPopMatrix3D() : cNode(kClassCode) {}
    void set() {}
    void draw(ts::DrawContext& context) override;
    void hook() override {}
};
