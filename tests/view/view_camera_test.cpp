// Modes and camera calls on a hosted scene (the direct path): ignored bad values, the
// menu check marks, reset, stop, translation, rotation, look-at and the action-mode
// conversions, which keep the picture as it was.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include <cstdint>

#include "requests/request_handlers.h"
#include "tessarin.h"
#include "view/pass/pass.h"
#include "view/scene/cscene.h"
#include "view_fixture.h"

namespace {

using vt::ViewTest;

class Camera : public ViewTest {
protected:
    bool checked(unsigned command) const {
        return (GetMenuState(scene()->menu, command, MF_BYCOMMAND) & MF_CHECKED) != 0;
    }
    // An asymmetric picture: a red square right of the centre, a green one above it.
    void buildAsymmetricScene() {
        addQuad(1, 0, 0, 0.4f, 1.0f, 0.0f);
        addQuad(0, 1, 0, 0.4f, 0.0f, 1.0f);
        smShadeMode(TS_SHADE_NONE);
    }
};

}  // namespace

TEST_F(Camera, SceneStartsWithTheDefaults) {
    const cScene* s = scene();
    EXPECT_EQ(s->draw_mode, 100012);
    EXPECT_EQ(s->shade_mode, 100000);
    EXPECT_EQ(s->action_mode, 0);
    EXPECT_EQ(s->project_mode, 0);
    EXPECT_EQ(s->renderMode, static_cast<GLenum>(GL_RENDER));
    EXPECT_EQ(s->pos[2], 5.0f);
    EXPECT_EQ(s->angle, 45.0);
    EXPECT_EQ(s->clipnear, static_cast<double>(0.01f));
    EXPECT_EQ(s->frameTime, 1);
    EXPECT_EQ(s->initDraw2D, 1);
    EXPECT_EQ(s->relToPos2D, 1);
    EXPECT_EQ(s->selectBufSize, 64);
    EXPECT_NE(s->selectBuffer, nullptr);
    EXPECT_EQ(s->lightModelAmbient[0], 0.2f);
    EXPECT_STREQ(s->iniVPName, "Default");
    EXPECT_TRUE(checked(20018));
    EXPECT_TRUE(checked(20003));
    EXPECT_TRUE(checked(20016));
    EXPECT_TRUE(checked(20014));
    EXPECT_FALSE(checked(20013));
}

TEST_F(Camera, ModeCallsTakeOnlyTheirValuesAndMoveTheCheckMarks) {
    smShadeMode(TS_SHADE_FLAT);
    EXPECT_EQ(scene()->shade_mode, 100001);
    EXPECT_TRUE(checked(20004));
    EXPECT_FALSE(checked(20018));
    smShadeMode(5);
    smShadeMode(100003);
    EXPECT_EQ(scene()->shade_mode, 100001);
    smDrawMode(TS_DRAW_POINTS);
    EXPECT_TRUE(checked(20015));
    EXPECT_FALSE(checked(20003));
    smDrawMode(5);
    smDrawMode(100009);
    EXPECT_EQ(scene()->draw_mode, 100010);
    smProjectionMode(TS_ORTHOGONAL, 30.0, 0.5, 50.0);
    EXPECT_EQ(scene()->project_mode, 1);
    EXPECT_EQ(scene()->angle, 30.0);
    EXPECT_EQ(scene()->clipnear, 0.5);
    EXPECT_EQ(scene()->clipfar, 50.0);
    EXPECT_TRUE(checked(20013));
    EXPECT_FALSE(checked(20014));
    smProjectionMode(2, 10.0, 1.0, 2.0);
    smProjectionMode(-1, 10.0, 1.0, 2.0);
    EXPECT_EQ(scene()->project_mode, 1);
    EXPECT_EQ(scene()->angle, 30.0);
    EXPECT_EQ(scene()->clipfar, 50.0);
}

