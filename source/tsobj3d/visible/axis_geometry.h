// The layout of the coordinate axis node: the three axis lines with their letters,
// and the placement of the six arrow cones.
#pragma once

namespace ts {

struct AxisParams {
    float length[3];   // half-lengths of the x, y and z axes: each runs from -l to +l
    float coneLength;  // height of each arrow cone; its tip sits on the axis end
    float coneSize;    // width of a cone at its base (the radius is half of it)
    float letterSize;  // height of the letters X, Y and Z
};

struct AxisSegment {
    int axis;  // 0 x (red), 1 y (green), 2 z (blue)
    float from[3];
    float to[3];
};

// Eleven segments in drawing order: per axis, its line and then its letter's strokes.
constexpr int kAxisSegments = 11;
void axisSegments(const AxisParams& p, AxisSegment* out);

struct AxisCone {
    int axis;
    float angle;     // rotation in degrees that turns +z onto the cone's direction,
    float turn[3];   // about this axis; angle 0 means no rotation
    float offset;    // translation along the rotated z to the cone's base
};

// Six cones in drawing order: +x, -x, +y, -y, +z, -z.
constexpr int kAxisCones = 6;
void axisCones(const AxisParams& p, AxisCone* out);

}  // namespace ts
