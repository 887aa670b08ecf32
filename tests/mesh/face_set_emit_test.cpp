// The indexed face set's emitted sequences: faceted, smooth and with given normals,
// colours per face and per vertex, through an index or in sequence.
#include "tsobj3d/mesh/face_set_emit.h"

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "mesh_recording_sink.h"
#include "mesh_shapes.h"
#include "tsobj3d/mesh/crease_normals.h"
#include "tsobj3d/mesh/face_normals.h"

namespace {

using Calls = std::vector<std::string>;
using ts::mesh::FaceSetView;
using tst::C;
using tst::N;
using tst::V;

// The unit cube's corners by number.
std::string corner(int v) { return V(float(v & 1), float(v >> 1 & 1), float(v >> 2 & 1)); }

// Colour j is (j / 10, 1 - j / 10, 0.5).
std::vector<float> numberedColors(int count) {
    std::vector<float> c;
    for (int j = 0; j < count; ++j) c.insert(c.end(), {j / 10.0f, 1 - j / 10.0f, 0.5f});
    return c;
}
std::string colorNo(int j) { return C(j / 10.0f, 1 - j / 10.0f, 0.5f); }

struct Cube {
    tst::Shape shape = tst::unitCube();
    std::vector<float> colors = numberedColors(30);
    FaceSetView view() const {
        FaceSetView v;
        v.mesh = shape.view();
        v.faceCount = ts::mesh::countFaces(shape.index.data(), int32_t(shape.index.size()));
        return v;
    }
};

Calls faceted(const FaceSetView& v) {
    std::vector<float> normals(3 * v.faceCount);
    ts::mesh::faceNormals(v.mesh, normals.data());
    tst::MeshRecordingSink sink;
    ts::mesh::emitFacetedFaceSet(v, normals.data(), sink);
    return sink.calls;
}

TEST(FaceSetEmit, FacetedCubeIsSixPolygonsWithFaceNormals) {
    Cube cube;
    const Calls calls = faceted(cube.view());
    ASSERT_EQ(calls.size(), 6u * 7u);
    const Calls bottom = {"B9", N(0, 0, -1), corner(0), corner(2), corner(3), corner(1), "E"};
    EXPECT_EQ(Calls(calls.begin(), calls.begin() + 7), bottom);
    const Calls right = {"B9", N(1, 0, 0), corner(1), corner(3), corner(7), corner(5), "E"};
    EXPECT_EQ(Calls(calls.end() - 7, calls.end()), right);
}

TEST(FaceSetEmit, WithoutTheFinalEndTheLastFaceIsNotDrawn) {
    Cube cube;
    cube.shape.index.pop_back();
    const Calls calls = faceted(cube.view());
    EXPECT_EQ(calls.size(), 5u * 7u);
}

TEST(FaceSetEmit, PerFaceColoursComeBeforeTheFaceNormal) {
    Cube cube;
    FaceSetView v = cube.view();
    v.colors = cube.colors.data();
    v.colorCount = 6;
    const Calls calls = faceted(v);
    ASSERT_EQ(calls.size(), 6u * 8u);
    for (int f = 0; f < 6; ++f) {
        EXPECT_EQ(calls[8 * f], "B9");
        EXPECT_EQ(calls[8 * f + 1], colorNo(f));
        EXPECT_EQ(calls[8 * f + 2][0], 'N');
    }
}

TEST(FaceSetEmit, PerFaceColoursThroughTheIndex) {
    Cube cube;
    const std::vector<int32_t> index = {5, 4, 3, 2, 1, 0};
    FaceSetView v = cube.view();
    v.colors = cube.colors.data();
    v.colorCount = 6;
    v.colorIndex = index.data();
    v.colorIndexCount = 6;
    const Calls calls = faceted(v);
    for (int f = 0; f < 6; ++f) EXPECT_EQ(calls[8 * f + 1], colorNo(5 - f));
}

// The j-th vertex occurrence takes colour j, whichever coordinate it names: the bottom
// face 0 2 3 1 takes colours 0 1 2 3, not 0 2 3 1. With 8 colours for 24 occurrences
// the faces after the second get none.
TEST(FaceSetEmit, PerVertexColoursInSequenceFollowTheOccurrences) {
    Cube cube;
    FaceSetView v = cube.view();
    v.colorPerVertex = true;
    v.colors = cube.colors.data();
    v.colorCount = 8;
    const Calls calls = faceted(v);
    const Calls bottom = {"B9", N(0, 0, -1), colorNo(0), corner(0), colorNo(1), corner(2),
                          colorNo(2), corner(3), colorNo(3), corner(1), "E"};
    EXPECT_EQ(Calls(calls.begin(), calls.begin() + 11), bottom);
    EXPECT_EQ(calls[13], colorNo(4));
    const Calls third = {"B9", N(0, -1, 0), corner(0), corner(1), corner(5), corner(4), "E"};
    EXPECT_EQ(Calls(calls.begin() + 22, calls.begin() + 29), third);
}

// Through the index the k-th entry's colour goes with the k-th coordinate entry; the
// entries at the -1 positions are passed over with them. A negative colour index
// emits no colour.
TEST(FaceSetEmit, PerVertexColoursThroughTheIndexGoWithTheirEntries) {
    Cube cube;
    std::vector<int32_t> index(cube.shape.index.size(), 29);
    index[0] = 7;
    index[1] = 6;
    index[2] = -3;
    index[5] = 1;  // second face's first entry
    FaceSetView v = cube.view();
    v.colorPerVertex = true;
    v.colors = cube.colors.data();
    v.colorCount = 30;
    v.colorIndex = index.data();
    v.colorIndexCount = int32_t(index.size());
    const Calls calls = faceted(v);
    const Calls bottom = {"B9", N(0, 0, -1), colorNo(7), corner(0), colorNo(6), corner(2),
                          corner(3), colorNo(29), corner(1), "E"};
    EXPECT_EQ(Calls(calls.begin(), calls.begin() + 10), bottom);
    EXPECT_EQ(calls[12], colorNo(1));
}

TEST(FaceSetEmit, SmoothFormHasANormalBeforeEachVertex) {
    Cube cube;
    FaceSetView v = cube.view();
    std::vector<float> normals(24);
    ASSERT_TRUE(ts::mesh::creaseNormals(v.mesh, 100.0f, normals.data()));
    tst::MeshRecordingSink sink;
    ts::mesh::emitSmoothFaceSet(v, normals.data(), sink);
    ASSERT_EQ(sink.calls.size(), 6u * 10u);
    const float r = 1 / std::sqrt(3.0f);
    EXPECT_EQ(sink.calls[0], "B9");
    EXPECT_EQ(sink.calls[1], N(-r, -r, -r));
    EXPECT_EQ(sink.calls[2], corner(0));
    EXPECT_EQ(sink.calls[3], N(-r, r, -r));
    EXPECT_EQ(sink.calls[4], corner(2));
}

TEST(FaceSetEmit, SmoothFormKeepsTheColourBeforeTheNormal) {
    Cube cube;
    FaceSetView v = cube.view();
    v.colorPerVertex = true;
    v.colors = cube.colors.data();
    v.colorCount = 8;
    std::vector<float> normals(24, 0.0f);
    tst::MeshRecordingSink sink;
    ts::mesh::emitSmoothFaceSet(v, normals.data(), sink);
    const Calls start = {"B9", colorNo(0), N(0, 0, 0), corner(0), colorNo(1)};
    EXPECT_EQ(Calls(sink.calls.begin(), sink.calls.begin() + 5), start);
}

// Given normals mirror the colour rules.
TEST(FaceSetEmit, GivenNormalsPerFaceInSequenceAndThroughTheIndex) {
    Cube cube;
    FaceSetView v = cube.view();
    v.normals = cube.colors.data();
    v.normalCount = 6;
    tst::MeshRecordingSink sink;
    ts::mesh::emitGivenNormalsFaceSet(v, sink);
    ASSERT_EQ(sink.calls.size(), 6u * 7u);
    EXPECT_EQ(sink.calls[7 + 1], "N" + colorNo(1).substr(1));
    const std::vector<int32_t> index = {3, 3, 3, 3, 3, 3};
    v.normalIndex = index.data();
    v.normalIndexCount = 6;
    tst::MeshRecordingSink indexed;
    ts::mesh::emitGivenNormalsFaceSet(v, indexed);
    EXPECT_EQ(indexed.calls[7 + 1], "N" + colorNo(3).substr(1));
}

TEST(FaceSetEmit, GivenNormalsPerVertexFollowTheOccurrences) {
    Cube cube;
    FaceSetView v = cube.view();
    v.normalPerVertex = true;
    v.normals = cube.colors.data();
    v.normalCount = 10;  // at least the coordinates; occurrences 10 .. 23 get none
    tst::MeshRecordingSink sink;
    ts::mesh::emitGivenNormalsFaceSet(v, sink);
    const auto nNo = [](int j) { return "N" + colorNo(j).substr(1); };
    EXPECT_EQ(Calls(sink.calls.begin(), sink.calls.begin() + 3), (Calls{"B9", nNo(0), corner(0)}));
    EXPECT_EQ(sink.calls[10 + 1], nNo(4));
    EXPECT_EQ(sink.calls[20 + 1], nNo(8));
    EXPECT_EQ(sink.calls[20 + 3], nNo(9));
    EXPECT_EQ(sink.calls[20 + 5], corner(5));  // occurrence 10 is beyond: no normal before it
}

TEST(FaceSetEmit, GivenNormalsPerVertexThroughTheIndex) {
    Cube cube;
    FaceSetView v = cube.view();
    std::vector<int32_t> index(cube.shape.index.size(), 2);
    index[1] = 11;  // beyond the normals: no call
    v.normalPerVertex = true;
    v.normals = cube.colors.data();
    v.normalCount = 8;
    v.normalIndex = index.data();
    v.normalIndexCount = int32_t(index.size());
    tst::MeshRecordingSink sink;
    ts::mesh::emitGivenNormalsFaceSet(v, sink);
    const std::string n2 = "N" + colorNo(2).substr(1);
    EXPECT_EQ(Calls(sink.calls.begin(), sink.calls.begin() + 5), (Calls{"B9", n2, corner(0), corner(2), n2}));
}

TEST(FaceSetEmit, EntriesThatNameNoCoordinateEmitNoVertex) {
    tst::Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    s.add({0, -5, 1, 2, 7});
    FaceSetView v;
    v.mesh = s.view();
    v.faceCount = 1;
    const Calls calls = faceted(v);
    EXPECT_EQ(calls, (Calls{"B9", N(0, 0, 1), V(0, 0, 0), V(1, 0, 0), V(0, 1, 0), "E"}));
}

TEST(FaceSetEmit, TheCompileStepChoosesTheForm) {
    Cube cube;
    FaceSetView v = cube.view();
    tst::MeshRecordingSink flat, smooth, given;
    EXPECT_TRUE(ts::mesh::emitFaceSet(v, false, 100.0f, flat));
    EXPECT_EQ(flat.calls, faceted(v));
    EXPECT_TRUE(ts::mesh::emitFaceSet(v, true, 100.0f, smooth));
    const float r = 1 / std::sqrt(3.0f);
    EXPECT_EQ(smooth.calls[1], N(-r, -r, -r));
    v.normals = cube.colors.data();
    v.normalCount = 6;
    EXPECT_TRUE(ts::mesh::emitFaceSet(v, true, 100.0f, given));
    EXPECT_EQ(given.calls[1], "N" + colorNo(0).substr(1));
    tst::MeshRecordingSink flatWithGiven;
    ts::mesh::emitFaceSet(v, false, 100.0f, flatWithGiven);
    EXPECT_EQ(flatWithGiven.calls, flat.calls);  // the faceted form ignores given normals
}

TEST(FaceSetEmit, AnEmptySetEmitsNothing) {
    FaceSetView v;
    tst::MeshRecordingSink sink;
    EXPECT_TRUE(ts::mesh::emitFaceSet(v, true, 30.0f, sink));
    EXPECT_TRUE(sink.calls.empty());
}

TEST(FaceSetEmit, CullingFollowsSolid) {
    using ts::mesh::CullChange;
    EXPECT_EQ(ts::mesh::cullChangeFor(true, false), CullChange::Enable);
    EXPECT_EQ(ts::mesh::cullChangeFor(true, true), CullChange::None);
    EXPECT_EQ(ts::mesh::cullChangeFor(false, true), CullChange::Disable);
    EXPECT_EQ(ts::mesh::cullChangeFor(false, false), CullChange::None);
}

}  // namespace