TEST_F(Camera, ModeCallsDoNotRedraw) {
    addQuad(1, 1, 1);
    smShadeMode(TS_SHADE_NONE);
    ValidateRect(host.hwnd, nullptr);
    const tst::Rgb before = pixel(80, 60);
    smShadeMode(TS_SHADE_SMOOTH);
    EXPECT_EQ(pixel(80, 60), before);
}

TEST_F(Camera, StopMotionClearsRatesSpeedAndDeltas) {
    cScene* s = scene();
    s->motionRunning = 1;
    s->rotAngle = 3.0f;
    s->pending[0] = s->pending[1] = s->pending[2] = 1.0f;
    s->pitchRate = s->rollRate = s->yawRate = s->speed = 1.0f;
    smStopMotion();
    EXPECT_EQ(s->motionRunning, 0);
    EXPECT_EQ(s->rotAngle, 0.0f);
    EXPECT_EQ(s->pending[0] + s->pending[1], 0.0f);
    EXPECT_EQ(s->pending[2], 1.0f);  // the zoom delta is left alone
    EXPECT_EQ(s->pitchRate + s->rollRate + s->yawRate + s->speed, 0.0f);
}

TEST_F(Camera, ResetPosRestoresTheStartCamera) {
    cScene* s = scene();
    s->iniRot = 5.0f;
    s->iniAxis[0] = 1.0f;
    smRotation(40.0f, 0.0f, 1.0f, 0.0f);
    smTranslation(1.0f, 2.0f, 3.0f);
    s->speed = 2.0f;
    s->motionRunning = 1;
    smResetPos();
    EXPECT_EQ(s->pos[0], 0.0f);
    EXPECT_EQ(s->pos[2], 5.0f);
    EXPECT_EQ(s->rotAngle, 5.0f);
    EXPECT_EQ(s->rotAxis[0], 1.0f);
    EXPECT_EQ(s->speed, 0.0f);
    EXPECT_EQ(s->motionRunning, 0);
    const float identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    vt::expectMatrixNear(s->rotMatrix, identity, 0.0f);
    EXPECT_EQ(s->dir[2], -1.0f);
}

TEST_F(Camera, TranslationMovesTheEyeAndRedraws) {
    addQuad(1, 1, 1, 0.5f);
    smShadeMode(TS_SHADE_NONE);
    EXPECT_EQ(paint(80, 60), (tst::Rgb{255, 255, 255}));
    smTranslation(3.0f, 0.0f, 5.0f);
    EXPECT_EQ(scene()->pos[0], 3.0f);
    EXPECT_EQ(pixel(80, 60), (tst::Rgb{0, 0, 0}));
}

TEST_F(Camera, RotationOfAnEmptySceneIsNotFolded) {
    smRotation(30.0f, 0.0f, 1.0f, 0.0f);
    const float identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    vt::expectMatrixNear(scene()->rotMatrix, identity, 0.0f);
}

TEST_F(Camera, RotationTurnsOnceAndAccumulates) {
    addQuad(1, 1, 1);
    smRotation(30.0f, 0.0f, 1.0f, 0.0f);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    smRotation(-10.0f, 0.0f, 1.0f, 0.0f);
    float expected[16];
    vt::rotation(20.0f, 0.0f, 1.0f, 0.0f, expected);
    vt::expectMatrixNear(scene()->rotMatrix, expected);
}

TEST_F(Camera, RotationRequestReadsTheAngleAsUnsignedHundredths) {
    addQuad(1, 1, 1);
    const float axis[3] = {0.0f, 0.0f, 1.0f};
    const int32_t hundredths = static_cast<int32_t>(-10.0f * 100.0);
    ts::onRotation(static_cast<WPARAM>(static_cast<uint32_t>(hundredths)), reinterpret_cast<LPARAM>(axis));
    const float arrived = static_cast<float>(static_cast<uint32_t>(hundredths) * 0.01);
    EXPECT_FLOAT_EQ(arrived, 42949662.96f);
    float expected[16];
    vt::rotation(arrived, 0.0f, 0.0f, 1.0f, expected);
    vt::expectMatrixNear(scene()->rotMatrix, expected);
}

