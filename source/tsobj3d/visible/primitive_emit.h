// The vertex and normal sequence that a primitive node emits for each OpenGL mode.
#pragma once

#include <cstdint>

#include "tsobj3d/geometry_sink.h"

namespace ts {

// Emits glBegin(mode), the mode's vertices with their flat face normals, and glEnd
// for the count x, y, z triples at points. Point and line lists and unknown modes emit
// nothing between begin and end; line loops and strips (and the two draw-mode values
// 100010 and 100011, which OpenGL rejects) emit every vertex without normals. Faces
// that would need points beyond the array are left out.
void emitPrimitive(uint32_t mode, const float* points, int32_t count, GeometrySink& sink);

}  // namespace ts
