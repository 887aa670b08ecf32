// The scales with which an outline text node fits its text to a requested size.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ts {

// One glyph's metrics in font units, in the order of the Windows GLYPHMETRICSFLOAT.
struct GlyphMetrics {
    float blackBoxX;
    float blackBoxY;
    float originX;
    float originY;
    float cellIncX;
    float cellIncY;
};

struct TextScale {
    float x = 1.0f;
    float y = 1.0f;
};

// The scales for text (length characters, each indexing glyphs[0..255]):
// x = 1 when width is exactly 0, else width / (sum of the cell increments x);
// y = x when height is exactly 0, else height / (largest black-box height, from 0).
// A text without advance or height (empty, or blanks only) keeps the scale 1 on that
// axis instead of dividing by zero.
TextScale outlineTextScale(const GlyphMetrics* glyphs, const char* text, size_t length, float width, float height);

}  // namespace ts
