// Crease-angle normals of degenerate meshes: every case gets a finite result, and the
// one its documentation promises.
#include "tsobj3d/mesh/crease_normals.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "mesh_shapes.h"
#include "tsobj3d/mesh/face_normals.h"

namespace {

using tst::Shape;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

// Every normal is finite and either of unit length or (0, 0, 0).
void expectWellFormed(const std::vector<float>& n) {
    for (size_t v = 0; v + 2 < n.size(); v += 3) {
        ASSERT_TRUE(std::isfinite(n[v]) && std::isfinite(n[v + 1]) && std::isfinite(n[v + 2])) << v / 3;
        const float length = std::sqrt(n[v] * n[v] + n[v + 1] * n[v + 1] + n[v + 2] * n[v + 2]);
        ASSERT_TRUE(length == 0.0f || std::fabs(length - 1.0f) < 1e-5f) << v / 3;
    }
}

std::vector<float> smoothed(const Shape& s, float degrees) {
    std::vector<float> out(s.coords.size(), -9.0f);
    EXPECT_TRUE(ts::mesh::creaseNormals(s.view(), degrees, out.data()));
    expectWellFormed(out);
    return out;
}

std::vector<float> faceNormalsOf(const Shape& s) {
    std::vector<float> out(3 * ts::mesh::countFaces(s.index.data(), int32_t(s.index.size())), -9.0f);
    ts::mesh::faceNormals(s.view(), out.data());
    expectWellFormed(out);
    return out;
}

void expectNormal(const std::vector<float>& n, int i, float x, float y, float z) {
    EXPECT_NEAR(n[3 * i], x, 1e-5) << i;
    EXPECT_NEAR(n[3 * i + 1], y, 1e-5) << i;
    EXPECT_NEAR(n[3 * i + 2], z, 1e-5) << i;
}

TEST(DegenerateMesh, AFaceWithoutAreaHasNoNormalAndIsNeverTheStart) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0, 2, 0, 0, 5, 5, 5};
    s.add({0, 1, 3});  // in a line
    s.add({0, 1, 2});
    const std::vector<float> f = faceNormalsOf(s);
    expectNormal(f, 0, 0, 0, 0);
    expectNormal(f, 1, 0, 0, 1);
    const std::vector<float> n = smoothed(s, 30.0f);
    expectNormal(n, 0, 0, 0, 1);  // the line comes first, the triangle is the start
    expectNormal(n, 3, 0, 0, 0);  // only in the line
    expectNormal(n, 4, 0, 0, 0);  // in no face
}

TEST(DegenerateMesh, PointsAllAtOnePlaceHaveNoNormal) {
    Shape s;
    s.coords = {1, 2, 3, 1, 2, 3, 1, 2, 3};
    s.add({0, 1, 2});
    expectNormal(smoothed(s, 180.0f), 1, 0, 0, 0);
}

// Triangle a lies in z = 0 on the y < 0 side of the x axis; b is folded up by 20
// degrees on the other side. With a sliver between them (coordinate 3 at the place of
// 1), the crease test across the sliver compares a with b.
Shape foldedPair(bool sliver) {
    const float c = std::cos(20 * float(tst::kPi) / 180), s = std::sin(20 * float(tst::kPi) / 180);
    Shape m;
    m.coords = {0, 0, 0, 1, 0, 0, 0.5f, -1, 0, 1, 0, 0, 0.5f, c, s};
    m.add({0, 2, 1});
    if (sliver) {
        m.add({0, 1, 3});
        m.add({0, 3, 4});
    } else {
        m.add({0, 1, 4});
    }
    return m;
}

TEST(DegenerateMesh, ASliverDoesNotSplitTheShading) {
    const float c10 = std::cos(10 * float(tst::kPi) / 180), s10 = std::sin(10 * float(tst::kPi) / 180);
    for (bool sliver : {false, true}) {
        const std::vector<float> joined = smoothed(foldedPair(sliver), 30.0f);
        expectNormal(joined, 0, 0, -s10, c10);
        const std::vector<float> creased = smoothed(foldedPair(sliver), 10.0f);
        expectNormal(creased, 0, 0, 0, 1);
    }
}

