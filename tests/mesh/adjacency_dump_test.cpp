// The adjacency dump: its text for a closed and an open ring, and that it is off.
#include "tsobj3d/mesh/adjacency_dump.h"

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include "mesh_shapes.h"

namespace {

std::string dumped(const tst::Shape& s) {
    std::FILE* file = std::tmpfile();
    EXPECT_NE(file, nullptr);
    EXPECT_TRUE(ts::mesh::dumpAdjacency(s.view(), file));
    std::string text(size_t(std::ftell(file)), '\0');
    std::rewind(file);
    EXPECT_EQ(std::fread(text.data(), 1, text.size(), file), text.size());
    std::fclose(file);
    return text;
}

// Each cube corner has three faces in a closed ring, walked from its first face across
// the edge that follows the corner in that face.
TEST(AdjacencyDump, CubeRingsAreClosed) {
    const std::string text = dumped(tst::unitCube());
    EXPECT_EQ(text.rfind("\nface[0] = 0 2 3 1 \nface[1] = 4 5 7 6 ", 0), 0u);
    EXPECT_NE(text.find("\nface[5] = 1 3 7 5 \nvertex[0] = 0 4 2  - closed"), std::string::npos);
    EXPECT_NE(text.find("\nvertex[7] = 1 3 5  - closed\n"), std::string::npos);
}

// A fan that stops at a border: the ring is ordered from one border to the other.
TEST(AdjacencyDump, OpenFanRingIsOrderedAndOpen) {
    tst::Shape s;
    s.coords = {0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 0, 0, 0, 0, -1, 7, 7, 7};
    s.add({0, 1, 2});
    s.add({0, 2, 3});
    s.add({0, 3, 4});
    const std::string text = dumped(s);
    EXPECT_NE(text.find("\nvertex[0] = 2 1 0 \n"), std::string::npos);
    EXPECT_NE(text.find("\nvertex[2] = 0 1 \n"), std::string::npos);
    EXPECT_NE(text.find("\nvertex[5] = \n"), std::string::npos);
    EXPECT_EQ(text.find("closed"), std::string::npos);
}

TEST(AdjacencyDump, IsSwitchedOff) {
    EXPECT_FALSE(ts::mesh::kAdjacencyDumpOn);
    testing::internal::CaptureStdout();
    ts::mesh::dumpAdjacencyIfOn(tst::unitCube().view());
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

}  // namespace
