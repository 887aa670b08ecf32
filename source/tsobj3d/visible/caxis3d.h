// cAxis3D: the three coordinate axes in red, green and blue, each with its letter and
// an arrow cone at both ends.
#pragma once

#include "tsobj3d/cnode.h"
#include "tsobj3d/visible/quadric.h"

class cAxis3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1001;

    cAxis3D() : cNode(kClassCode), quadric(ts::newQuadric()), capQuadric(ts::newQuadric()) {}
    // The axis half-lengths along x, y and z, the cone length, the cone's base width
    // and the letter height.
    void set(float xLength, float yLength, float zLength, float coneLength, float coneSize,
             float letterSize);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    ts::Quadric quadric;
    ts::Quadric capQuadric;
    float params[6] = {};

private:
    void drawCones();
};
