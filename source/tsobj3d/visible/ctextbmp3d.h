// cTextBMP3D: a string drawn with a bitmap font's display lists at the origin of the
// current model coordinates (snTextBMP).
#pragma once

#include <memory>

#include "tsobj3d/cnode.h"

class cTextBMP3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1018;

    cTextBMP3D() : cNode(kClassCode) {}
    // Copies text; listBase is a base returned by smCreateFontBMP (0 draws nothing).
    void set(const char* text, uint32_t listBase);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    std::unique_ptr<char[]> text;  // owned copy
    uint32_t listBase = 0;
};