TEST(DegenerateMesh, RepeatedIndicesInAFace) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    s.add({0, 0, 1, 2});     // the first three are not a triangle: the whole face is
    s.add({1, 2, 1, 2, 0});  // a face that goes round twice
    const std::vector<float> f = faceNormalsOf(s);
    expectNormal(f, 0, 0, 0, 1);
    expectNormal(f, 1, 0, 0, 1);
    const std::vector<float> n = smoothed(s, 30.0f);
    for (int v = 0; v < 3; ++v) expectNormal(n, v, 0, 0, 1);
}

// Three triangles on the edge 0-1 along x: a in z = 0 (y > 0), b upright in y = 0,
// c in z = 0 (y < 0) tilted down a little. Around a non-manifold edge the faces are
// neighbours in list order, each to the next.
Shape book(std::initializer_list<int> order) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, -1, -0.2f};
    const int pages[3][3] = {{0, 1, 2}, {0, 3, 1}, {0, 4, 1}};
    for (int p : order) s.add({pages[p][0], pages[p][1], pages[p][2]});
    return s;
}

TEST(DegenerateMesh, AnEdgeOfThreeFacesLinksThemInListOrder) {
    const float l = std::sqrt(1.04f);
    const std::vector<float> f = faceNormalsOf(book({0, 1, 2}));
    expectNormal(f, 0, 0, 0, 1);
    expectNormal(f, 1, 0, 1, 0);
    expectNormal(f, 2, 0, -0.2f / l, 1 / l);
    // a, b, c: a meets only b, across a crease.
    expectNormal(smoothed(book({0, 1, 2}), 30.0f), 0, 0, 0, 1);
    // a, c, b: a and c are joined (11 degrees), b is beyond a crease.
    const float y = -0.2f / l, z = 1 + 1 / l, length = std::sqrt(y * y + z * z);
    expectNormal(smoothed(book({0, 2, 1}), 30.0f), 0, 0, y / length, z / length);
    // At 100 degrees a joins b (90), but b and c are 101 degrees apart.
    expectNormal(smoothed(book({0, 1, 2}), 100.0f), 0, 0, float(1 / std::sqrt(2.0)), float(1 / std::sqrt(2.0)));
}

TEST(DegenerateMesh, ManyFacesOnOneEdgeCostLinearTime) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0};
    const int pages = 200000;
    for (int p = 0; p < pages; ++p) {
        const float a = 2 * float(tst::kPi) * p / pages;
        s.coords.insert(s.coords.end(), {0.5f, std::cos(a), std::sin(a)});
        s.add({0, 1, 2 + p});
    }
    const std::vector<float> n = smoothed(s, 30.0f);
    EXPECT_NEAR(n[0] * n[0], 0.0f, 1e-6f);  // the pages' normals all lie in the y-z plane
}

TEST(DegenerateMesh, IsolatedCoordinatesGetZero) {
    Shape s = tst::unitCube();
    s.coords.insert(s.coords.end(), {9, 9, 9, 8, 8, 8});
    const std::vector<float> n = smoothed(s, 100.0f);
    expectNormal(n, 8, 0, 0, 0);
    expectNormal(n, 9, 0, 0, 0);
}

