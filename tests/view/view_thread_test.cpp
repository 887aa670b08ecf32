// The view calls through the library's scene thread (each scenario in a child process,
// since the thread starts once per process): the unsigned angle of smRotation, modes,
// and viewpoints whose messages the scene thread raises.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include <cmath>
#include <cstdint>

#include "support/child_process.h"
#include "support/gl_window.h"
#include "tessarin.h"
#include "view/scene/cscene.h"

namespace {

cScene* openScene() {
    cWind* window = swCreateWind("View thread", 200, 150, 50, 40, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    return swCreateScene(window);
}

// The rotation about z by angle degrees as glRotatef makes it in a context of our own
// (the same OpenGL, so the same rounding of a huge angle).
void expectRotationAboutZ(const float* m, float angle) {
    tst::GlWindow gl(16, 16);
    float expected[16];
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glRotatef(angle, 0.0f, 0.0f, 1.0f);
    glGetFloatv(GL_MODELVIEW_MATRIX, expected);
    for (int k = 0; k < 16; ++k) EXPECT_NEAR(m[k], expected[k], 1e-5f) << k;
    // Not the small negative angle the caller meant.
    EXPECT_GT(std::fabs(m[1] - std::sin(-10.0 * 3.14159265358979 / 180.0)), 0.1);
}

// The first window of a wine session starts its desktop process, which would inherit
// a child's output pipe and keep it open: the parent makes that window first.
tst::ChildResult runWithDesktop(const char* name) {
    tst::GlWindow desktop(8, 8);
    return tst::runScenario(name);
}

}  // namespace

TST_SCENARIO(NegativeRotationArrivesAsALargeAngle) {
    cScene* scene = openScene();
    snBox(nullptr, -1, -1, -1, 1, 1, 1, 100020);
    smRotation(-10.0f, 0.0f, 0.0f, 1.0f);
    // (2^32 - 1000) hundredths of a degree, at float precision.
    const float arrived = static_cast<float>(static_cast<uint32_t>(-1000) * 0.01);
    EXPECT_EQ(arrived, 42949662.96f);
    expectRotationAboutZ(scene->rotMatrix, arrived);
    EXPECT_EQ(scene->rotAngle, 0.0f);
}

TEST(ViewThread, NegativeRotationArrivesAsALargeAngle) {
    const tst::ChildResult r = runWithDesktop("NegativeRotationArrivesAsALargeAngle");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
}

TST_SCENARIO(ModesAndViewpointsThroughTheThread) {
    cScene* scene = openScene();
    smShadeMode(100001);
    smShadeMode(7);
    smDrawMode(100011);
    smProjectionMode(5, 1.0, 2.0, 3.0);
    EXPECT_EQ(scene->shade_mode, 100001);
    EXPECT_EQ(scene->draw_mode, 100011);
    EXPECT_EQ(scene->angle, 45.0);
    EXPECT_EQ(smActionMode(TS_WALK), 1);
    EXPECT_EQ(scene->action_mode, TS_WALK);
    EXPECT_EQ(smViewpointAdd(const_cast<char*>("second"), nullptr), 1);
    EXPECT_EQ(scene->viewpoints.last->id, 20201u);
    EXPECT_EQ(smViewpointSet(const_cast<char*>("second")), 1);
    EXPECT_EQ(smViewpointDel(const_cast<char*>("second")), 1);
    EXPECT_EQ(smViewpointDel(const_cast<char*>("Default")), 1);
    EXPECT_EQ(smViewpointDel(nullptr), 0);  // "No viewpoint to delete."
}

TEST(ViewThread, ModesAndViewpointsThroughTheThread) {
    const tst::ChildResult r = runWithDesktop("ModesAndViewpointsThroughTheThread");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].title, "Delete Viewpoint");
    EXPECT_EQ(r.boxes[0].text, "No viewpoint to delete.");
}
