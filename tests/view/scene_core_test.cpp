// The scene's data on its own, natively: defaults, the switch fields, the settings
// pairing in both directions and the camera maths that needs no OpenGL.
#include <gtest/gtest.h>

#include <cmath>

#include "view/scene/camera.h"
#include "view/scene/cscene.h"
#include "view/scene/scene_settings.h"

namespace {

TEST(SceneCore, ANewSceneHasTheDocumentedDefaults) {
    cScene scene;
    EXPECT_EQ(scene.draw_mode, 100012);
    EXPECT_EQ(scene.shade_mode, 100000);
    EXPECT_EQ(scene.action_mode, 0);
    EXPECT_EQ(scene.renderMode, ts::kGlRender);
    EXPECT_EQ(scene.initDraw2D, 1);
    EXPECT_EQ(scene.relToPos2D, 1);
    EXPECT_EQ(scene.frameTime, 1);
    EXPECT_EQ(scene.selectBufSize, 64);
    EXPECT_EQ(scene.clientRect.right, 0);
    EXPECT_EQ(scene.window, nullptr);
    EXPECT_STREQ(scene.iniVPName, "Default");
}

TEST(SceneCore, SwitchNumbersNameTheirFieldsInOrder) {
    cScene scene;
    int* const fields[9] = {&scene.enableLighting, &scene.enableCull,      &scene.enableDepth,
                            &scene.enableColorMaterial, &scene.pickingOn, &scene.forceRedraw,
                            &scene.mouseNavigation, &scene.keyNavigation, &scene.contextMenu};
    for (int n = 1; n <= 9; ++n) EXPECT_EQ(scene.switchField(n), fields[n - 1]) << n;
    EXPECT_EQ(scene.switchField(0), nullptr);
    EXPECT_EQ(scene.switchField(10), nullptr);
}

TEST(SceneCore, SettingsGoIntoTheSceneAndComeBackUnchanged) {
    ts::SceneSettings settings;
    settings.shade_mode = 100001;
    settings.angle = 30.0;
    settings.BackColor_g = 0.5f;
    settings.iniPos_z = 8.0f;
    settings.selectBufSize = 128;
    cScene scene;
    ts::applySettings(settings, &scene);
    EXPECT_EQ(scene.shade_mode, 100001);
    EXPECT_EQ(scene.angle, 30.0);
    EXPECT_EQ(scene.BackColor[1], 0.5f);
    EXPECT_EQ(scene.iniPos[2], 8.0f);
    EXPECT_EQ(scene.selectBufSize, 128);
    const ts::SceneSettings back = ts::settingsOfScene(&scene);
    EXPECT_EQ(back.shade_mode, 100001);
    EXPECT_EQ(back.angle, 30.0);
    EXPECT_EQ(back.BackColor_g, 0.5f);
    EXPECT_EQ(back.iniPos_z, 8.0f);
    EXPECT_STREQ(back.iniVPName, "Default");
}

TEST(SceneCore, TheTrackballCentreUnderTheEyeIsTheViewAxis) {
    cScene scene;
    scene.clientRect.right = 200;
    scene.clientRect.bottom = 100;
    float v[3];
    ts::trackballVector(scene, 100, 50, v);
    EXPECT_NEAR(v[0], 0.0f, 1e-6f);
    EXPECT_NEAR(v[1], 0.0f, 1e-6f);
    EXPECT_NEAR(v[2], 1.0f, 1e-6f);
    ts::trackballVector(scene, 200, 50, v);  // the right edge: a unit vector to the right
    EXPECT_NEAR(v[0], 1.0f, 1e-5f);
    EXPECT_NEAR(v[2], 0.0f, 1e-5f);
}

TEST(SceneCore, ADragToTheRightTurnsAboutTheUpAxis) {
    cScene scene;
    scene.clientRect.right = 200;
    scene.clientRect.bottom = 200;
    scene.pending[0] = 3.0f;
    ts::turnTrackball(scene, 150, 100);
    EXPECT_GT(scene.rotAngle, 0.0f);
    EXPECT_NEAR(scene.rotAxis[0], 0.0f, 1e-6f);
    EXPECT_GT(scene.rotAxis[1], 0.0f);
    EXPECT_GT(scene.lastBall[0], 0.0f);
    EXPECT_EQ(scene.pending[0], 0.0f);
}

TEST(SceneCore, TheOrthogonalExtentFollowsTheEyeDistance) {
    cScene scene;
    scene.angle = 90.0;
    scene.pos[2] = 5.0f;
    EXPECT_NEAR(ts::orthoHalfHeight(scene), 5.0, 1e-9);
    scene.pos[2] = 2.0f;
    EXPECT_NEAR(ts::orthoHalfHeight(scene), 2.0, 1e-9);
}

TEST(SceneCore, FlyingSharesHorizontalMotionBetweenYawAndRoll) {
    cScene scene;
    scene.action_mode = 1;
    scene.yaw_roll_ratio = 0.25f;
    scene.pending[0] = 4.0f;
    scene.pending[1] = 2.0f;
    ts::steerRates(scene);
    EXPECT_EQ(scene.pitchRate, 2.0f);
    EXPECT_EQ(scene.yawRate, 3.0f);
    EXPECT_EQ(scene.rollRate, -1.0f);
    scene.action_mode = 2;  // walking: all of it is yaw
    ts::steerRates(scene);
    EXPECT_EQ(scene.yawRate, 7.0f);
    EXPECT_EQ(scene.rollRate, -1.0f);
}

TEST(SceneCore, StoppingMotionClearsRatesSpeedAndTheTurn) {
    cScene scene;
    scene.motionRunning = 1;
    scene.rotAngle = 5.0f;
    scene.pending[0] = scene.pending[1] = 1.0f;
    scene.pitchRate = scene.yawRate = scene.rollRate = 2.0f;
    scene.speed = 0.5f;
    ts::stopMotion(&scene);
    EXPECT_EQ(scene.motionRunning, 0);
    EXPECT_EQ(scene.rotAngle, 0.0f);
    EXPECT_EQ(scene.pending[0] + scene.pending[1], 0.0f);
    EXPECT_EQ(scene.pitchRate + scene.yawRate + scene.rollRate, 0.0f);
    EXPECT_EQ(scene.speed, 0.0f);
}

}  // namespace
