// Shared pieces of the mesh node tests through the DLL: a hosted scene with a known
// camera, world points mapped to window pixels, the test meshes, arrays that end at an
// inaccessible page, and a node's list name as the header documents it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "support/host_window.h"
#include "tessarin.h"

namespace mt {

constexpr int kSize = 200;  // the scene window's client area is kSize x kSize

// A scene hosted on the test thread (the direct path: the test thread draws it and
// its OpenGL context is current here after a paint), eye at (0, 0, 5) looking down -z,
// perspective 45 degrees.
class MeshScene : public ::testing::Test {
protected:
    MeshScene();
    // Runs two passes: switch nodes drawn in the first take effect in the second.
    void paint();
    // The pixel where the world point (x, y, z) shows, after paint().
    tst::Rgb at(float x, float y, float z = 0.0f) const;
    // The scene's background (black) at that point.
    bool background(float x, float y, float z = 0.0f) const { return at(x, y, z) == tst::Rgb{}; }
    // Lighting off: nodes show their colour as it is.
    void unlit() { snDisable(nullptr, TS_SWITCH_LIGHTING); }

    tst::HostWindow host{"Mesh test", kSize, kSize};
};

// The window pixel of a world point under MeshScene's camera, in a client area of
// width x height (kSize x kSize by default).
POINT project(float x, float y, float z, int width = kSize, int height = kSize);

// The unit cube around the origin: 8 points, 6 quads counter-clockwise seen from
// outside, the front face (+z) last, each closed by -1.
struct Cube {
    std::vector<float> coords;
    std::vector<int> index;
    Cube();
};

// snIndexedFaceSet with coordinates and index only.
cNode* faceSet(cNode* node, const std::vector<float>& coords, const std::vector<int>& index, int indexCount,
               BOOL solid, float creaseAngle = 0.0f);

// count floats whose last one lies at the end of a readable page followed by an
// inaccessible one: reading one float more faults. Never freed (a test's lifetime).
float* floatsBeforeGuardPage(const std::vector<float>& values);

// The 32-bit selection name the library gave node (found through tsNodeFromName).
uint32_t selectionName(cNode* node);
// The name of node's own display list as the header documents it.
uint32_t listName(cNode* node);

}  // namespace mt
