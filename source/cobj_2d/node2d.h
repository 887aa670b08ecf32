// What every 2D node shares when it is set: the current scene's 2D state, reached
// through a drawing context over that scene (null while no scene is current), the
// offset of relative coordinates, and the drawing at once.
#pragma once

#include <cstdint>

#include "tsobj3d/cnode.h"
#include "tsobj3d/draw_context.h"

namespace ts {

struct Offset2D {
    int32_t x = 0;
    int32_t y = 0;
};

// What a drawing node adds to each coordinate it is given: the current scene's
// currentPos2D when its relToPos2D is set, nothing otherwise. Taken once, when the node
// is set, never at drawing.
Offset2D relativeOffset(DrawContext* current);

// Draws node at once on the current scene's window when its initDraw2D is set, so that
// the change shows before the next frame and chained relative nodes (line-to,
// polyline-to) see the position it leaves.
void drawWhenSet(cNode& node, DrawContext* current);

// The scene's 2D state as a state node records into it; state.dc is null without a scene.
State2D currentState(DrawContext* current);

// a + b as 32-bit window coordinates (wrapping, never undefined).
inline int32_t offsetBy(int32_t a, int32_t b) { return int32_t(uint32_t(a) + uint32_t(b)); }

}  // namespace ts
