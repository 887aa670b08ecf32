// The attribute groups the text nodes push around their font lists.
#pragma once

namespace ts {

// List, current, point, line, polygon, polygon stipple, pixel mode, depth buffer,
// accumulation buffer, stencil buffer and viewport: the glyph lists may change any of
// them, and the text leaves the scene's state as it found it.
constexpr unsigned kTextAttributes = 0x20F3F;

}  // namespace ts
