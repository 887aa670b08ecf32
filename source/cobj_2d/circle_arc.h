// The bounding square and end points with which a circle node asks GDI for its arc.
#pragma once

#include <cstdint>

namespace ts {

// The eight integers of a GDI Arc call: bounding box, then start and end point.
struct ArcCall {
    int32_t left, top, right, bottom;
    int32_t xStart, yStart, xEnd, yEnd;
};

// The arc of the circle around (x, y) with the given radius from startAngle over
// sweepAngle (degrees). Angles count from the +x axis, counter-clockwise as the window
// shows them (y grows downwards, so an end point is x + r cos a, y - r sin a); GDI draws
// arcs counter-clockwise, so a positive sweep runs the way the angles grow. Each offset
// r cos a and r sin a is truncated toward zero before it is added to the centre.
ArcCall circleArc(int32_t x, int32_t y, int32_t radius, float startAngle, float sweepAngle);

}  // namespace ts
