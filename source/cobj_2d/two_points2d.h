// cTwoPoints2D: what the line and rectangle nodes share: two points in window pixels,
// made relative together when the scene asks for it.
#pragma once

#include "cobj_2d/node2d.h"

class cTwoPoints2D : public cNode {
public:
    void set(ts::DrawContext* current, int x1, int y1, int x2, int y2);
    void hook() override {}

    int32_t x1 = 0, y1 = 0, x2 = 0, y2 = 0;

protected:
    explicit cTwoPoints2D(int32_t classCode) : cNode(classCode) {}
};
