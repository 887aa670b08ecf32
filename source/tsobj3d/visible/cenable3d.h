// cEnable3D: turns one switch of the library's current scene on or off when drawn.
#pragma once

#include "tsobj3d/cnode.h"

class cEnable3D : public cNode {
public:
    static constexpr int32_t kClassCode = 2002;

    cEnable3D() : cNode(kClassCode) {}
    // switchNumber 1 to 9 (TS_SWITCH_* in the public header); others are stored and
    // ignored when drawn.
    void set(int switchNumber, int isOn);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    int32_t switchNumber = 0;
    int32_t on = 0;
};
