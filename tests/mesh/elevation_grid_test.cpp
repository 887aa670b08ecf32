// The elevation grid: its parameter checks, points, triangle order, colours and
// normals per cell and per point, and its smooth normals.
#include "tsobj3d/mesh/elevation_grid.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "mesh_recording_sink.h"

namespace {

using Calls = std::vector<std::string>;
using ts::mesh::GridArgs;
using ts::mesh::GridData;
using tst::C;
using tst::N;
using tst::V;

GridArgs gridArgs(int32_t x, int32_t z, const std::vector<float>& heights) {
    GridArgs a;
    a.xDimension = x;
    a.zDimension = z;
    a.xSpacing = 1;
    a.zSpacing = 1;
    a.height = heights.data();
    return a;
}

std::string set(const GridArgs& a, GridData& d) {
    const char* error = ts::mesh::setElevationGrid(a, d);
    return error ? error : "";
}

Calls emitted(const GridData& d, bool smooth, float crease = 30.0f) {
    tst::MeshRecordingSink sink;
    EXPECT_TRUE(ts::mesh::emitGrid(d, smooth, crease, sink));
    return sink.calls;
}

TEST(ElevationGrid, TwoByTwoCoversTheUnitSquare) {
    const std::vector<float> flat(4, 0.0f);
    GridData d;
    ASSERT_EQ(set(gridArgs(2, 2, flat), d), "");
    EXPECT_EQ(d.triangles(), 2);
    EXPECT_EQ(d.pointCount, 4);
    EXPECT_EQ(emitted(d, false), (Calls{"B4", N(0, 1, 0), V(0, 0, 0), V(0, 0, 1), V(1, 0, 0),
                                        N(0, 1, 0), V(0, 0, 1), V(1, 0, 1), V(1, 0, 0), "E"}));
}

// Point (i, j) takes heights[j * 2 + i]: with spacings 2 and 0.5, heights 0 1 2 3 put
// the points on the plane y = x/2 + 4z, which both triangles face as (-1/2, 1, -4).
TEST(ElevationGrid, HeightsGoRowByRowAlongX) {
    const std::vector<float> h = {0, 1, 2, 3};
    GridArgs a = gridArgs(2, 2, h);
    a.xSpacing = 2;
    a.zSpacing = 0.5f;
    GridData d;
    ASSERT_EQ(set(a, d), "");
    const float length = std::sqrt(17.25f);
    const std::string normal = N(-0.5f / length, 1 / length, -4 / length);
    EXPECT_EQ(emitted(d, false), (Calls{"B4", normal, V(0, 0, 0), V(0, 2, 0.5f), V(2, 1, 0),
                                        normal, V(0, 2, 0.5f), V(2, 3, 0.5f), V(2, 1, 0), "E"}));
}

TEST(ElevationGrid, CellsRunAlongXInsideZ) {
    const std::vector<float> h = {0, 1, 2, 10, 11, 12, 20, 21, 22};
    GridData d;
    ASSERT_EQ(set(gridArgs(3, 3, h), d), "");
    const Calls calls = emitted(d, false);
    ASSERT_EQ(calls.size(), 2u + 4 * 8);
    EXPECT_EQ(calls[2], V(0, 0, 0));
    EXPECT_EQ(calls[2 + 8], V(1, 1, 0));   // cell (1, 0)
    EXPECT_EQ(calls[2 + 16], V(0, 10, 1));  // cell (0, 1)
    EXPECT_EQ(calls[2 + 24 + 5], V(2, 22, 2));  // cell (1, 1): its second triangle's (i+1, j+1)
}

TEST(ElevationGrid, InvalidParameters) {
    const std::vector<float> h(16, 0.0f);
    GridData d;
    auto message = [&](GridArgs a) { return set(a, d); };
    GridArgs a = gridArgs(2, 2, h);
    a.xSpacing = 0;
    EXPECT_EQ(message(a), "Invalid input parameter(s)");
    a.xSpacing = -1;
    EXPECT_EQ(message(a), "Invalid input parameter(s)");
    a.xSpacing = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(message(a), "Invalid input parameter(s)");
    a = gridArgs(2, 2, h);
    a.zSpacing = 0;
    EXPECT_EQ(message(a), "Invalid input parameter(s)");
    a = gridArgs(2, 2, h);
    a.height = nullptr;
    EXPECT_EQ(message(a), "Invalid input parameter(s)");
    EXPECT_EQ(message(gridArgs(1, 3, h)), "Invalid input parameter(s)");
    EXPECT_EQ(message(gridArgs(3, 1, h)), "Invalid input parameter(s)");
    EXPECT_FALSE(d.heights);
    EXPECT_EQ(d.pointCount, 0);
    EXPECT_TRUE(emitted(d, false).empty());
}

// The dimensions are not tested one by one: 1 by 4 passes, keeps its four heights and
// has no cells to draw; so does -2 by -2, whose product is 4.
TEST(ElevationGrid, OneByFourPassesAndDrawsNothing) {
    const std::vector<float> h(4, 1.0f);
    GridData d;
    EXPECT_EQ(set(gridArgs(1, 4, h), d), "");
    EXPECT_EQ(d.pointCount, 4);
    EXPECT_EQ(d.triangles(), 0);
    EXPECT_TRUE(emitted(d, false).empty());
    EXPECT_TRUE(emitted(d, true).empty());
    EXPECT_EQ(set(gridArgs(-2, -2, h), d), "");
    EXPECT_EQ(d.cells(), 0);
    EXPECT_TRUE(emitted(d, true).empty());
}

TEST(ElevationGrid, ProductOfDimensionsDoesNotOverflow) {
    const std::vector<float> h(4, 1.0f);
    GridData d;
    // 65536 * 65536 wraps to 0 in 32 bits; the grid is too big to copy instead.
    GridArgs a = gridArgs(65536, 65536, h);
    a.height = nullptr;
    EXPECT_EQ(set(a, d), "Invalid input parameter(s)");
    EXPECT_EQ(d.points(), int64_t(65536) * 65536);
}

TEST(ElevationGrid, ColourAndNormalCountsPerCellAndPerPoint) {
    const std::vector<float> h(9, 0.0f), triples(27, 0.25f);
    GridArgs a = gridArgs(3, 3, h);
    a.color = triples.data();
    a.normal = triples.data();
    GridData d;
    ASSERT_EQ(set(a, d), "");
    EXPECT_EQ(d.cells(), 4);  // a triple each
    EXPECT_TRUE(d.colors && d.normals);
    a.colorPerVertex = 1;
    a.normalPerVertex = 1;
    ASSERT_EQ(set(a, d), "");
    EXPECT_EQ(d.points(), 9);  // a triple each
    EXPECT_TRUE(d.colors && d.normals);
}

std::vector<float> numbered(int count) {
    std::vector<float> c;
    for (int j = 0; j < count; ++j) c.insert(c.end(), {float(j), 0, 0});
    return c;
}

TEST(ElevationGrid, PerCellColoursComeOncePerCell) {
    const std::vector<float> h(9, 0.0f), colors = numbered(9);
    GridArgs a = gridArgs(3, 3, h);
    a.color = colors.data();
    GridData d;
    ASSERT_EQ(set(a, d), "");
    const Calls calls = emitted(d, false);
    ASSERT_EQ(calls.size(), 2u + 4 * 9);
    for (int cell = 0; cell < 4; ++cell) {
        EXPECT_EQ(calls[1 + 9 * cell], C(float(cell), 0, 0));
        EXPECT_EQ(calls[2 + 9 * cell], N(0, 1, 0));
    }
}

TEST(ElevationGrid, PerPointColoursComeBeforeEachPoint) {
    const std::vector<float> h(9, 0.0f), colors = numbered(9);
    GridArgs a = gridArgs(3, 3, h);
    a.color = colors.data();
    a.colorPerVertex = 1;
    GridData d;
    ASSERT_EQ(set(a, d), "");
    const Calls calls = emitted(d, false);
    // Cell (1, 1): points (1,1) (1,2) (2,1), then (1,2) (2,2) (2,1): numbers 4 7 5 7 8 5.
    const Calls last = {N(0, 1, 0), C(4, 0, 0), V(1, 0, 1), C(7, 0, 0), V(1, 0, 2), C(5, 0, 0), V(2, 0, 1),
                        N(0, 1, 0), C(7, 0, 0), V(1, 0, 2), C(8, 0, 0), V(2, 0, 2), C(5, 0, 0), V(2, 0, 1), "E"};
    EXPECT_EQ(Calls(calls.end() - 15, calls.end()), last);
}

// A roof along z: heights 0 1 0 across x, two cells sloping at 45 degrees each way.
// The ridge point (1, 0) is in three triangles: two of the up slope, (-1,1,0)/sqrt2,
// and one of the down slope, (1,1,0)/sqrt2.
GridData roof() {
    const std::vector<float> h = {0, 1, 0, 0, 1, 0};
    GridData d;
    EXPECT_EQ(set(gridArgs(3, 2, h), d), "");
    return d;
}

TEST(ElevationGrid, SmoothRoofAt30DegreesKeepsTheFirstSlope) {
    const GridData d = roof();
    std::vector<float> n(18);
    ASSERT_TRUE(ts::mesh::gridCreaseNormals(d, 30.0f, n.data()));
    const float r = 1 / std::sqrt(2.0f);
    EXPECT_NEAR(n[3], -r, 1e-5);
    EXPECT_NEAR(n[4], r, 1e-5);
    EXPECT_NEAR(n[6 + 0], r, 1e-5);  // point (2, 0) only on the down slope
}

TEST(ElevationGrid, SmoothRoofAt100DegreesJoinsTheRidge) {
    const GridData d = roof();
    const Calls calls = emitted(d, true, 100.0f);
    const float l = std::sqrt(10.0f);
    const float r = 1 / std::sqrt(2.0f);
    // The first triangle: (0,0) (0,1) (1,0), each point after its normal.
    EXPECT_EQ(calls[0], "B4");
    EXPECT_EQ(calls[1], N(-r, r, 0));
    EXPECT_EQ(calls[2], V(0, 0, 0));
    EXPECT_EQ(calls[5], N(-1 / l, 3 / l, 0));
    EXPECT_EQ(calls[6], V(1, 1, 0));
}

TEST(ElevationGrid, GivenNormalsReplaceTheComputedOnesWhenSmooth) {
    const std::vector<float> h(4, 0.0f), normals = numbered(4);
    GridArgs a = gridArgs(2, 2, h);
    a.normal = normals.data();
    a.normalPerVertex = 1;
    GridData d;
    ASSERT_EQ(set(a, d), "");
    EXPECT_EQ(emitted(d, true), (Calls{"B4", N(0, 0, 0), V(0, 0, 0), N(2, 0, 0), V(0, 0, 1), N(1, 0, 0), V(1, 0, 0),
                                       N(2, 0, 0), V(0, 0, 1), N(3, 0, 0), V(1, 0, 1), N(1, 0, 0), V(1, 0, 0), "E"}));
    a.normalPerVertex = 0;
    ASSERT_EQ(set(a, d), "");
    EXPECT_EQ(emitted(d, true), (Calls{"B4", N(0, 0, 0), V(0, 0, 0), V(0, 0, 1), V(1, 0, 0),
                                       V(0, 0, 1), V(1, 0, 1), V(1, 0, 0), "E"}));
    // The faceted form keeps the triangle normals.
    EXPECT_EQ(emitted(d, false)[1], N(0, 1, 0));
}

}  // namespace
