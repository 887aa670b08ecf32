// The camera of the waitable event record, through the DLL as a client sees it: every
// rendering pass writes the eye position with the rotation (TS_ROTATE) or the look
// vectors (TS_FLY, TS_WALK), the action-mode switch writes the look vectors, and a
// click hands the record out. Each scenario runs in a child process (one scene thread).
#include <gtest/gtest.h>

#include <windows.h>

#include "support/child_process.h"
#include "support/library_scene.h"
#include "tessarin.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

void expectVector(const float* actual, float x, float y, float z) {
    EXPECT_EQ(actual[0], x);
    EXPECT_EQ(actual[1], y);
    EXPECT_EQ(actual[2], z);
}

// A library scene with a box; mouse navigation is off, so a click only reports itself
// and never moves the camera.
struct BoxScene : tst::LibraryScene {
    BoxScene() : LibraryScene("Record camera") {
        snDisable(nullptr, TS_SWITCH_MOUSE_NAVIGATION);
        snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 100020 /* GLU_OUTSIDE */);
        smRefreshScene(scene);
    }
};

}  // namespace

TST_SCENARIO(RecordCarriesTheCameraOfEachActionMode) {
    BoxScene s;
    // TS_ROTATE: keypad 6 turns by rotate_drot (15 degrees) about +y on every pass.
    smTranslation(0.5f, -0.25f, 6.0f);
    s.key(VK_NUMPAD6);
    swEventRecord r = s.click(20, 30);
    expectVector(r.pos, 0.5f, -0.25f, 6.0f);
    expectVector(r.rotAxis, 0.0f, 1.0f, 0.0f);
    EXPECT_EQ(r.rotAngle, 15.0f);

    // TS_FLY: the eye and look vectors as set; the rotation fields keep their values.
    smActionMode(TS_FLY);
    smLookAt(1.0f, 2.0f, 3.0f, 0.6f, 0.0f, -0.8f, 0.0f, 1.0f, 0.0f);
    r = s.click(21, 31);
    expectVector(r.pos, 1.0f, 2.0f, 3.0f);
    expectVector(r.dir, 0.6f, 0.0f, -0.8f);
    expectVector(r.up, 0.0f, 1.0f, 0.0f);
    expectVector(r.rotAxis, 0.0f, 1.0f, 0.0f);
    EXPECT_EQ(r.rotAngle, 15.0f);

    // TS_WALK: likewise.
    smActionMode(TS_WALK);
    smLookAt(-2.0f, 0.5f, 4.0f, 0.0f, 0.0f, -1.0f, 0.0f, 1.0f, 0.0f);
    r = s.click(22, 32);
    expectVector(r.pos, -2.0f, 0.5f, 4.0f);
    expectVector(r.dir, 0.0f, 0.0f, -1.0f);
    expectVector(r.up, 0.0f, 1.0f, 0.0f);

    // Back to TS_ROTATE: the switch clears dir and up and says so; the camera looking
    // straight down -z is no rotation at all.
    smActionMode(TS_ROTATE);
    r = s.click(23, 33);
    expectVector(r.pos, -2.0f, 0.5f, 4.0f);
    expectVector(r.dir, 0.0f, 0.0f, 0.0f);
    expectVector(r.up, 0.0f, 0.0f, 0.0f);
    expectVector(r.rotAxis, 0.0f, 0.0f, 0.0f);
    EXPECT_EQ(r.rotAngle, 0.0f);
}
TEST(EventRecord, AClickAfterAPassCarriesTheCameraOfEachActionMode) {
    expectCleanChild(tst::runScenario("RecordCarriesTheCameraOfEachActionMode"));
}

TST_SCENARIO(WalkingMovesTheRecordedEye) {
    BoxScene s;
    smActionMode(TS_WALK);
    smLookAt(0.0f, 0.0f, 5.0f, 0.0f, 0.0f, -1.0f, 0.0f, 1.0f, 0.0f);
    // Each Up key is one step of walk_dpos (0.1) along dir, made by the pass after it.
    s.key(VK_UP);
    s.key(VK_UP);
    const swEventRecord r = s.click(24, 34);
    expectVector(r.pos, 0.0f, 0.0f, (5.0f - 0.1f) - 0.1f);
    expectVector(r.dir, 0.0f, 0.0f, -1.0f);
}
TEST(EventRecord, TheRecordedEyeFollowsTheWalk) { expectCleanChild(tst::runScenario("WalkingMovesTheRecordedEye")); }
