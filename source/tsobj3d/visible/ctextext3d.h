// cTextEXT3D: a string drawn with an outline font's display lists, scaled to a width
// and height in scene units (snTextEXT).
#pragma once

#include <memory>

#include "tsobj3d/cnode.h"
#include "tsobj3d/visible/outline_font.h"

class cTextEXT3D : public cNode {
public:
    static constexpr int32_t kClassCode = 1019;

    cTextEXT3D() : cNode(kClassCode) {}
    // Copies text and the font's list base and fits the text: width 0 keeps the font's
    // own width, height 0 keeps the proportions (text_scale.h). A null font leaves a
    // node that draws nothing.
    void set(const char* text, const ts::OutlineFontRecord* font, float width, float height);
    void draw(ts::DrawContext& context) override;
    void hook() override {}

    float scaleX = 1.0f;
    float scaleY = 1.0f;
    std::unique_ptr<char[]> text;  // owned copy
    uint32_t listBase = 0;
    int32_t length = 0;            // characters in text
};
