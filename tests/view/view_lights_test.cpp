// Lights through the exports: stored values, the hand-over to OpenGL, and a light fixed
// in the scene against one that stays with the viewer, in pixels.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include "support/child_process.h"
#include "tessarin.h"
#include "view/scene/cscene.h"
#include "view_fixture.h"

namespace {

using vt::ViewTest;

class Lights : public ViewTest {
protected:
    // One white diffuse light from +z, no ambient light anywhere, on a white square.
    void lightFromFront(int worldPos) {
        addQuad(1, 1, 1, 2.0f);
        for (float& c : scene()->lightModelAmbient) c = 0.0f;
        scene()->lightModelAmbient[3] = 1.0f;
        float black[3] = {0, 0, 0};
        float white[3] = {1, 1, 1};
        float front[3] = {0, 0, 1};
        smLightColor(0, black, white, black);
        smLightDirection(0, 1, worldPos, front);
    }
};

int red(const tst::Rgb& c) { return c.r; }

}  // namespace

TEST_F(Lights, SceneHasEightLightsOffAtFirst) {
    for (const cLight& light : scene()->lights) {
        EXPECT_EQ(light.on, 0);
        EXPECT_EQ(light.diffuse[0], 0.6f);
    }
}

TEST_F(Lights, CallsChangeTheCurrentSceneWithoutRedrawing) {
    addQuad(1, 1, 1);
    paint(80, 60);
    float dir[3] = {0, 1, 0};
    smLightDirection(7, 1, 0, dir);
    EXPECT_EQ(scene()->lights[7].on, 1);
    EXPECT_EQ(scene()->lights[7].worldPos, 0);
    EXPECT_EQ(scene()->lights[7].position[1], 1.0f);
    EXPECT_FALSE(glIsEnabled(GL_LIGHT7));  // shows at the next pass
    paint(80, 60);
    EXPECT_TRUE(glIsEnabled(GL_LIGHT7));
}

TEST_F(Lights, PassHandsColoursSpotAndAttenuationOver) {
    addQuad(1, 1, 1);
    float diffuse[3] = {0.1f, 0.2f, 0.3f};
    smLightColor(2, nullptr, diffuse, nullptr);
    smLightSpot(2, nullptr, 45.0f, 0.5f);
    smLightDirection(2, 1, 1, nullptr);
    scene()->lights[2].linearAttenuation = 0.25f;
    paint(80, 60);
    float value[4] = {};
    glGetLightfv(GL_LIGHT2, GL_DIFFUSE, value);
    EXPECT_FLOAT_EQ(value[2], 0.3f);
    glGetLightfv(GL_LIGHT2, GL_AMBIENT, value);
    EXPECT_FLOAT_EQ(value[0], 0.2f);
    glGetLightfv(GL_LIGHT2, GL_SPOT_CUTOFF, value);
    EXPECT_FLOAT_EQ(value[0], 45.0f);
    glGetLightfv(GL_LIGHT2, GL_SPOT_EXPONENT, value);
    EXPECT_FLOAT_EQ(value[0], 0.5f);
    glGetLightfv(GL_LIGHT2, GL_LINEAR_ATTENUATION, value);
    EXPECT_FLOAT_EQ(value[0], 0.25f);
    // Placed as seen from the initial eye point (0, 0, 5): w = 0 keeps the direction.
    glGetLightfv(GL_LIGHT2, GL_POSITION, value);
    EXPECT_FLOAT_EQ(value[0], 1.0f);
    EXPECT_FLOAT_EQ(value[3], 0.0f);
}

TEST_F(Lights, WorldPlacedPointLightIsSeenFromTheInitialEye) {
    addQuad(1, 1, 1);
    float at[3] = {0, 0, 0};
    smLightDirection(1, 1, 1, at);
    smLightSpot(1, nullptr, 180.0f, 0.0f);  // positional now, at the origin
    scene()->lights[1].position[2] = 1.0f;
    paint(80, 60);
    float value[4] = {};
    glGetLightfv(GL_LIGHT1, GL_POSITION, value);
    EXPECT_FLOAT_EQ(value[2], 1.0f - 5.0f);
    EXPECT_FLOAT_EQ(value[3], 1.0f);
}

TEST_F(Lights, LightWithTheViewerKeepsLightingTheTurnedSquareObliquely) {
    lightFromFront(1);
    EXPECT_GE(red(paint(80, 60)), 250);
    smRotation(60.0f, 0.0f, 1.0f, 0.0f);
    // The square's normal turned by 60 degrees away from a light that did not turn.
    EXPECT_NEAR(red(pixel(80, 60)), 128, 6);
}

TEST_F(Lights, LightFixedInTheSceneTurnsWithIt) {
    lightFromFront(0);
    EXPECT_GE(red(paint(80, 60)), 250);
    smRotation(60.0f, 0.0f, 1.0f, 0.0f);
    EXPECT_GE(red(pixel(80, 60)), 250);
}

TEST_F(Lights, SwitchedOffLightIsDisabled) {
    lightFromFront(1);
    paint(80, 60);
    smLightDirection(0, 0, 1, nullptr);
    EXPECT_EQ(red(paint(80, 60)), 0);
    EXPECT_FALSE(glIsEnabled(GL_LIGHT0));
}

TST_SCENARIO(LightNumberEight) {
    tst::HostWindow host;
    smLightDirection(8, 1, 1, nullptr);
}

TST_SCENARIO(LightNumberMinusOne) {
    tst::HostWindow host;
    smLightSpot(-1, nullptr, 10.0f, 0.5f);
}

TEST(LightAssertion, ALightNumberOutsideZeroToSevenAborts) {
    tst::ChildResult r = tst::runScenario("LightNumberEight");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("LightNo>=0 && LightNo <8"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("..\\source\\user3d_uti.cpp"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("150"), std::string::npos) << r.output;
    r = tst::runScenario("LightNumberMinusOne");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("213"), std::string::npos) << r.output;
}
