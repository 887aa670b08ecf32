// cBox3D: an axis-aligned box given by two opposite corners, faced outwards or inwards.
#pragma once

#include "tsobj3d/cnode.h"

class cBox3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1003;

    cBox3D() : cNode(kClassCode) {}
    // Takes the smaller and larger value per axis and computes the eight corners once.
    void set(float x1, float y1, float z1, float x2, float y2, float z2, int orientation);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float corners[8][3] = {};
    int32_t orientation = 0;  // GLU_OUTSIDE, or anything else for inward faces
};
