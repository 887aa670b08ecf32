// The mesh nodes' records with the library linked in: the fields in the order and at
// the offsets of the 32-bit layout, the counts after a set, the list name field, and
// the assertion that no list of the node's name exists when it is set.
#include <windows.h>
#include <GL/gl.h>

#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/host_window.h"
#include "tsobj3d/visible/celevationgrid3d.h"
#include "tsobj3d/visible/cindexedfaceset3d.h"

namespace {

template <class Node, class Field>
ptrdiff_t offsetIn(const Node& node, const Field& field) {
    return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(static_cast<const cNode*>(&node));
}

// The 32-bit record: 4-byte words after the 12 bytes of cNode; on Win64 the same order.
TEST(MeshRecord, FaceSetFieldsInOrder) {
    const cIndexedFaceSet3D n;
    const std::vector<ptrdiff_t> offsets = {
        offsetIn(n, n.coords),          offsetIn(n, n.coordCount),      offsetIn(n, n.coordIndex),
        offsetIn(n, n.coordIndexCount), offsetIn(n, n.faceCount),       offsetIn(n, n.colorPerVertex),
        offsetIn(n, n.colors),          offsetIn(n, n.colorCount),      offsetIn(n, n.colorIndex),
        offsetIn(n, n.colorIndexCount), offsetIn(n, n.normalPerVertex), offsetIn(n, n.normals),
        offsetIn(n, n.normalCount),     offsetIn(n, n.normalIndex),     offsetIn(n, n.normalIndexCount),
        offsetIn(n, n.solid),           offsetIn(n, n.creaseAngle),     offsetIn(n, n.listName),
        offsetIn(n, n.compiledFor)};
    for (size_t k = 1; k < offsets.size(); ++k) EXPECT_LT(offsets[k - 1], offsets[k]) << k;
#ifndef _WIN64
    for (size_t k = 0; k < offsets.size(); ++k) EXPECT_EQ(offsets[k], ptrdiff_t(12 + 4 * k)) << k;
    EXPECT_EQ(sizeof(cIndexedFaceSet3D), 88u);
#endif
    EXPECT_EQ(n.type, 1008);
}

TEST(MeshRecord, GridFieldsInOrder) {
    const cElevationGrid3D n;
    const std::vector<ptrdiff_t> offsets = {
        offsetIn(n, n.xDimension),    offsetIn(n, n.zDimension),     offsetIn(n, n.xSpacing),
        offsetIn(n, n.zSpacing),      offsetIn(n, n.heights),        offsetIn(n, n.triangleCount),
        offsetIn(n, n.pointCount),    offsetIn(n, n.colorPerVertex), offsetIn(n, n.colors),
        offsetIn(n, n.normalPerVertex), offsetIn(n, n.normals),      offsetIn(n, n.creaseAngle),
        offsetIn(n, n.solid),         offsetIn(n, n.listName),       offsetIn(n, n.compiledFor)};
    for (size_t k = 1; k < offsets.size(); ++k) EXPECT_LT(offsets[k - 1], offsets[k]) << k;
#ifndef _WIN64
    for (size_t k = 0; k < offsets.size(); ++k) EXPECT_EQ(offsets[k], ptrdiff_t(12 + 4 * k)) << k;
    EXPECT_EQ(sizeof(cElevationGrid3D), 72u);
#endif
    EXPECT_EQ(n.type, 1006);
}

const std::vector<float> kCube = {-1, -1, -1, 1, -1, -1, 1, 1, -1, -1, 1, -1, -1, -1, 1, 1, -1, 1, 1, 1, 1, -1, 1, 1};
const std::vector<int32_t> kFaces = {0, 3, 2, 1, -1, 0, 1, 5, 4, -1, 0, 4, 7, 3, -1,
                                     1, 2, 6, 5, -1, 3, 7, 6, 2, -1, 4, 5, 6, 7, -1};

ts::mesh::FaceSetArgs cubeArgs(int32_t indexCount) {
    ts::mesh::FaceSetArgs a;
    a.coord = kCube.data();
    a.coordCount = 8;
    a.coordIndex = kFaces.data();
    a.coordIndexCount = indexCount;
    return a;
}

TEST(MeshRecord, SetFillsTheCountsAndTheListName) {
    cIndexedFaceSet3D n;
    n.set(cubeArgs(30), 45.0f, 1);
    EXPECT_EQ(n.faceCount, 6);
    EXPECT_EQ(n.coordCount, 8);
    EXPECT_EQ(n.coordIndexCount, 30);
    EXPECT_EQ(n.solid, 1);
    EXPECT_EQ(n.creaseAngle, 45.0f);
    EXPECT_EQ(n.listName, n.ownListName());
    EXPECT_EQ(n.compiledFor, 0);
    n.set(cubeArgs(29), 45.0f, 0);  // without the final -1: five faces
    EXPECT_EQ(n.faceCount, 5);
    cElevationGrid3D g;
    const std::vector<float> heights(12, 0.0f);
    ts::mesh::GridArgs a;
    a.xDimension = 4;
    a.zDimension = 3;
    a.xSpacing = a.zSpacing = 1;
    a.height = heights.data();
    g.set(a, 30.0f, 1);
    EXPECT_EQ(g.pointCount, 12);
    EXPECT_EQ(g.listName, g.ownListName());
#ifdef _WIN64
    EXPECT_EQ(g.listName, g.glName() | 0x80000000u);
#else
    EXPECT_EQ(g.listName, static_cast<uint32_t>(reinterpret_cast<uintptr_t>(&g)));
#endif
}

// A list of the node's name in the current context at a set is a broken invariant.
TST_SCENARIO(StaleListOfTheNodesName) {
    tst::HostWindow host;  // its context is current on this thread after the first paint
    InvalidateRect(host.hwnd, nullptr, FALSE);
    UpdateWindow(host.hwnd);
    auto* n = new cIndexedFaceSet3D;
    glNewList(n->ownListName(), GL_COMPILE);
    glEndList();
    n->set(cubeArgs(30), 0.0f, 1);
}

TEST(MeshRecord, ASetAssertsThatNoListOfItsNameExists) {
    const tst::ChildResult r = tst::runScenario("StaleListOfTheNodesName");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("!glIsList(IndexedFaceSetList)"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("..\\source\\tsobj3d\\visible\\cindexedfaceset3d.cpp"), std::string::npos) << r.output;
}

}  // namespace
