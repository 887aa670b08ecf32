// cPushMatrix3D: pushes the model-view matrix; paired by the caller with a pop node.
#pragma once

#include "tsobj3d/cnode.h"

class cPushMatrix3D : public cNode {
public:
    static constexpr int32_t kClassCode = 2009;

    cPushMatrix3D() : cNode(kClassCode) {}
    void set() {}
    void draw(ts::DrawContext& context) override;
    void hook() override {}
};
