// The indexed face set through the DLL, in a real window: faces drawn and left out, the
// culling around a mesh, the recompile on a shading switch, crease-angle shading across
// an edge, empty nodes after errors, and the node's own display list.
#include <windows.h>
#include <GL/gl.h>

#include <cstdlib>

#include "mesh_scene.h"
#include "support/msgbox_capture.h"

namespace {

using mt::Cube;
using mt::faceSet;

class FaceSetPixels : public mt::MeshScene {};

// A quad in the z = 0 plane wound clockwise as seen by the viewer: a back face.
cNode* backQuad(float cx, float half) {
    return snTetragon(nullptr, cx - half, -half, 0, cx - half, half, 0, cx + half, half, 0, cx + half, -half, 0);
}

const std::vector<float> kBackSquare = {-0.3f, -0.3f, 0, -0.3f, 0.3f, 0, 0.3f, 0.3f, 0, 0.3f, -0.3f, 0};
const std::vector<int> kOneFace = {0, 1, 2, 3, -1};

TEST_F(FaceSetPixels, TheCubeShowsItsLastFaceOnlyWithTheFinalMinusOne) {
    unlit();
    snColorRGB(nullptr, 0.0f, 1.0f, 0.0f);
    const Cube cube;
    cNode* mesh = faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    ASSERT_NE(mesh, nullptr);
    paint();
    EXPECT_EQ(at(0, 0, 0.5f), (tst::Rgb{0, 255, 0}));
    EXPECT_TRUE(background(0.9f, 0.0f));
    // Without the final -1 the front face is no face: through its hole the viewer sees
    // the inside of the back face, which a solid mesh culls.
    EXPECT_EQ(faceSet(mesh, cube.coords, cube.index, 29, TRUE), mesh);
    paint();
    EXPECT_TRUE(background(0, 0, 0.5f));
    // Not solid, the back face shows from inside.
    faceSet(mesh, cube.coords, cube.index, 29, FALSE);
    paint();
    EXPECT_EQ(at(0, 0, -0.5f), (tst::Rgb{0, 255, 0}));
}

TEST_F(FaceSetPixels, ANonSolidMeshTurnsCullingOffForItselfOnly) {
    unlit();
    snEnable(nullptr, TS_SWITCH_CULL_FACE);
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    backQuad(-1.2f, 0.3f);
    snColorRGB(nullptr, 0.0f, 1.0f, 0.0f);
    faceSet(nullptr, kBackSquare, kOneFace, 5, FALSE);
    snColorRGB(nullptr, 0.0f, 0.0f, 1.0f);
    backQuad(1.2f, 0.3f);
    paint();
    EXPECT_TRUE(background(-1.2f, 0.0f));                // before: culled
    EXPECT_EQ(at(0.0f, 0.0f), (tst::Rgb{0, 255, 0}));   // inside: drawn
    EXPECT_TRUE(background(1.2f, 0.0f));                 // after: culled again
    EXPECT_TRUE(glIsEnabled(GL_CULL_FACE));              // and left on
}

TEST_F(FaceSetPixels, ASolidMeshCullsForItselfOnlyWhenCullingIsOff) {
    unlit();
    cNode* culling = snDisable(nullptr, TS_SWITCH_CULL_FACE);
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    backQuad(-1.2f, 0.3f);
    cNode* mesh = faceSet(nullptr, kBackSquare, kOneFace, 5, TRUE);
    backQuad(1.2f, 0.3f);
    paint();
    EXPECT_EQ(at(-1.2f, 0.0f), (tst::Rgb{255, 0, 0}));
    EXPECT_TRUE(background(0.0f, 0.0f));
    EXPECT_EQ(at(1.2f, 0.0f), (tst::Rgb{255, 0, 0}));
    EXPECT_FALSE(glIsEnabled(GL_CULL_FACE));
    // The culling is set at every call of the list, whatever it was at the compile.
    snEnable(culling, TS_SWITCH_CULL_FACE);
    faceSet(mesh, kBackSquare, kOneFace, 5, FALSE);
    paint();
    EXPECT_TRUE(background(-1.2f, 0.0f));
    EXPECT_EQ(at(0.0f, 0.0f), (tst::Rgb{255, 0, 0}));
}

// The mesh keeps the current colour as it found it; its own colours stay inside.
TEST_F(FaceSetPixels, PerFaceColoursStayInsideTheMesh) {
    unlit();
    snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
    const std::vector<float> front = {-0.3f, -0.3f, 0, 0.3f, -0.3f, 0, 0.3f, 0.3f, 0, -0.3f, 0.3f, 0};
    const float blue[3] = {0, 0, 1};
    snIndexedFaceSet(nullptr, front.data(), 4, kOneFace.data(), 5, 0, TRUE, FALSE, blue, 1, nullptr, 0, FALSE,
                     nullptr, 0, nullptr, 0);
    snTetragon(nullptr, 0.9f, -0.3f, 0, 1.5f, -0.3f, 0, 1.5f, 0.3f, 0, 0.9f, 0.3f, 0);
    paint();
    EXPECT_EQ(at(0.0f, 0.0f), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(at(1.2f, 0.0f), (tst::Rgb{255, 0, 0}));
}

// Two faces folded 90 degrees along the y axis at x = 0 (ridge at z = 1), sharing the
// ridge's two points; light from (1, 0, 1). Face A (x < 0) faces (-1, 0, 1) and gets
// no diffuse light, face B faces the light. Ambient 0.3, diffuse 0.6.
class Ridge : public mt::MeshScene {
protected:
    void SetUp() override {
        float direction[3] = {1.0f, 0.0f, 1.0f};
        smLightDirection(0, 1, 1, direction);
        snColorRGB(nullptr, 1.0f, 1.0f, 1.0f);
    }
    cNode* ridge(float creaseAngle) {
        const std::vector<float> points = {-1, -1, 0, 0, -1, 1, 0, 1, 1, -1, 1, 0, 1, -1, 0, 1, 1, 0};
        const std::vector<int> faces = {0, 1, 2, 3, -1, 1, 4, 5, 2, -1};
        return faceSet(nullptr, points, faces, 10, TRUE, creaseAngle);
    }
    // Brightness on the ridge's faces at x (z follows the fold).
    int lum(float x) const { return at(x, 0.0f, 1.0f - std::abs(x)).r; }
};

TEST_F(Ridge, FlatShadingStepsAtTheEdge) {
    smShadeMode(TS_SHADE_FLAT);
    ridge(100.0f);
    paint();
    EXPECT_NEAR(lum(-0.8f), 77, 4);
    EXPECT_NEAR(lum(-0.1f), 77, 4);
    EXPECT_NEAR(lum(0.1f), 230, 6);
    EXPECT_NEAR(lum(0.8f), 230, 6);
}

// Above the crease angle the ridge takes the mean of both faces: A brightens towards
// it, B darkens towards it, and the two meet without a step.
TEST_F(Ridge, SmoothShadingOverAnEdgeWithinTheCreaseAngle) {
    smShadeMode(TS_SHADE_SMOOTH);
    ridge(100.0f);
    paint();
    EXPECT_LT(lum(-0.8f) + 40, lum(-0.2f));
    EXPECT_NEAR(lum(-0.03f), 185, 8);
    EXPECT_NEAR(lum(0.03f), 185, 8);
    EXPECT_LT(lum(0.1f) + 15, lum(0.9f));
}

// Beyond it the ridge points take the normal of their first face, A: A stays even, and
// B shades from A's brightness at the ridge to its own.
TEST_F(Ridge, ACreaseKeepsTheFirstFacesNormalOnTheEdge) {
    smShadeMode(TS_SHADE_SMOOTH);
    ridge(30.0f);
    paint();
    EXPECT_NEAR(lum(-0.8f), 77, 4);
    EXPECT_NEAR(lum(-0.1f), 77, 4);
    EXPECT_NEAR(lum(0.05f), 85, 10);
    EXPECT_NEAR(lum(0.95f), 222, 10);
}

TEST_F(Ridge, ASwitchOfTheShadingModeRecompilesAtTheNextFrame) {
    smShadeMode(TS_SHADE_FLAT);
    ridge(100.0f);
    paint();
    EXPECT_GT(lum(0.05f) - lum(-0.05f), 120);
    smShadeMode(TS_SHADE_SMOOTH);
    paint();
    EXPECT_LT(std::abs(lum(0.05f) - lum(-0.05f)), 15);
    smShadeMode(TS_SHADE_FLAT);
    paint();
    EXPECT_GT(lum(0.05f) - lum(-0.05f), 120);
}

// Given normals replace the computed ones in the smooth mode, per vertex in sequence:
// all pointing at the light, both faces are fully lit.
TEST_F(Ridge, GivenNormalsTakeThePlaceOfTheCreaseNormals) {
    smShadeMode(TS_SHADE_SMOOTH);
    const std::vector<float> points = {-1, -1, 0, 0, -1, 1, 0, 1, 1, -1, 1, 0, 1, -1, 0, 1, 1, 0};
    const std::vector<int> faces = {0, 1, 2, 3, -1, 1, 4, 5, 2, -1};
    std::vector<float> normals;
    for (int k = 0; k < 8; ++k) normals.insert(normals.end(), {0.70710678f, 0.0f, 0.70710678f});
    snIndexedFaceSet(nullptr, points.data(), 6, faces.data(), 10, 30.0f, TRUE, FALSE, nullptr, 0, nullptr, 0, TRUE,
                     normals.data(), 8, nullptr, 0);
    paint();
    EXPECT_NEAR(lum(-0.5f), 230, 6);
    EXPECT_NEAR(lum(0.5f), 230, 6);
}

TEST_F(FaceSetPixels, AnErrorLeavesTheNodeInTheSceneEmpty) {
    unlit();
    snColorRGB(nullptr, 0.0f, 1.0f, 0.0f);
    const Cube cube;
    cNode* mesh = faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    paint();
    ASSERT_EQ(at(0, 0, 0.5f), (tst::Rgb{0, 255, 0}));
    tst::MessageBoxCapture capture;
    std::vector<int> bad = cube.index;
    bad[0] = 8;
    EXPECT_EQ(faceSet(mesh, cube.coords, bad, 30, TRUE), mesh);
    ASSERT_TRUE(capture.waitFor(1));
    paint();
    EXPECT_TRUE(background(0, 0, 0.5f));
    // The node is still there: a good edit brings the cube back.
    EXPECT_EQ(faceSet(mesh, cube.coords, cube.index, 30, TRUE), mesh);
    paint();
    EXPECT_EQ(at(0, 0, 0.5f), (tst::Rgb{0, 255, 0}));
    EXPECT_EQ(capture.count(), 1u);
    EXPECT_EQ(snBox(mesh, 0, 0, 0, 1, 1, 1, 100020), nullptr);  // another class: no edit
}

TEST_F(FaceSetPixels, TheNodeCopiesTheCallersArrays) {
    unlit();
    snColorRGB(nullptr, 0.0f, 1.0f, 0.0f);
    Cube cube;
    faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    for (float& c : cube.coords) c *= 0.1f;
    cube.index.assign(cube.index.size(), -1);
    paint();
    EXPECT_EQ(at(0.4f, 0.4f, 0.5f), (tst::Rgb{0, 255, 0}));
}

// The scene's own list keeps a mesh's geometry: after smUseDisplayList the mesh still
// shows when its node is gone, until the scene's list is compiled again.
TEST_F(FaceSetPixels, TheScenesDisplayListHoldsTheMeshItself) {
    unlit();
    snColorRGB(nullptr, 0.0f, 1.0f, 0.0f);
    const Cube cube;
    cNode* mesh = faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    smUseDisplayList();
    paint();
    EXPECT_EQ(at(0, 0, 0.5f), (tst::Rgb{0, 255, 0}));
    EXPECT_EQ(smDelNode(mesh), nullptr);
    paint();
    EXPECT_EQ(at(0, 0, 0.5f), (tst::Rgb{0, 255, 0}));
    smUseDisplayList();
    paint();
    EXPECT_TRUE(background(0, 0, 0.5f));
}

class OwnList : public mt::MeshScene {};

TEST_F(OwnList, IsNamedByTheHandleAndDeletedWithTheNode) {
    snColorRGB(nullptr, 1.0f, 1.0f, 1.0f);
    const Cube cube;
    cNode* mesh = faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    const GLuint name = mt::listName(mesh);
#ifdef _WIN64
    EXPECT_EQ(name & 0x80000000u, 0x80000000u);
#else
    EXPECT_EQ(name, static_cast<GLuint>(reinterpret_cast<uintptr_t>(mesh)));
#endif
    EXPECT_FALSE(glIsList(name));  // compiled at the first drawing
    paint();
    EXPECT_TRUE(glIsList(name));
#ifdef _WIN64
    EXPECT_FALSE(glIsList(name & 0x7FFFFFFFu));
#endif
    // An edit on the drawing thread drops the list; the next drawing makes it again.
    faceSet(mesh, cube.coords, cube.index, 30, FALSE);
    EXPECT_FALSE(glIsList(name));
    paint();
    EXPECT_TRUE(glIsList(name));
    EXPECT_EQ(smDelNode(mesh), nullptr);  // the tail (the colour node is first)
    EXPECT_FALSE(glIsList(name));
}

TEST_F(OwnList, ClearingTheSceneDeletesTheLists) {
    const Cube cube;
    cNode* a = faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    const float heights[4] = {0, 0, 0, 0};
    cNode* b = snElevationGrid(nullptr, 2, 2, 1, 1, heights, 0, TRUE, FALSE, nullptr, FALSE, nullptr);
    paint();
    const GLuint names[2] = {mt::listName(a), mt::listName(b)};
    EXPECT_TRUE(glIsList(names[0]) && glIsList(names[1]));
    EXPECT_EQ(smClearScene(), 1);
    EXPECT_FALSE(glIsList(names[0]) || glIsList(names[1]));
}

}  // namespace
