// cArcShape2D: what the arc and pie nodes share: the eight integers of a GDI arc call
// (bounding box, start point, end point), all of them window coordinates.
#pragma once

#include "cobj_2d/node2d.h"

class cArcShape2D : public cNode {
public:
    // left, top, right, bottom, xStart, yStart, xEnd, yEnd; the relative offset goes to
    // every x and every y.
    void set(ts::DrawContext* current, int left, int top, int right, int bottom, int xStart, int yStart,
             int xEnd, int yEnd);
    void hook() override {}

    int32_t v[8] = {};

protected:
    explicit cArcShape2D(int32_t classCode) : cNode(classCode) {}
};
