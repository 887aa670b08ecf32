// On 32-bit Windows a node handle is the node's address, and programs built for it read
// a mesh's record at fixed offsets: the fields as the DLL really wrote them, before and
// after the first drawing.
#include <windows.h>

#include <cstdint>
#include <cstring>

#include "mesh_scene.h"

namespace {

#ifndef _WIN64

template <class T>
T field(const void* node, size_t offset) {
    T value;
    std::memcpy(&value, static_cast<const unsigned char*>(node) + offset, sizeof(T));
    return value;
}

class MeshLayout : public mt::MeshScene {};

TEST_F(MeshLayout, TheFaceSetRecordSitsAtItsClassicOffsets) {
    const mt::Cube cube;
    const std::vector<float> colors(18, 0.5f);
    const int colorIndex[6] = {0, 1, 2, 3, 4, 5};
    cNode* n = snIndexedFaceSet(nullptr, cube.coords.data(), 8, cube.index.data(), 30, 30.0f, TRUE, FALSE,
                                colors.data(), 6, colorIndex, 6, FALSE, nullptr, 0, nullptr, 0);
    EXPECT_EQ(field<int32_t>(n, 4), TS_CLASS_INDEXEDFACESET3D);
    EXPECT_EQ(field<const float*>(n, 12)[3], 0.5f);  // coords: point 1 is (0.5, -0.5, -0.5)
    EXPECT_NE(field<const float*>(n, 12), cube.coords.data());
    EXPECT_EQ(field<int32_t>(n, 16), 8);             // coordCount
    EXPECT_EQ(field<const int32_t*>(n, 20)[1], 3);   // coordIndex
    EXPECT_EQ(field<int32_t>(n, 24), 30);            // coordIndexCount
    EXPECT_EQ(field<int32_t>(n, 28), 6);             // faceCount
    EXPECT_EQ(field<int32_t>(n, 32), 0);             // colorPerVertex
    EXPECT_EQ(field<const float*>(n, 36)[17], 0.5f);  // colors
    EXPECT_EQ(field<int32_t>(n, 40), 6);             // colorCount
    EXPECT_EQ(field<const int32_t*>(n, 44)[5], 5);   // colorIndex
    EXPECT_EQ(field<int32_t>(n, 48), 6);             // colorIndexCount
    EXPECT_EQ(field<int32_t>(n, 52), 0);             // normalPerVertex
    EXPECT_EQ(field<const float*>(n, 56), nullptr);  // normals
    EXPECT_EQ(field<int32_t>(n, 60), 0);             // normalCount
    EXPECT_EQ(field<const int32_t*>(n, 64), nullptr);  // normalIndex
    EXPECT_EQ(field<int32_t>(n, 68), 0);             // normalIndexCount
    EXPECT_EQ(field<int32_t>(n, 72), 1);             // solid
    EXPECT_EQ(field<float>(n, 76), 30.0f);           // creaseAngle
    EXPECT_EQ(field<uint32_t>(n, 80), static_cast<uint32_t>(reinterpret_cast<uintptr_t>(n)));  // listName
    EXPECT_EQ(field<int32_t>(n, 84), 0);             // compiledFor: nothing compiled yet
    smShadeMode(TS_SHADE_FLAT);
    paint();
    EXPECT_EQ(field<int32_t>(n, 84), TS_SHADE_FLAT);
    smShadeMode(TS_SHADE_SMOOTH);
    paint();
    EXPECT_EQ(field<int32_t>(n, 84), TS_SHADE_SMOOTH);
}

TEST_F(MeshLayout, TheGridRecordSitsAtItsClassicOffsets) {
    const float heights[6] = {0, 1, 2, 3, 4, 5};
    const float colors[6] = {1, 0, 0, 0, 1, 0};
    cNode* n = snElevationGrid(nullptr, 3, 2, 0.5f, 0.25f, heights, 45.0f, FALSE, FALSE, colors, FALSE, nullptr);
    EXPECT_EQ(field<int32_t>(n, 4), TS_CLASS_ELEVATIONGRID3D);
    EXPECT_EQ(field<int32_t>(n, 12), 3);              // xDimension
    EXPECT_EQ(field<int32_t>(n, 16), 2);              // zDimension
    EXPECT_EQ(field<float>(n, 20), 0.5f);             // xSpacing
    EXPECT_EQ(field<float>(n, 24), 0.25f);            // zSpacing
    EXPECT_EQ(field<const float*>(n, 28)[5], 5.0f);   // heights
    EXPECT_EQ(field<int32_t>(n, 32), 0);              // triangleCount: set when compiled
    EXPECT_EQ(field<int32_t>(n, 36), 6);              // pointCount
    EXPECT_EQ(field<int32_t>(n, 40), 0);              // colorPerVertex
    EXPECT_EQ(field<const float*>(n, 44)[4], 1.0f);   // colors: one triple per cell
    EXPECT_EQ(field<int32_t>(n, 48), 0);              // normalPerVertex
    EXPECT_EQ(field<const float*>(n, 52), nullptr);   // normals
    EXPECT_EQ(field<float>(n, 56), 45.0f);            // creaseAngle
    EXPECT_EQ(field<int32_t>(n, 60), 0);              // solid
    EXPECT_EQ(field<uint32_t>(n, 64), static_cast<uint32_t>(reinterpret_cast<uintptr_t>(n)));  // listName
    EXPECT_EQ(field<int32_t>(n, 68), 0);              // compiledFor
    smShadeMode(TS_SHADE_SMOOTH);
    paint();
    EXPECT_EQ(field<int32_t>(n, 32), 4);
    EXPECT_EQ(field<int32_t>(n, 68), TS_SHADE_SMOOTH);
}

#endif

}  // namespace
