// Crease-angle normals on meshes whose normals are worked out by hand: a cube, a
// cylinder's side against its caps, a saddle and open fans.
#include "tsobj3d/mesh/crease_normals.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "mesh_shapes.h"
#include "tsobj3d/mesh/face_normals.h"

namespace {

using tst::Shape;

struct Vec {
    double x, y, z;
    Vec operator+(const Vec& o) const { return {x + o.x, y + o.y, z + o.z}; }
    Vec operator*(double s) const { return {x * s, y * s, z * s}; }
    Vec unit() const { return *this * (1.0 / std::sqrt(x * x + y * y + z * z)); }
};

std::vector<float> smoothed(const Shape& s, float degrees) {
    std::vector<float> out(s.coords.size(), -9.0f);
    EXPECT_TRUE(ts::mesh::creaseNormals(s.view(), degrees, out.data()));
    return out;
}

void expectNormal(const std::vector<float>& normals, int v, Vec expected) {
    EXPECT_NEAR(normals[3 * v], expected.x, 1e-5) << "coordinate " << v;
    EXPECT_NEAR(normals[3 * v + 1], expected.y, 1e-5) << "coordinate " << v;
    EXPECT_NEAR(normals[3 * v + 2], expected.z, 1e-5) << "coordinate " << v;
}

TEST(CreaseNormals, TheCosineOfTheCreaseAngle) {
    EXPECT_FLOAT_EQ(ts::mesh::creaseCosine(60.0f), 0.5f);
    EXPECT_FLOAT_EQ(ts::mesh::creaseCosine(180.0f), -1.0f);
    // The constant's right angle is a hair short, so its cosine is just above 0.
    EXPECT_GT(ts::mesh::creaseCosine(90.0f), 0.0f);
}

// At 30 degrees every cube edge is a crease: each corner takes its first face's
// normal, the bottom's for 0 .. 3 and the top's for 4 .. 7.
TEST(CreaseNormals, CubeAt30DegreesGivesEachCornerItsFirstFace) {
    const std::vector<float> n = smoothed(tst::unitCube(), 30.0f);
    for (int v = 0; v < 4; ++v) expectNormal(n, v, {0, 0, -1});
    for (int v = 4; v < 8; ++v) expectNormal(n, v, {0, 0, 1});
}

TEST(CreaseNormals, CubeFacesInAnotherOrderGiveOtherFirstFaces) {
    Shape cube = tst::unitCube();
    cube.index.clear();
    cube.add({1, 3, 7, 5});  // right first
    cube.add({0, 4, 6, 2});  // then left
    cube.add({0, 2, 3, 1});
    cube.add({4, 5, 7, 6});
    const std::vector<float> n = smoothed(cube, 30.0f);
    for (int v : {1, 3, 5, 7}) expectNormal(n, v, {1, 0, 0});
    for (int v : {0, 2, 4, 6}) expectNormal(n, v, {-1, 0, 0});
}

// At 100 degrees the three faces at a corner are joined: the diagonal.
TEST(CreaseNormals, CubeAt100DegreesGivesTheDiagonals) {
    const std::vector<float> n = smoothed(tst::unitCube(), 100.0f);
    for (int v = 0; v < 8; ++v) {
        const Vec d{(v & 1) ? 1.0 : -1.0, (v & 2) ? 1.0 : -1.0, (v & 4) ? 1.0 : -1.0};
        expectNormal(n, v, d.unit());
    }
}

TEST(CreaseNormals, CubeAtExactly90DegreesIsStillCreased) {
    const std::vector<float> n = smoothed(tst::unitCube(), 90.0f);
    expectNormal(n, 0, {0, 0, -1});
    expectNormal(n, 7, {0, 0, 1});
}

// 16 sides: neighbouring sides meet at 22.5 degrees, sides and caps at 90. Side quad i
// faces the angle of its middle, (i + 0.5) * 22.5 degrees.
Vec radial(double degrees, double y = 0) {
    const double a = degrees * tst::kPi / 180;
    return {std::cos(a), y, std::sin(a)};
}

TEST(CreaseNormals, CylinderSidesFirstGiveTheRimTheSideNormal) {
    const std::vector<float> n = smoothed(tst::cylinder(16, false), 30.0f);
    for (int i = 0; i < 16; ++i) {
        expectNormal(n, i, radial(22.5 * i));       // bottom rim
        expectNormal(n, 16 + i, radial(22.5 * i));  // top rim
    }
}

TEST(CreaseNormals, CylinderCapsFirstGiveTheRimTheCapNormal) {
    const std::vector<float> n = smoothed(tst::cylinder(16, true), 30.0f);
    for (int i = 0; i < 16; ++i) {
        expectNormal(n, i, {0, -1, 0});
        expectNormal(n, 16 + i, {0, 1, 0});
    }
}

// Below the 22.5 degrees between sides each rim point keeps its first side's normal.
TEST(CreaseNormals, CylinderBelowTheSideAngleIsFaceted) {
    const std::vector<float> n = smoothed(tst::cylinder(16, false), 20.0f);
    expectNormal(n, 0, radial(11.25));  // side 0 comes before side 15
    for (int i = 1; i < 16; ++i) expectNormal(n, 16 + i, radial(22.5 * (i - 1) + 11.25));
}

// At 100 degrees the rim joins both sides and the cap: 2 cos(11.25) radial plus the
// cap's unit normal.
TEST(CreaseNormals, CylinderAt100DegreesBlendsSideAndCap) {
    const std::vector<float> n = smoothed(tst::cylinder(16, false), 100.0f);
    const double side = 2 * std::cos(11.25 * tst::kPi / 180);
    for (int i = 0; i < 16; ++i) {
        expectNormal(n, 16 + i, (radial(22.5 * i) * side + Vec{0, 1, 0}).unit());
        expectNormal(n, i, (radial(22.5 * i) * side + Vec{0, -1, 0}).unit());
    }
}

TEST(CreaseNormals, AnOpenCylinderSmoothsItsRimsToo) {
    Shape open = tst::cylinder(16, false);
    open.index.resize(16 * 5);  // the sides only
    const std::vector<float> n = smoothed(open, 30.0f);
    for (int i = 0; i < 16; ++i) expectNormal(n, 16 + i, radial(22.5 * i));
}

// z = x y sampled at x, y in {-1, 0, 1}, four quads around the centre (coordinate 4).
// From their first three points the quads' normals are (1,0,1)/sqrt2, (1,-1,1)/sqrt3,
// (0,0,1) and (0,-1,1)/sqrt2; around the centre they meet at 35.3 (q0 q1), 35.3 (q1
// q3), 45 (q3 q2) and 45 degrees (q2 q0).
Shape saddle() {
    Shape s;
    for (int y = -1; y <= 1; ++y)
        for (int x = -1; x <= 1; ++x) s.coords.insert(s.coords.end(), {float(x), float(y), float(x * y)});
    s.add({0, 1, 4, 3});
    s.add({1, 2, 5, 4});
    s.add({3, 4, 7, 6});
    s.add({4, 5, 8, 7});
    return s;
}

const Vec q0 = Vec{1, 0, 1}.unit(), q1 = Vec{1, -1, 1}.unit(), q2 = {0, 0, 1}, q3 = Vec{0, -1, 1}.unit();

TEST(CreaseNormals, SaddleFaceNormalsComeFromTheFirstThreePoints) {
    const Shape s = saddle();
    float n[12];
    ts::mesh::faceNormals(s.view(), n);
    const std::vector<float> got(n, n + 12);
    expectNormal(got, 0, q0);
    expectNormal(got, 1, q1);
    expectNormal(got, 2, q2);
    expectNormal(got, 3, q3);
}

TEST(CreaseNormals, SaddleCentreAt180DegreesSumsAllFour) {
    expectNormal(smoothed(saddle(), 180.0f), 4, (q0 + q1 + q2 + q3).unit());
}

// At 40 degrees the 45-degree edges are creases: the run from q0 goes q0, q1, q3
// (each face compared with its neighbour, not with the start: q0 and q3 are 60
// degrees apart).
TEST(CreaseNormals, SaddleCentreAt40DegreesSumsTheRunFromTheStart) {
    expectNormal(smoothed(saddle(), 40.0f), 4, (q0 + q1 + q3).unit());
}

TEST(CreaseNormals, SaddleCentreAt30DegreesKeepsTheStartFace) {
    expectNormal(smoothed(saddle(), 30.0f), 4, q0);
}

TEST(CreaseNormals, SaddleEdgePointsJoinTheirTwoQuads) {
    const std::vector<float> n = smoothed(saddle(), 40.0f);
    expectNormal(n, 1, (q0 + q1).unit());  // q0 q1 at 35.3 degrees
    expectNormal(n, 3, q0);                // q0 q2 at 45 degrees
    expectNormal(n, 0, q0);                // a corner with one quad
}

// A fan around the origin (coordinate 0) that does not close: t0 and t1 flat in z = 0,
// t2 folded down into y = 0, so t1 and t2 meet at 90 degrees; the rim edges to (1,0,0)
// and (0,0,-1) are borders.
Shape openFan(std::initializer_list<int> order) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 0, 0, 0, 0, -1};
    const int faces[3][3] = {{0, 1, 2}, {0, 2, 3}, {0, 3, 4}};
    for (int f : order) s.add({faces[f][0], faces[f][1], faces[f][2]});
    return s;
}

