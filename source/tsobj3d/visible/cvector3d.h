// cVector3D: the common part of the nodes that apply one x, y, z vector to the
// model-view matrix (translate and scale).
#pragma once

#include "tsobj3d/cnode.h"

class cVector3D : public cNode {
public:
    void set(float vx, float vy, float vz) {
        x = vx;
        y = vy;
        z = vz;
    }
    void hook() override {}

    float x = 0, y = 0, z = 0;

protected:
    explicit cVector3D(int32_t classCode) : cNode(classCode) {}
};
