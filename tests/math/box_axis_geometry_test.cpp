// Box corners and faces, and the layout of the coordinate axis.
#include <cmath>

#include <gtest/gtest.h>

#include "tsobj3d/visible/axis_geometry.h"
#include "tsobj3d/visible/box_geometry.h"
#include "tsobj3d/geometry_sink.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

TEST(BoxCorners, OrdersTheCornersWhateverTheGivenOrder) {
    const float a[3] = {2, -1, 5}, b[3] = {-3, 4, 1};
    float c[8][3];
    ts::boxCorners(a, b, c);
    const float expected[8][3] = {{-3, -1, 5}, {2, -1, 5}, {2, -1, 1}, {-3, -1, 1},
                                  {-3, 4, 5},  {2, 4, 5},  {2, 4, 1},  {-3, 4, 1}};
    for (int i = 0; i < 8; ++i)
        for (int k = 0; k < 3; ++k) EXPECT_EQ(expected[i][k], c[i][k]) << i << "," << k;
}

// Normal of a face from its winding: (v1 - v0) x (v2 - v0).
void windingNormal(const float (*c)[3], const ts::BoxFace& f, float* n) {
    const float* v0 = c[f.corner[0]];
    const float* v1 = c[f.corner[1]];
    const float* v2 = c[f.corner[2]];
    const float a[3] = {v1[0] - v0[0], v1[1] - v0[1], v1[2] - v0[2]};
    const float b[3] = {v2[0] - v0[0], v2[1] - v0[1], v2[2] - v0[2]};
    n[0] = a[1] * b[2] - a[2] * b[1];
    n[1] = a[2] * b[0] - a[0] * b[2];
    n[2] = a[0] * b[1] - a[1] * b[0];
}

void expectFaces(int32_t orientation, const float (*normals)[3], float side) {
    const float lo[3] = {0, 0, 0}, hi[3] = {1, 1, 1};
    float c[8][3];
    ts::boxCorners(lo, hi, c);
    const ts::BoxFace* faces = ts::boxFaces(orientation);
    for (int f = 0; f < 6; ++f) {
        float n[3];
        windingNormal(c, faces[f], n);
        for (int k = 0; k < 3; ++k) {
            EXPECT_EQ(normals[f][k], faces[f].normal[k]) << "face " << f;
            EXPECT_EQ(normals[f][k], n[k]) << "winding of face " << f;
        }
        // All four corners lie on the face's plane, on the side its normal names.
        const int axis = normals[f][0] != 0 ? 0 : normals[f][1] != 0 ? 1 : 2;
        const float plane = (normals[f][axis] * side > 0) ? 1.0f : 0.0f;
        for (int v = 0; v < 4; ++v) EXPECT_EQ(plane, c[faces[f].corner[v]][axis]) << f;
    }
}

TEST(BoxFaces, OutsideOrderAndWindingFaceOutwards) {
    const float normals[6][3] = {{0, -1, 0}, {0, 1, 0}, {0, 0, 1},
                                 {1, 0, 0},  {0, 0, -1}, {-1, 0, 0}};
    expectFaces(ts::kGluOutside, normals, 1.0f);
}

TEST(BoxFaces, AnyOtherOrientationFacesInwards) {
    const float normals[6][3] = {{0, 1, 0},  {0, -1, 0}, {0, 0, -1},
                                 {-1, 0, 0}, {0, 0, 1},  {1, 0, 0}};
    expectFaces(ts::kGluInside, normals, -1.0f);
    expectFaces(12345, normals, -1.0f);
}

const ts::AxisParams kAxis = {{2, 3, 4}, 0.5f, 0.2f, 0.3f};

TEST(AxisSegments, AxesRunThroughTheOriginAndLettersSitPastTheEnds) {
    ts::AxisSegment s[ts::kAxisSegments];
    ts::axisSegments(kAxis, s);
    const int lineIndex[3] = {0, 3, 7};
    const int colours[ts::kAxisSegments] = {0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2};
    for (int i = 0; i < ts::kAxisSegments; ++i) EXPECT_EQ(colours[i], s[i].axis) << i;
    for (int axis = 0; axis < 3; ++axis) {
        const ts::AxisSegment& line = s[lineIndex[axis]];
        for (int k = 0; k < 3; ++k) {
            EXPECT_EQ(k == axis ? -kAxis.length[axis] : 0.0f, line.from[k]);
            EXPECT_EQ(k == axis ? kAxis.length[axis] : 0.0f, line.to[k]);
        }
    }
    for (int i = 0; i < ts::kAxisSegments; ++i) {
        if (i == 0 || i == 3 || i == 7) continue;
        const int axis = s[i].axis;
        for (const float* p : {s[i].from, s[i].to}) {
            // Within the letter box just past the positive end, in the xy plane.
            EXPECT_GE(p[axis], kAxis.length[axis]) << i;
            EXPECT_LE(p[0], (axis == 0 ? kAxis.length[0] : 0) + 0.1f + 0.21f + 1e-6f) << i;
            EXPECT_LE(p[1], (axis == 1 ? kAxis.length[1] : 0) + 0.1f + 0.3f + 1e-6f) << i;
            EXPECT_GE(p[1], 0.1f - 1e-6f) << i;
            EXPECT_EQ(axis == 2 ? kAxis.length[2] : 0.0f, p[2]) << i;
        }
    }
}

// Rotates +z by angle degrees about the unit axis (Rodrigues).
void turnZ(const ts::AxisCone& c, double* out) {
    const double a = c.angle * kPi / 180, cs = std::cos(a), sn = std::sin(a);
    const double k[3] = {c.turn[0], c.turn[1], c.turn[2]}, z[3] = {0, 0, 1};
    const double cross[3] = {k[1] * z[2] - k[2] * z[1], k[2] * z[0] - k[0] * z[2],
                             k[0] * z[1] - k[1] * z[0]};
    for (int i = 0; i < 3; ++i) out[i] = z[i] * cs + cross[i] * sn + k[i] * k[2] * (1 - cs);
}

TEST(AxisCones, PointOutwardsWithTheirTipsOnTheEnds) {
    ts::AxisCone c[ts::kAxisCones];
    ts::axisCones(kAxis, c);
    const int axes[6] = {0, 0, 1, 1, 2, 2};
    for (int i = 0; i < ts::kAxisCones; ++i) {
        EXPECT_EQ(axes[i], c[i].axis);
        double d[3];
        turnZ(c[i], d);
        const double sign = (i % 2 == 0) ? 1.0 : -1.0;
        for (int k = 0; k < 3; ++k) EXPECT_NEAR(k == axes[i] ? sign : 0.0, d[k], 1e-9) << i;
        EXPECT_FLOAT_EQ(kAxis.length[axes[i]] - kAxis.coneLength, c[i].offset);
    }
    EXPECT_EQ(0.0f, c[4].angle);
    EXPECT_EQ(180.0f, c[5].angle);
    EXPECT_EQ(90.0f, c[0].angle);
    EXPECT_EQ(270.0f, c[1].angle);
    EXPECT_EQ(270.0f, c[2].angle);
    EXPECT_EQ(90.0f, c[3].angle);
}

}  // namespace
