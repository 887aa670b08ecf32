// Navigation through the se* handlers of a hosted scene: the trackball spin that goes
// on after a quick release, walking and flying on release, panning and zooming while
// Ctrl or Shift is held, and the keyboard.
#include <gtest/gtest.h>

#include <ctime>

#include "support/host_window.h"
#include "tessarin.h"
#include "view/navigation/scene_cursor.h"
#include "view/scene/cscene.h"

namespace {

constexpr int kVkShift = 16, kVkControl = 17;

class Navigation : public ::testing::Test {
protected:
    Navigation() { snBox(nullptr, -1, -1, -1, 1, 1, 1, 100020 /* GLU_OUTSIDE */); }
    cScene* scene() const { return host.scene; }
    void down(int x, int y) { seOnLButtonDown(host.hwnd, MK_LBUTTON, MAKELPARAM(x, y)); }
    void move(int x, int y) { seOnMouseMove(host.hwnd, MK_LBUTTON, MAKELPARAM(x, y)); }
    void up(int x, int y) { seOnLButtonUp(host.hwnd, 0, MAKELPARAM(x, y)); }
    void key(int vk) { seOnKeyDown(host.hwnd, static_cast<WPARAM>(vk), 1); }
    void keyUp(int vk) { seOnKeyUp(host.hwnd, static_cast<WPARAM>(vk), 1); }
    tst::HostWindow host{"Navigation", 160, 120};
};

}  // namespace

TEST_F(Navigation, AQuickReleaseAfterADragLeavesTheSceneSpinning) {
    down(80, 60);
    move(80, 60);  // the first move only takes its position
    move(100, 60);
    EXPECT_GT(scene()->rotAngle, 0.0f);
    EXPECT_GT(scene()->rotAxis[1], 0.0f);  // a drag to the right turns about +y
    up(100, 60);
    EXPECT_EQ(scene()->motionRunning, 1);
    EXPECT_EQ(scene()->idle, 0);
    const float before = scene()->rotMatrix[0];
    seOnPaint(host.hwnd);
    EXPECT_NE(scene()->rotMatrix[0], before);  // every pass turns it further
}

TEST_F(Navigation, AReleaseAfterRestingStopsTheScene) {
    down(80, 60);
    move(80, 60);
    move(100, 60);
    // The mouse rested for longer than the frame time and the delay.
    scene()->lastMoveTime = clock() - (scene()->frameTime + scene()->auto_delay + 10);
    up(100, 60);
    EXPECT_EQ(scene()->motionRunning, 0);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    EXPECT_EQ(scene()->idle, 1);
}

TEST_F(Navigation, WalkingStopsOnReleaseAndFlyingGoesOn) {
    smActionMode(TS_WALK);
    down(80, 60);
    move(80, 60);
    move(80, 40);
    EXPECT_GT(scene()->speed, 0.0f);
    up(80, 40);
    EXPECT_EQ(scene()->speed, 0.0f);

    smActionMode(TS_FLY);
    down(80, 60);
    move(80, 60);
    move(60, 50);
    EXPECT_NE(scene()->yawRate, 0.0f);
    EXPECT_NE(scene()->pitchRate, 0.0f);
    up(60, 50);
    EXPECT_NE(scene()->yawRate, 0.0f);  // the aeroplane keeps its rates
    EXPECT_EQ(scene()->pending[0], 0.0f);
}

TEST_F(Navigation, CtrlPansAndShiftZoomsWithTheirCursors) {
    key(kVkControl);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorPan]);
    down(80, 60);
    move(80, 60);
    move(60, 60);
    EXPECT_NEAR(scene()->lookAt[0], 0.2f, 1e-5f);  // pending dx moved the centre
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    up(60, 60);
    keyUp(kVkControl);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorRotate]);

    key(kVkShift);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorZoom]);
    down(80, 60);
    move(80, 60);
    move(80, 50);
    EXPECT_NEAR(scene()->lookAt[2], 0.1f, 1e-5f);
    up(80, 50);
    keyUp(kVkShift);
}

TEST_F(Navigation, KeysMoveTurnAndReset) {
    key(VK_LEFT);
    EXPECT_NEAR(scene()->pos[0], 0.1f, 1e-6f);
    key(VK_UP);
    EXPECT_NEAR(scene()->pos[2], 5.1f, 1e-5f);
    key(VK_NUMPAD1);
    EXPECT_EQ(scene()->rotAngle, 15.0f);
    EXPECT_EQ(scene()->rotAxis[2], 1.0f);
    seOnPaint(host.hwnd);
    EXPECT_EQ(scene()->rotAngle, 15.0f);  // applied again by every pass until cleared
    key('Q');
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    key(VK_HOME);
    EXPECT_EQ(scene()->pos[0], 0.0f);
    EXPECT_EQ(scene()->pos[2], 5.0f);
    key(VK_ADD);
    EXPECT_EQ(scene()->angle, 46.0);
}

TEST_F(Navigation, WalkingKeysMakeOneStepEach) {
    smActionMode(TS_WALK);
    const float z = scene()->pos[2];
    key(VK_UP);
    EXPECT_LT(scene()->pos[2], z);  // one step along dir (0, 0, -1)
    EXPECT_EQ(scene()->speed, 0.0f);
}