TEST_F(Camera, LookAtReplacesTheRotation) {
    addQuad(1, 1, 1);
    smRotation(70.0f, 1.0f, 0.0f, 0.0f);
    // From (5, 0, 0) looking along -x: the scene turned by 90 degrees about y.
    smLookAt(5.0f, 0.0f, 0.0f, -1.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f);
    float expected[16];
    vt::rotation(-90.0f, 0.0f, 1.0f, 0.0f, expected);
    vt::expectMatrixNear(scene()->rotMatrix, expected);
    EXPECT_NEAR(scene()->pos[0], 0.0f, 1e-5f);
    EXPECT_NEAR(scene()->pos[2], 5.0f, 1e-5f);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
}

TEST_F(Camera, ActionModeSwitchesKeepThePicture) {
    buildAsymmetricScene();
    smRotation(90.0f, 0.0f, 0.0f, 1.0f);  // the red square moves above the centre
    const tst::Rgb above = paint(80, 60 - 24);
    const tst::Rgb right = pixel(80 + 24, 60);
    EXPECT_EQ(above, (tst::Rgb{255, 0, 0}));
    EXPECT_EQ(right, (tst::Rgb{0, 0, 0}));
    EXPECT_EQ(smActionMode(TS_FLY), 1);
    EXPECT_EQ(scene()->action_mode, 1);
    EXPECT_TRUE(checked(20005));
    EXPECT_EQ(pixel(80, 60 - 24), above);
    EXPECT_NEAR(scene()->up[0], 1.0f, 1e-5f);
    smActionMode(TS_WALK);
    EXPECT_TRUE(checked(20021));
    EXPECT_EQ(paint(80, 60 - 24), above);
    smActionMode(TS_ROTATE);
    EXPECT_EQ(paint(80, 60 - 24), above);
    EXPECT_EQ(pixel(80 + 24, 60), right);
    EXPECT_EQ(scene()->dir[2], 0.0f);  // the look vectors are cleared in TS_ROTATE
    EXPECT_EQ(scene()->rotAngle, 0.0f);
}

TEST_F(Camera, ActionModeIsNotRangeChecked) {
    smActionMode(7);
    EXPECT_EQ(scene()->action_mode, 7);
    EXPECT_FALSE(checked(20016));
    EXPECT_FALSE(checked(20005));
}

TEST_F(Camera, FlyingKeepsMovingAndWalkingTurns) {
    addQuad(1, 1, 1);
    smActionMode(TS_FLY);
    scene()->speed = 0.5f;
    ts::renderScene(scene());
    EXPECT_NEAR(scene()->pos[2], 4.5f, 1e-5f);
    EXPECT_EQ(scene()->idle, 0);
    smStopMotion();
    smActionMode(TS_WALK);
    scene()->pending[0] = 90.0f;  // horizontal mouse motion becomes yaw
    ts::renderScene(scene());
    EXPECT_EQ(scene()->yawRate, 90.0f);
    EXPECT_EQ(scene()->pending[0], 0.0f);
    EXPECT_NEAR(scene()->dir[0], -1.0f, 1e-5f);
    smStopMotion();
}

TEST_F(Camera, FlyYawShareGoesToRollByTheRatio) {
    addQuad(1, 1, 1);
    smActionMode(TS_FLY);
    scene()->yaw_roll_ratio = 0.25f;
    scene()->pending[0] = 4.0f;
    scene()->pending[1] = 2.0f;
    ts::renderScene(scene());
    EXPECT_EQ(scene()->yawRate, 3.0f);
    EXPECT_EQ(scene()->rollRate, -1.0f);
    EXPECT_EQ(scene()->pitchRate, 2.0f);
    smStopMotion();
}
