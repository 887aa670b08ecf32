// The vertex and normal sequences of the primitive node, mode by mode.
#include "tsobj3d/visible/primitive_emit.h"

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "math/recording_sink.h"

namespace {

using Calls = std::vector<std::string>;

// Points P0 .. P5 of a zigzag strip in the z = 0 plane: lower row at y = 0, upper
// row at y = 1, alternating, so each triangle is counter-clockwise or clockwise.
const float kStrip[] = {0, 0, 0, 0, 1, 0, 1, 0, 0, 1, 1, 0, 2, 0, 0, 2, 1, 0};

std::string v(float x, float y, float z) {
    const float p[3] = {x, y, z};
    return "V" + tst::RecordingSink::triple(p);
}
std::string n(float x, float y, float z) {
    const float p[3] = {x, y, z};
    return "N" + tst::RecordingSink::triple(p);
}

Calls emit(uint32_t mode, const float* points, int32_t count) {
    tst::RecordingSink sink;
    ts::emitPrimitive(mode, points, count, sink);
    return sink.calls;
}

TEST(EmitPrimitive, PointsAndLinesDrawNothing) {
    EXPECT_EQ((Calls{"B0", "E"}), emit(ts::kGlPoints, kStrip, 6));
    EXPECT_EQ((Calls{"B1", "E"}), emit(ts::kGlLines, kStrip, 6));
    EXPECT_EQ((Calls{"B77", "E"}), emit(77, kStrip, 6));
}

TEST(EmitPrimitive, LineModesEmitEveryVertexWithoutNormals) {
    for (uint32_t mode : {ts::kGlLineLoop, ts::kGlLineStrip, 100010u, 100011u}) {
        const Calls calls = emit(mode, kStrip, 3);
        EXPECT_EQ((Calls{"B" + std::to_string(mode), v(0, 0, 0), v(0, 1, 0), v(1, 0, 0), "E"}),
                  calls);
    }
}

TEST(EmitPrimitive, TrianglesGetOneNormalEach) {
    // Second triangle clockwise: its normal points away.
    const float pts[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 1, 0, 1, 9, 9, 9};
    EXPECT_EQ((Calls{"B4", n(0, 0, 1), v(0, 0, 0), v(1, 0, 0), v(0, 1, 0), n(0, 0, -1),
                     v(0, 0, 1), v(0, 1, 1), v(1, 0, 1), "E"}),
              emit(ts::kGlTriangles, pts, 7));
}

TEST(EmitPrimitive, QuadsSwapTheLastTwoPoints) {
    // Unit square in zigzag order: drawn as (0,0) (1,0) (1,1) (0,1), no twist.
    const float pts[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0};
    EXPECT_EQ((Calls{"B7", n(0, 0, 1), v(0, 0, 0), v(1, 0, 0), v(1, 1, 0), v(0, 1, 0), "E"}),
              emit(ts::kGlQuads, pts, 4));
}

TEST(EmitPrimitive, QuadsLeaveOutAnIncompleteLastQuad) {
    const float pts[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0, 5, 5, 5, 6, 6, 6};
    const Calls calls = emit(ts::kGlQuads, pts, 6);
    EXPECT_EQ(7u, calls.size());
}

TEST(EmitPrimitive, TriangleStripNormalsFollowTheWinding) {
    // Triangles (P0 P1 P2), (P1 P2 P3) drawn as P2 P1 P3, (P2 P3 P4), (P3 P4 P5) drawn as
    // P4 P3 P5: in this zigzag every one of them faces -z.
    EXPECT_EQ((Calls{"B5", n(0, 0, -1), v(0, 0, 0), v(0, 1, 0), v(1, 0, 0), n(0, 0, -1),
                     v(1, 1, 0), n(0, 0, -1), v(2, 0, 0), n(0, 0, -1), v(2, 1, 0), "E"}),
              emit(ts::kGlTriangleStrip, kStrip, 6));
}

TEST(EmitPrimitive, TriangleStripWithAnOddCountStopsAfterTheLastVertex) {
    const Calls calls = emit(ts::kGlTriangleStrip, kStrip, 5);
    EXPECT_EQ((Calls{"B5", n(0, 0, -1), v(0, 0, 0), v(0, 1, 0), v(1, 0, 0), n(0, 0, -1),
                     v(1, 1, 0), n(0, 0, -1), v(2, 0, 0), "E"}),
              calls);
}

TEST(EmitPrimitive, TriangleStripNormalsUseTheNamedPoints) {
    // A bent strip: each normal is that of the points the sequence names.
    const float pts[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 1};
    EXPECT_EQ((Calls{"B5", n(0, 0, 1), v(0, 0, 0), v(1, 0, 0), v(0, 1, 0),
                     n(-0.57735f, -0.57735f, 0.57735f), v(1, 1, 1), "E"}),
              emit(ts::kGlTriangleStrip, pts, 4));
}

TEST(EmitPrimitive, TriangleFanNormalsShareTheCentre) {
    const float pts[] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, -1, 0, 0};
    EXPECT_EQ((Calls{"B6", n(0, 0, 1), v(0, 0, 0), v(1, 0, 0), v(1, 1, 0), n(0, 0, 1),
                     v(0, 1, 0), n(0, 0, 1), v(-1, 0, 0), "E"}),
              emit(ts::kGlTriangleFan, pts, 5));
}

