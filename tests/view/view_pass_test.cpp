// The rendering pass on a hosted scene: background and 2D over it, the shade-mode
// switches, the orthogonal zoom, picking, frame time and the idle/invalidate chain.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include "events/event_wait.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "view/pass/pass.h"
#include "view/scene/cscene.h"
#include "view_fixture.h"

namespace {

using vt::ViewTest;

bool windowInvalid(HWND hwnd) {
    RECT r;
    return GetUpdateRect(hwnd, &r, FALSE) != 0;
}

int brightness(const tst::Rgb& c) { return (c.r + c.g + c.b) / 3; }

class Pass : public ViewTest {};

}  // namespace

TEST_F(Pass, EmptyScenePaintsOnlyTheBackgroundBrushAndStillDraws2D) {
    DeleteObject(scene()->backgroundBrush);
    scene()->backgroundBrush = CreateSolidBrush(RGB(200, 30, 40));
    scene()->BackColor[1] = 1.0f;  // the GL clear colour is not used without 3D
    smAddNode2D(new vt::Fill2DNode(scene()->dc, RGB(0, 0, 255)));
    EXPECT_EQ(paint(100, 80), (tst::Rgb{200, 30, 40}));
    EXPECT_EQ(pixel(5, 5), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(scene()->idle, 1);
}

TEST_F(Pass, BackColorClearsThe3DFrame) {
    addQuad(1, 1, 1, 0.1f);
    scene()->BackColor[0] = 1.0f;
    scene()->BackColor[2] = 1.0f;
    EXPECT_EQ(paint(5, 5), (tst::Rgb{255, 0, 255}));
}

TEST_F(Pass, TwoDListIsDrawnOverThe3DFrame) {
    addQuad(1, 1, 1, 3.0f);
    smShadeMode(TS_SHADE_NONE);
    smAddNode2D(new vt::Fill2DNode(scene()->dc, RGB(0, 255, 0)));
    EXPECT_EQ(paint(5, 5), (tst::Rgb{0, 255, 0}));
    EXPECT_EQ(pixel(80, 60), (tst::Rgb{255, 255, 255}));
    EXPECT_EQ(scene()->currentPos2D[0], 0);
}

TEST_F(Pass, ShadeModeNoneSwitchesLightingOff) {
    addQuad(1, 1, 1);
    // No light is on: lit, the white square shows only the 0.2 ambient light.
    const int lit = brightness(paint(80, 60));
    EXPECT_NEAR(lit, 51, 3);
    EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
    EXPECT_TRUE(glIsEnabled(GL_DEPTH_TEST));
    EXPECT_TRUE(glIsEnabled(GL_CULL_FACE));
    EXPECT_TRUE(glIsEnabled(GL_COLOR_MATERIAL));
    smShadeMode(TS_SHADE_NONE);
    EXPECT_EQ(paint(80, 60), (tst::Rgb{255, 255, 255}));
    EXPECT_FALSE(glIsEnabled(GL_LIGHTING));
    EXPECT_FALSE(glIsEnabled(GL_DEPTH_TEST));
    EXPECT_FALSE(glIsEnabled(GL_CULL_FACE));
    EXPECT_FALSE(glIsEnabled(GL_COLOR_MATERIAL));
}

TEST_F(Pass, ShadeModeNoneLeavesEvenSwitchedOnLightsUntouched) {
    addQuad(1, 1, 1);
    smShadeMode(TS_SHADE_NONE);
    paint(80, 60);
    smLightDirection(0, 1, 1, nullptr);
    paint(80, 60);
    EXPECT_FALSE(glIsEnabled(GL_LIGHT0));
    smShadeMode(TS_SHADE_FLAT);
    paint(80, 60);
    EXPECT_TRUE(glIsEnabled(GL_LIGHT0));
    GLint model = 0;
    glGetIntegerv(GL_SHADE_MODEL, &model);
    EXPECT_EQ(model, GL_FLAT);
}

TEST_F(Pass, SceneSwitchesAreTestedOnEveryPass) {
    addQuad(1, 1, 1);
    scene()->enableLighting = 0;
    scene()->enableDepth = 0;
    EXPECT_EQ(paint(80, 60), (tst::Rgb{255, 255, 255}));
    EXPECT_FALSE(glIsEnabled(GL_DEPTH_TEST));
    EXPECT_TRUE(glIsEnabled(GL_CULL_FACE));
}

TEST_F(Pass, DrawModeSetsThePolygonMode) {
    addQuad(1, 1, 1, 2.0f);
    smShadeMode(TS_SHADE_NONE);
    smDrawMode(TS_DRAW_LINES);
    EXPECT_EQ(paint(80, 60), (tst::Rgb{0, 0, 0}));  // inside the outline
    GLint mode[2] = {};
    glGetIntegerv(GL_POLYGON_MODE, mode);
    EXPECT_EQ(mode[0], GL_LINE);
    smDrawMode(TS_DRAW_FILLED);
    EXPECT_EQ(paint(80, 60), (tst::Rgb{255, 255, 255}));
}

TEST_F(Pass, OrthogonalViewZoomsWithTheEyeDistance) {
    addQuad(1, 1, 1);
    smShadeMode(TS_SHADE_NONE);
    smProjectionMode(TS_ORTHOGONAL, 45.0, 0.01, 1000.0);
    // Half the view height is tan(22.5 deg) * pos.z: 2.07 at z = 5, 4.14 at z = 10, so
    // the unit square reaches 29 and then 14 pixels from the centre of 120.
    smTranslation(0.0f, 0.0f, 5.0f);
    EXPECT_EQ(pixel(80, 60 - 22), (tst::Rgb{255, 255, 255}));
    smTranslation(0.0f, 0.0f, 10.0f);
    EXPECT_EQ(pixel(80, 60 - 22), (tst::Rgb{0, 0, 0}));
    EXPECT_EQ(pixel(80, 60 - 10), (tst::Rgb{255, 255, 255}));
    smTranslation(0.0f, 0.0f, 2.5f);
    EXPECT_EQ(pixel(80, 60 - 50), (tst::Rgb{255, 255, 255}));
}

TEST_F(Pass, PerspectiveViewShrinksWithDistanceToo) {
    addQuad(1, 1, 1);
    smShadeMode(TS_SHADE_NONE);
    smTranslation(0.0f, 0.0f, 5.0f);
    EXPECT_EQ(pixel(80, 60 - 22), (tst::Rgb{255, 255, 255}));
    smTranslation(0.0f, 0.0f, 20.0f);
    EXPECT_EQ(pixel(80, 60 - 22), (tst::Rgb{0, 0, 0}));
}

TEST_F(Pass, FrameTimeIsNeverZero) {
    addQuad(1, 1, 1);
    scene()->frameTime = 0;
    paint(80, 60);
    EXPECT_GE(scene()->frameTime, 1);
}

TEST_F(Pass, IdleSceneValidatesItsWindow) {
    addQuad(1, 1, 1);
    InvalidateRect(host.hwnd, nullptr, FALSE);
    ts::renderScene(scene());
    EXPECT_EQ(scene()->idle, 1);
    EXPECT_FALSE(windowInvalid(host.hwnd));
}

TEST_F(Pass, TurningSceneNeverGoesIdleWhileMotionRuns) {
    addQuad(1, 1, 1);
    scene()->motionRunning = 1;
    scene()->rotAngle = 10.0f;
    scene()->rotAxis[1] = 1.0f;
    ts::renderScene(scene());
    EXPECT_EQ(scene()->idle, 0);
    EXPECT_TRUE(windowInvalid(host.hwnd));
    // Painting the window paints it again at once: the chain keeps turning the scene.
    UpdateWindow(host.hwnd);
    EXPECT_TRUE(windowInvalid(host.hwnd));
    ts::renderScene(scene());
    float expected[16];
    vt::rotation(30.0f, 0.0f, 1.0f, 0.0f, expected);
    vt::expectMatrixNear(scene()->rotMatrix, expected);
    smStopMotion();
    ts::renderScene(scene());
    EXPECT_EQ(scene()->idle, 1);
    EXPECT_FALSE(windowInvalid(host.hwnd));
    vt::expectMatrixNear(scene()->rotMatrix, expected);
}

TEST_F(Pass, AnyRateSpeedOrForcedRedrawKeepsTheChainGoing) {
    addQuad(1, 1, 1);
    float cScene::*rates[] = {&cScene::speed, &cScene::yawRate, &cScene::pitchRate, &cScene::rollRate};
    for (float cScene::*rate : rates) {
        scene()->*rate = 0.001f;
        ts::renderScene(scene());
        EXPECT_EQ(scene()->idle, 0);
        scene()->*rate = 0.0f;
    }
    scene()->forceRedraw = 1;
    ts::renderScene(scene());
    EXPECT_EQ(scene()->idle, 0);
    scene()->forceRedraw = 0;
    ts::renderScene(scene());
    EXPECT_EQ(scene()->idle, 1);
}

TEST_F(Pass, DisplayListReplacesTheListWalk) {
    addQuad(1, 1, 1);
    smShadeMode(TS_SHADE_NONE);
    smUseDisplayList();
    scene()->list3D->clear();  // the compiled list still draws the square
    EXPECT_EQ(paint(80, 60), (tst::Rgb{255, 255, 255}));
}

// The hits of a picking pass land in the event record that swWaitForEvent hands out.
TEST_F(Pass, PickingPassSelectsWithoutSwapOrDepthTest) {
    addQuad(1, 1, 1, 0.5f);
    scene()->renderMode = GL_SELECT;
    scene()->pickX = 80;
    scene()->pickY = 60;
    ts::eventRecord().hits = -1;
    ts::renderScene(scene());
    EXPECT_EQ(ts::eventRecord().hits, 1);
    EXPECT_EQ(scene()->renderMode, static_cast<GLenum>(GL_RENDER));
    scene()->renderMode = GL_SELECT;
    scene()->pickX = 5;
    scene()->pickY = 5;
    ts::renderScene(scene());
    EXPECT_EQ(ts::eventRecord().hits, 0);
}

TEST_F(Pass, ResizeTakesTheNewClientSizeAndForcesAZeroHeightToOne) {
    addQuad(1, 1, 1);
    SetWindowPos(host.hwnd, nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    RECT client;
    GetClientRect(host.hwnd, &client);
    ts::resizeScene(scene());
    EXPECT_EQ(scene()->clientRect.right, client.right);
    GLint viewport[4];
    glGetIntegerv(GL_VIEWPORT, viewport);
    EXPECT_EQ(viewport[2], client.right);
    EXPECT_EQ(viewport[3], client.bottom);
    SetWindowLongPtrA(host.hwnd, GWL_STYLE, WS_POPUP | WS_VISIBLE);
    SetWindowPos(host.hwnd, nullptr, 0, 0, 300, 0, SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED);
    ts::resizeScene(scene());
    EXPECT_EQ(scene()->clientRect.bottom, 1);
}
