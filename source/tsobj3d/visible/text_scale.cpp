// Outline text fitted to a width and height in scene units.
#include "tsobj3d/visible/text_scale.h"

namespace ts {

TextScale outlineTextScale(const GlyphMetrics* glyphs, const char* text, size_t length, float width, float height) {
    float totalWidth = 0.0f;
    float maxHeight = 0.0f;
    for (size_t i = 0; i < length; ++i) {
        const GlyphMetrics& g = glyphs[static_cast<unsigned char>(text[i])];
        totalWidth += g.cellIncX;
        if (g.blackBoxY > maxHeight) maxHeight = g.blackBoxY;
    }
    TextScale scale;
    if (width != 0.0f && totalWidth != 0.0f) scale.x = width / totalWidth;
    scale.y = scale.x;
    if (height != 0.0f && maxHeight != 0.0f) scale.y = height / maxHeight;
    return scale;
}

}  // namespace ts
