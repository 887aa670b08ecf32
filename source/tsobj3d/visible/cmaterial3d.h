// cMaterial3D: sets the material of one face side. No exported call creates it.
#pragma once

#include "tsobj3d/cnode.h"

class cMaterial3D : public cNode {
public:
    static constexpr int32_t kClassCode = 2004;

    // Each colour pointer names four floats, or is null for the default: ambient and
    // diffuse (0, 0, 0, 0), specular (0.5, 0.5, 0.5, 1).
    cMaterial3D(unsigned face, const float* ambient, const float* diffuse,
                const float* specular, int shininess);
    void set(unsigned face, const float* ambient, const float* diffuse, const float* specular,
             int shininess);
    // Sets the three colours; sets the shininess only when it lies in 0 .. 128, and
    // otherwise reports it in an error box, on every drawing.
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    unsigned face = 0;
    float ambient[4] = {};
    float diffuse[4] = {};
    float specular[4] = {};
    int32_t shininess = 0;
};
