// cPrimitive3D: a copied array of points drawn in one OpenGL primitive mode with flat
// face normals.
#pragma once

#include <memory>

#include "tsobj3d/cnode.h"

class cPrimitive3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1013;

    cPrimitive3D() : cNode(kClassCode) {}
    // Frees the old array first, then copies count x, y, z triples from vects. When
    // vects is null, count is negative or the copy cannot be allocated, count and mode
    // become 0 and nothing is drawn.
    void set(int mode, const float* vects, int count);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    std::unique_ptr<float[]> vertices;
    int32_t count = 0;
    uint32_t mode = 0;
};
