// cUse3D: draws another node again at its own place in the list.
#pragma once

#include "tsobj3d/cnode.h"

class cUse3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1020;

    explicit cUse3D(cNode* usedNode) : cNode(kClassCode), used(usedNode) {}

    void draw(ts::DrawContext& context) override { used->draw(context); }
    void hook() override {}

    cNode* used;  // not owned: the node stays in its own list
};
