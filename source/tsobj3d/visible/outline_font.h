// The outline font record that smCreateFontEXT fills and the outline text node reads:
// a list base, the two values the font was made with, and the metrics of the 256 glyphs.
#pragma once

#include <cstdint>

#include "tsobj3d/visible/text_scale.h"

namespace ts {

struct OutlineFontRecord {
    uint32_t listBase;    // first of the font's 256 display lists
    float deviation;      // chordal deviation the outlines were made with
    float extrusion;      // depth of the glyphs along -z
    GlyphMetrics glyphs[256];
};
static_assert(sizeof(OutlineFontRecord) == 6156, "the outline font record is 6156 bytes");

}  // namespace ts