TEST(EmitPrimitive, QuadStripEmitsTwoVerticesPerFurtherQuad) {
    // normal(P0 P1 P2) = (P0-P1) x (P1-P2) = (0,-1,0) x (-1,1,0) = (0,0,-1).
    EXPECT_EQ((Calls{"B8", n(0, 0, -1), v(0, 0, 0), v(0, 1, 0), v(1, 0, 0), v(1, 1, 0),
                     n(0, 0, -1), v(2, 0, 0), v(2, 1, 0), "E"}),
              emit(ts::kGlQuadStrip, kStrip, 6));
}

TEST(EmitPrimitive, QuadStripOfOneQuadReadsNoFurther) {
    EXPECT_EQ((Calls{"B8", n(0, 0, -1), v(0, 0, 0), v(0, 1, 0), v(1, 0, 0), v(1, 1, 0), "E"}),
              emit(ts::kGlQuadStrip, kStrip, 4));
}

TEST(EmitPrimitive, PolygonHasOneNormal) {
    const float pts[] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
    EXPECT_EQ((Calls{"B9", n(0, 0, 1), v(0, 0, 0), v(1, 0, 0), v(1, 1, 0), v(0, 1, 0), "E"}),
              emit(ts::kGlPolygon, pts, 4));
}

TEST(EmitPrimitive, TooFewPointsForAFaceEmitNothingInside) {
    for (uint32_t mode : {ts::kGlTriangles, ts::kGlTriangleStrip, ts::kGlTriangleFan,
                          ts::kGlPolygon, ts::kGlQuads, ts::kGlQuadStrip}) {
        EXPECT_EQ(2u, emit(mode, kStrip, 2).size()) << mode;
        EXPECT_EQ(2u, emit(mode, nullptr, 0).size()) << mode;
        EXPECT_EQ(2u, emit(mode, nullptr, -5).size()) << mode;
    }
    EXPECT_EQ(2u, emit(ts::kGlQuadStrip, kStrip, 3).size());
}

TEST(EmitPrimitive, DegenerateFaceGetsANonFiniteNormal) {
    struct Catch : ts::GeometrySink {
        void begin(uint32_t) override {}
        void normal(const float* nv) override { finite = std::isfinite(nv[0]); }
        void vertex(const float*) override { ++vertices; }
        void end() override {}
        bool finite = true;
        int vertices = 0;
    } sink;
    const float pts[] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    ts::emitPrimitive(ts::kGlTriangles, pts, 3, sink);
    EXPECT_FALSE(sink.finite);
    EXPECT_EQ(3, sink.vertices);
}

}  // namespace
