// cBitmap3D: a 24-bit bitmap of the caller's drawn into the 3D view at the origin of
// the current model coordinates (snBitmap).
#pragma once

#include "tsobj3d/cnode.h"

struct tagBITMAPINFO;

class cBitmap3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1002;

    cBitmap3D() : cNode(kClassCode) {}
    // Keeps pointers into the caller's block hDIB (which must stay allocated and
    // unmoved while the node exists; the node never frees it), the zoom, the unused
    // further value and glDrawPixels' format and type. Asserts "hDIB!=NULL" and a
    // 24-bit bitmap.
    void set(void* hDIB, float zoom, int32_t further, uint32_t format, uint32_t type);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    const tagBITMAPINFO* info = nullptr;  // the bitmap's header
    const void* bits = nullptr;           // its first pixel row (the bottom one)
    float zoom = 1.0f;
    int32_t further = 0;                  // accepted and not used
    uint32_t format = 0;
    uint32_t type = 0;
};
