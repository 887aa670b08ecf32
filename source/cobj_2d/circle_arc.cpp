// End points of a circle's arc from the truncated cosine and sine.
#include "cobj_2d/circle_arc.h"

#include <cmath>

namespace ts {
namespace {

constexpr double kDegreesToRadians = 0.01745329251994;

// r * f truncated toward zero, kept inside the 32-bit range (a huge radius must not
// reach an undefined conversion).
int32_t truncatedOffset(int32_t radius, double f) {
    const double v = std::trunc(double(radius) * f);
    if (!(v > -2147483648.0 && v < 2147483648.0)) return 0;
    return static_cast<int32_t>(v);
}

}  // namespace

ArcCall circleArc(int32_t x, int32_t y, int32_t radius, float startAngle, float sweepAngle) {
    const double a0 = double(startAngle) * kDegreesToRadians;
    const double a1 = (double(startAngle) + double(sweepAngle)) * kDegreesToRadians;
    ArcCall arc;
    // 64-bit sums wrap like the 32-bit arithmetic GDI would see, without overflow.
    arc.left = int32_t(int64_t(x) - radius);
    arc.top = int32_t(int64_t(y) - radius);
    arc.right = int32_t(int64_t(x) + radius);
    arc.bottom = int32_t(int64_t(y) + radius);
    arc.xStart = int32_t(int64_t(x) + truncatedOffset(radius, std::cos(a0)));
    arc.yStart = int32_t(int64_t(y) - truncatedOffset(radius, std::sin(a0)));
    arc.xEnd = int32_t(int64_t(x) + truncatedOffset(radius, std::cos(a1)));
    arc.yEnd = int32_t(int64_t(y) - truncatedOffset(radius, std::sin(a1)));
    return arc;
}

}  // namespace ts
