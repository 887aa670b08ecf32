// The indexed face set's parameter checks: every message, in order, the first error
// stopping the rest and leaving the node empty.
#include "tsobj3d/mesh/face_set_params.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "mesh_shapes.h"

namespace {

using ts::mesh::FaceSetArgs;
using ts::mesh::FaceSetData;

// The unit cube with 6 faces, and room for colours and normals of every count used.
struct CubeArgs {
    tst::Shape cube = tst::unitCube();
    std::vector<float> triples = std::vector<float>(3 * 64, 0.5f);
    std::vector<int32_t> perFace = {0, 1, 2, 3, 4, 5};
    std::vector<int32_t> perVertex;
    FaceSetArgs args;

    CubeArgs(const CubeArgs&) = delete;
    CubeArgs& operator=(const CubeArgs&) = delete;
    CubeArgs() {
        for (int32_t i : cube.index) perVertex.push_back(i < 0 ? -1 : i);
        args.coord = cube.coords.data();
        args.coordCount = 8;
        args.coordIndex = cube.index.data();
        args.coordIndexCount = int32_t(cube.index.size());
    }
    void colors(int32_t count, const std::vector<int32_t>* index, bool perVertexColors) {
        args.color = triples.data();
        args.colorCount = count;
        args.colorPerVertex = perVertexColors;
        args.colorIndex = index ? index->data() : nullptr;
        args.colorIndexCount = index ? int32_t(index->size()) : 0;
    }
    void normals(int32_t count, const std::vector<int32_t>* index, bool perVertexNormals) {
        args.normal = triples.data();
        args.normalCount = count;
        args.normalPerVertex = perVertexNormals;
        args.normalIndex = index ? index->data() : nullptr;
        args.normalIndexCount = index ? int32_t(index->size()) : 0;
    }
    std::string set(FaceSetData& data) const {
        const char* error = ts::mesh::setFaceSet(args, data);
        return error ? error : "";
    }
    std::string set() const {
        FaceSetData data;
        return set(data);
    }
};

void expectEmpty(const FaceSetData& d) {
    EXPECT_TRUE(!d.coords && !d.coordIndex && !d.colors && !d.colorIndex && !d.normals && !d.normalIndex);
    EXPECT_EQ(d.coordCount + d.coordIndexCount + d.colorCount + d.colorIndexCount, 0);
    EXPECT_EQ(d.normalCount + d.normalIndexCount + d.colorPerVertex + d.normalPerVertex, 0);
    EXPECT_EQ(d.faceCount, 0);
}

TEST(FaceSetParams, TheCubeWithAFinalEndHasSixFacesAndKeepsCopies) {
    CubeArgs c;
    FaceSetData data;
    EXPECT_EQ(c.set(data), "");
    EXPECT_EQ(data.faceCount, 6);
    EXPECT_EQ(std::vector<float>(data.coords.get(), data.coords.get() + 3 * data.coordCount), c.cube.coords);
    EXPECT_EQ(std::vector<int32_t>(data.coordIndex.get(), data.coordIndex.get() + data.coordIndexCount), c.cube.index);
    EXPECT_NE(data.coords.get(), c.cube.coords.data());
}

TEST(FaceSetParams, WithoutTheFinalEndTheLastFaceIsNotCounted) {
    CubeArgs c;
    c.args.coordIndexCount -= 1;
    FaceSetData data;
    EXPECT_EQ(c.set(data), "");
    EXPECT_EQ(data.faceCount, 5);
}

TEST(FaceSetParams, MissingCoordinatesOrIndicesAreInvalid) {
    for (int which = 0; which < 4; ++which) {
        CubeArgs c;
        c.colors(5, nullptr, false);  // a later error that must not show
        if (which == 0) c.args.coord = nullptr;
        if (which == 1) c.args.coordCount = 0;
        if (which == 2) c.args.coordIndex = nullptr;
        if (which == 3) c.args.coordIndexCount = 0;
        EXPECT_EQ(c.set(), "Invalid input parameter") << which;
    }
}

TEST(FaceSetParams, AnIndexEqualToTheCoordCountIsRejected) {
    CubeArgs c;
    c.cube.index[5] = 8;
    c.colors(5, nullptr, false);
    FaceSetData data;
    EXPECT_EQ(c.set(data), "Coord index > number of coords");
    expectEmpty(data);
}

TEST(FaceSetParams, NegativeIndicesOtherThanTheEndPass) {
    CubeArgs c;
    c.cube.index[1] = -7;
    FaceSetData data;
    EXPECT_EQ(c.set(data), "");
    EXPECT_EQ(data.faceCount, 6);
}

TEST(FaceSetParams, NegativeCountsAreAllocationFailures) {
    auto fails = [](void (*spoil)(CubeArgs&)) {
        CubeArgs c;
        spoil(c);
        return c.set();
    };
    EXPECT_EQ(fails([](CubeArgs& c) { c.args.coordCount = -1; }), "Allocation of array ver failed");
    EXPECT_EQ(fails([](CubeArgs& c) { c.args.coordIndexCount = -3; }), "Allocation of array veri failed");
    EXPECT_EQ(fails([](CubeArgs& c) { c.colors(-6, nullptr, false); }), "Allocation of array col failed");
    EXPECT_EQ(fails([](CubeArgs& c) {
        c.colors(6, &c.perFace, false);
        c.args.colorIndexCount = -6;
    }), "Allocation of array coli failed");
    EXPECT_EQ(fails([](CubeArgs& c) { c.normals(-6, nullptr, false); }), "Allocation of normal array failed");
    EXPECT_EQ(fails([](CubeArgs& c) {
        c.normals(6, &c.perFace, false);
        c.args.normalIndexCount = -6;
    }), "Allocation of array nori failed");
}

TEST(FaceSetParams, PerFaceColoursWithoutIndexMustMatchTheFaces) {
    CubeArgs c;
    c.colors(5, nullptr, false);
    FaceSetData data;
    EXPECT_EQ(c.set(data), "Number of colors <> number of faces");
    expectEmpty(data);
    c.colors(6, nullptr, false);
    EXPECT_EQ(c.set(data), "");
    EXPECT_EQ(data.colorCount, 6);
    EXPECT_FALSE(data.colorPerVertex);
}

TEST(FaceSetParams, PerVertexColoursWithoutIndexMustMatchTheCoordinates) {
    CubeArgs c;
    c.colors(9, nullptr, true);
    EXPECT_EQ(c.set(), "Number of colors <> number of vertices");
    c.colors(7, nullptr, true);
    EXPECT_EQ(c.set(), "Number of colors <> number of vertices");
    c.colors(8, nullptr, true);
    EXPECT_EQ(c.set(), "");
}

TEST(FaceSetParams, ColourIndexCountsAndValues) {
    CubeArgs c;
    std::vector<int32_t> shortIndex(c.perVertex.begin(), c.perVertex.end() - 1);
    c.colors(8, &shortIndex, true);
    EXPECT_EQ(c.set(), "NO. of color indexes <> NO. of coord. indexes");
    std::vector<int32_t> fiveFaces = {0, 1, 2, 3, 4};
    c.colors(6, &fiveFaces, false);
    EXPECT_EQ(c.set(), "NO. of colors <> NO. of faces");
    std::vector<int32_t> tooHigh = {0, 1, 2, 3, 4, 6};
    c.colors(6, &tooHigh, false);
    EXPECT_EQ(c.set(), "Color index > NO. of colors");
    c.perVertex[3] = 8;
    c.colors(8, &c.perVertex, true);
    EXPECT_EQ(c.set(), "Color index > NO. of colors");
    c.perVertex[3] = -4;  // negative colour indices pass
    c.colors(8, &c.perVertex, true);
    FaceSetData data;
    EXPECT_EQ(c.set(data), "");
    EXPECT_EQ(std::vector<int32_t>(data.colorIndex.get(), data.colorIndex.get() + data.colorIndexCount), c.perVertex);
}

TEST(FaceSetParams, AnIndexedColourCountNeedNotMatchAnything) {
    CubeArgs c;
    c.perFace = {0, 1, 0, 1, 0, 1};
    c.colors(2, &c.perFace, false);
    EXPECT_EQ(c.set(), "");
}

TEST(FaceSetParams, AColourIndexWithoutCountIsNoIndex) {
    CubeArgs c;
    c.colors(5, &c.perFace, false);
    c.args.colorIndexCount = 0;
    EXPECT_EQ(c.set(), "Number of colors <> number of faces");
}

TEST(FaceSetParams, ColoursWithoutCountOrArrayAreNoColours) {
    CubeArgs c;
    c.colors(0, nullptr, false);
    FaceSetData data;
    EXPECT_EQ(c.set(data), "");
    EXPECT_FALSE(data.colors);
    c.colors(5, nullptr, false);
    c.args.color = nullptr;
    EXPECT_EQ(c.set(data), "");
    EXPECT_FALSE(data.colors);
}

TEST(FaceSetParams, NormalMessages) {
    CubeArgs c;
    c.normals(5, nullptr, false);
    EXPECT_EQ(c.set(), "Number of normals <> number of faces");
    c.normals(7, nullptr, true);
    EXPECT_EQ(c.set(), "Number of normals <> number of vertices");
    std::vector<int32_t> shortIndex(c.perVertex.begin(), c.perVertex.end() - 1);
    c.normals(8, &shortIndex, true);
    EXPECT_EQ(c.set(), "NO. of normal indexes <> NO. of coord. indexes");
    std::vector<int32_t> sevenFaces = {0, 1, 2, 3, 4, 5, 0};
    c.normals(6, &sevenFaces, false);
    EXPECT_EQ(c.set(), "NO. of normals <> NO. of faces");
    std::vector<int32_t> tooHigh = {0, 1, 2, 9, 4, 5};
    c.normals(9, &tooHigh, false);
    EXPECT_EQ(c.set(), "Normal index > number of normals");
}

// Unlike the colours, per-vertex normals without an index may outnumber the coordinates.
TEST(FaceSetParams, PerVertexNormalsMayOutnumberTheCoordinates) {
    CubeArgs c;
    c.normals(24, nullptr, true);
    FaceSetData data;
    EXPECT_EQ(c.set(data), "");
    EXPECT_EQ(data.normalCount, 24);
    EXPECT_TRUE(data.normalPerVertex);
    c.colors(24, nullptr, true);
    EXPECT_EQ(c.set(), "Number of colors <> number of vertices");
}

TEST(FaceSetParams, TheFirstErrorStopsTheRest) {
    CubeArgs c;
    c.cube.index[0] = 100;
    c.colors(5, nullptr, false);
    c.normals(5, nullptr, false);
    EXPECT_EQ(c.set(), "Coord index > number of coords");
    c.cube.index[0] = 0;
    EXPECT_EQ(c.set(), "Number of colors <> number of faces");
    c.colors(6, nullptr, false);
    EXPECT_EQ(c.set(), "Number of normals <> number of faces");
    // Within the colours the count test comes before the index values.
    std::vector<int32_t> badBoth = {9, 9, 9, 9, 9};
    c.colors(6, &badBoth, false);
    EXPECT_EQ(c.set(), "NO. of colors <> NO. of faces");
}

TEST(FaceSetParams, ASecondSetReplacesEverythingAndAnErrorEmptiesTheNode) {
    CubeArgs c;
    c.colors(6, nullptr, false);
    c.normals(6, nullptr, false);
    FaceSetData data;
    ASSERT_EQ(c.set(data), "");
    ASSERT_TRUE(data.normals);
    CubeArgs plain;
    EXPECT_EQ(plain.set(data), "");
    EXPECT_FALSE(data.colors);
    EXPECT_FALSE(data.normals);
    plain.args.coordCount = 0;
    EXPECT_EQ(plain.set(data), "Invalid input parameter");
    expectEmpty(data);
    EXPECT_EQ(data.view().mesh.coordCount, 0);
}

TEST(FaceSetParams, TheViewDescribesTheCopies) {
    CubeArgs c;
    c.colors(8, &c.perVertex, true);
    FaceSetData data;
    ASSERT_EQ(c.set(data), "");
    const ts::mesh::FaceSetView v = data.view();
    EXPECT_EQ(v.mesh.coordCount, 8);
    EXPECT_EQ(v.mesh.coordIndexCount, 30);
    EXPECT_EQ(v.faceCount, 6);
    EXPECT_EQ(v.colorCount, 8);
    EXPECT_EQ(v.colorIndexCount, 30);
    EXPECT_TRUE(v.colorPerVertex);
    EXPECT_EQ(v.normals, nullptr);
    EXPECT_EQ(v.normalIndex, nullptr);
}

}  // namespace