TEST(CreaseNormals, OpenFanRunFromTheFlatSide) {
    const std::vector<float> n = smoothed(openFan({1, 0, 2}), 45.0f);
    expectNormal(n, 0, {0, 0, 1});   // t1, t0
    expectNormal(n, 3, {0, 0, 1});   // t1 first, t2 beyond the crease
    expectNormal(n, 4, {0, -1, 0});  // t2 only
}

TEST(CreaseNormals, OpenFanRunFromTheFoldedSide) {
    const std::vector<float> n = smoothed(openFan({2, 0, 1}), 45.0f);
    expectNormal(n, 0, {0, -1, 0});
    expectNormal(n, 3, {0, -1, 0});
}

TEST(CreaseNormals, OpenFanAt100DegreesJoinsTheWholeFan) {
    const std::vector<float> n = smoothed(openFan({2, 0, 1}), 100.0f);
    expectNormal(n, 0, Vec{0, -1, 2}.unit());
    expectNormal(n, 3, Vec{0, -1, 1}.unit());
}

// A ring walked in both directions from a start in its middle: the fan's faces are
// listed out of ring order, t1 first.
TEST(CreaseNormals, OpenFanWalksBothWaysFromTheStart) {
    Shape s = openFan({1, 2, 0});
    const std::vector<float> n = smoothed(s, 100.0f);
    expectNormal(n, 0, Vec{0, -1, 2}.unit());
}

