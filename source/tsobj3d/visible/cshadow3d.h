// cShadow3D: a node that draws nothing. No exported call creates it.
#pragma once

#include "tsobj3d/cnode.h"

class cShadow3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1014;

    cShadow3D() : cNode(kClassCode) {}
    void set() {}
    void draw(ts::DrawContext&) override {}
    void hook() override {}
};