// A triangle and a 100-gon round a square, 25 points a side: the 100-gon's first three
// points are in a line, so it takes the Newell normal of the whole face.
TEST(DegenerateMesh, FacesOfThreeAndOfAHundredVertices) {
    Shape s;
    const float side[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    for (int e = 0; e < 4; ++e)
        for (int k = 0; k < 25; ++k) {
            const float t = k / 25.0f;
            const float* p = side[e];
            const float* q = side[(e + 1) % 4];
            s.coords.insert(s.coords.end(), {p[0] + t * (q[0] - p[0]), p[1] + t * (q[1] - p[1]), 0});
        }
    s.index.clear();
    for (int v = 0; v < 100; ++v) s.index.push_back(v);
    s.index.push_back(-1);
    s.coords.insert(s.coords.end(), {0, 0, 1});
    s.add({0, 100, 25});  // a triangle standing on the square's first side, facing in
    const std::vector<float> f = faceNormalsOf(s);
    expectNormal(f, 0, 0, 0, 1);
    expectNormal(f, 1, 0, 1, 0);
    const std::vector<float> n = smoothed(s, 30.0f);
    for (int v = 0; v < 100; ++v) expectNormal(n, v, 0, 0, 1);
    expectNormal(n, 100, 0, 1, 0);
}

TEST(DegenerateMesh, IndicesThatNameNoCoordinateAreSkipped) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    s.add({0, -5, 1, 2});   // Newell over 0, 1, 2
    s.add({99, 1, 2, 0});   // the first entry is out of range
    s.add({-3, -4, 7});     // nothing usable
    s.index.insert(s.index.end(), {0, 1, 5});  // no -1: no face
    const std::vector<float> f = faceNormalsOf(s);
    expectNormal(f, 0, 0, 0, 1);
    expectNormal(f, 1, 0, 0, 1);
    expectNormal(f, 2, 0, 0, 0);
    const std::vector<float> n = smoothed(s, 30.0f);
    for (int v = 0; v < 3; ++v) expectNormal(n, v, 0, 0, 1);
}

TEST(DegenerateMesh, FacesOfFewerThanThreeEntries) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    s.index = {-1, 0, -1, 0, 1, -1, 1, 2, -1};
    const std::vector<float> f = faceNormalsOf(s);
    for (int face = 0; face < 4; ++face) expectNormal(f, face, 0, 0, 0);
    const std::vector<float> n = smoothed(s, 30.0f);
    for (int v = 0; v < 3; ++v) expectNormal(n, v, 0, 0, 0);
}

TEST(DegenerateMesh, NonFiniteCoordinates) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0, kNaN, 0, 0, kInf, 1, 1};
    s.add({0, 1, 2});
    s.add({0, 3, 1});
    s.add({0, 2, 4});
    const std::vector<float> f = faceNormalsOf(s);
    expectNormal(f, 1, 0, 0, 0);
    expectNormal(f, 2, 0, 0, 0);
    const std::vector<float> n = smoothed(s, 180.0f);
    expectNormal(n, 0, 0, 0, 1);
    expectNormal(n, 3, 0, 0, 0);
}

TEST(DegenerateMesh, HugeAndTinyFacesStillHaveNormals) {
    for (float scale : {1e30f, 1e-20f, 1e-30f, 1e-44f}) {
        Shape s;
        s.coords = {0, 0, 0, scale, 0, 0, 0, scale, 0};
        s.add({0, 1, 2});
        expectNormal(faceNormalsOf(s), 0, 0, 0, 1);
        expectNormal(smoothed(s, 30.0f), 1, 0, 0, 1);
    }
}

TEST(DegenerateMesh, FacesThatCancelKeepTheStartFace) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    s.add({0, 1, 2});
    s.add({0, 2, 1});
    const std::vector<float> n = smoothed(s, 180.0f);
    for (int v = 0; v < 3; ++v) expectNormal(n, v, 0, 0, 1);
}

TEST(DegenerateMesh, ANaNCreaseAngleCreasesEveryEdge) {
    const std::vector<float> n = smoothed(tst::unitCube(), kNaN);
    for (int v = 0; v < 4; ++v) expectNormal(n, v, 0, 0, -1);
    for (int v = 4; v < 8; ++v) expectNormal(n, v, 0, 0, 1);
}

TEST(DegenerateMesh, NoFacesAtAll) {
    Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    s.index = {0, 1, 2};
    const std::vector<float> n = smoothed(s, 30.0f);
    for (float c : n) EXPECT_EQ(c, 0.0f);
}

// A face turned the other way has the opposite normal, and the crease test sees it so:
// the cube's bottom turned to face up meets its sides at 90 degrees still, but joins
// them with its new normal.
TEST(DegenerateMesh, AFaceTurnedTheOtherWay) {
    Shape s = tst::unitCube();
    const std::vector<int32_t> turned = {1, 3, 2, 0};
    std::copy(turned.begin(), turned.end(), s.index.begin());
    expectNormal(smoothed(s, 80.0f), 0, 0, 0, 1);
    const float r = 1 / std::sqrt(3.0f);
    expectNormal(smoothed(s, 100.0f), 0, -r, -r, r);
}

}  // namespace