// A cone of n triangles round its apex (coordinate 0) over the unit circle in y = 0.
// Neighbouring faces are well within 40 degrees of each other for n >= 12, and a
// closed cone's apex sums to straight up. Counts of 64 and fewer, and above, take the
// two ways a ring is linked (a scan, and a sort for many faces).
Shape cone(int n, double height) {
    Shape s;
    s.coords = {0, float(height), 0};
    for (int i = 0; i < n; ++i) {
        const double a = 2 * tst::kPi * i / n;
        s.coords.insert(s.coords.end(), {float(std::cos(a)), 0.0f, float(std::sin(a))});
    }
    for (int i = 0; i < n; ++i) s.add({0, 1 + (i + 1) % n, 1 + i});
    return s;
}

TEST(CreaseNormals, ConeApexWithFewAndManyFacesPointsUp) {
    for (int faces : {5, 40, 64, 65, 300}) {
        const std::vector<float> n = smoothed(cone(faces, 1.0), 60.0f);
        expectNormal(n, 0, {0, 1, 0});
    }
}

// An open cone (one face left out) at a crease angle below the angle between its
// faces' normals across the centre: each face joins its neighbours, so the run is the
// whole open ring, whatever the number of faces.
TEST(CreaseNormals, OpenConeApexSumsTheWholeOpenRing) {
    for (int faces : {12, 64, 65, 200}) {
        Shape s = cone(faces, 1.0);
        s.index.resize(4 * (faces - 1));
        float fn[3 * 200];
        ts::mesh::faceNormals(s.view(), fn);
        Vec sum{0, 0, 0};
        for (int f = 0; f < faces - 1; ++f) sum = sum + Vec{fn[3 * f], fn[3 * f + 1], fn[3 * f + 2]};
        expectNormal(smoothed(s, 40.0f), 0, sum.unit());
    }
}

// A closed ring of faces that all run the same way round is walked by a shortcut; a
// face without area and without edges added at the end sends the same ring through the
// general walk, which must give exactly the same normal.
TEST(CreaseNormals, TheShortcutForClosedRingsAgreesWithTheGeneralWalk) {
    uint32_t seed = 7;
    auto random = [&seed] {
        seed = seed * 1664525u + 1013904223u;
        return float(seed >> 8) / float(1 << 24);
    };
    for (int trial = 0; trial < 300; ++trial) {
        const int n = 3 + trial % 12;
        Shape ring;
        ring.coords = {0, 0, 0};
        for (int i = 0; i < n; ++i) {
            const double a = 2 * tst::kPi * (i + 0.8 * random()) / n;
            ring.coords.insert(ring.coords.end(), {float(std::cos(a)), random() - 0.5f, float(std::sin(a))});
        }
        for (int i = 0; i < n; ++i) ring.add({0, 1 + (i + 1) % n, 1 + i});
        Shape general = ring;
        general.add({0, 0, 0});
        for (float degrees : {5.0f, 20.0f, 45.0f, 90.0f, 180.0f}) {
            const std::vector<float> a = smoothed(ring, degrees), b = smoothed(general, degrees);
            ASSERT_EQ(a[0], b[0]) << trial << " " << degrees;
            ASSERT_EQ(a[1], b[1]) << trial << " " << degrees;
            ASSERT_EQ(a[2], b[2]) << trial << " " << degrees;
        }
    }
}

}  // namespace
