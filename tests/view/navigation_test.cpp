// Navigation through the se* handlers of a hosted scene: every mouse gesture and key of
// each action mode, with distinct sensitivities and increments, checked against the
// camera that the documented formulas give. Time is the scene's own: a release counts
// as quick or late by auto_delay, chosen so that the wall clock cannot change the answer.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "events/event_wait.h"
#include "support/host_window.h"
#include "tessarin.h"
#include "view/navigation/scene_cursor.h"
#include "view/scene/cscene.h"

namespace {

constexpr int kVkShift = 16, kVkControl = 17;
constexpr double kDegree = 0.01745329251994;

struct Vec {
    double x, y, z;
};

Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Vec operator+(Vec a, Vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Vec operator*(double s, Vec a) { return {s * a.x, s * a.y, s * a.z}; }
double dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vec cross(Vec a, Vec b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
double length(Vec a) { return std::sqrt(dot(a, a)); }
Vec of(const float* v) { return {v[0], v[1], v[2]}; }

// v turned by angle degrees about axis, right-handed, as glRotatef turns it.
Vec turned(Vec v, Vec axis, double angle) {
    const Vec k = (1.0 / length(axis)) * axis;
    const double c = std::cos(angle * kDegree), s = std::sin(angle * kDegree);
    return c * v + s * cross(k, v) + (dot(k, v) * (1.0 - c)) * k;
}

void expectVec(const float* actual, Vec expected, double tolerance = 1e-5) {
    EXPECT_NEAR(actual[0], expected.x, tolerance);
    EXPECT_NEAR(actual[1], expected.y, tolerance);
    EXPECT_NEAR(actual[2], expected.z, tolerance);
}

// The trackball point of a window position: the window position of the origin's
// projection at the eye's distance, scaled to -1..1, lifted onto a unit sphere.
Vec trackball(const cScene* s, int x, int y) {
    const double width = s->clientRect.right, height = s->clientRect.bottom;
    const double h = std::tan(s->angle * 0.5 * kDegree) * (s->pos[2] * 2.0);
    const double w = width / height * h;
    const double cy = height * (h * 0.5 + s->pos[1]) / h;
    const double cx = width * (w * 0.5 - s->pos[0]) / w;
    const double bx = (x - cx) * 2.0 / width, by = (cy - y) * 2.0 / height;
    const double bz = std::cos(std::min(std::sqrt(bx * bx + by * by), 1.0) * 1.5707963);
    const Vec b = {bx, by, bz};
    return (1.0 / length(b)) * b;
}

class Navigation : public ::testing::Test {
protected:
    Navigation() {
        snBox(nullptr, -1, -1, -1, 1, 1, 1, 100020 /* GLU_OUTSIDE */);
        cScene* s = scene();
        // Every sensitivity and increment differs, so that a formula taking the wrong
        // one shows.
        s->sensib_rotate = 1.5f;
        s->sensib_x_fly = 2.0f;
        s->sensib_y_fly = 3.0f;
        s->sensib_x_walk = 0.5f;
        s->sensib_y_walk = 4.0f;
        s->rotate_dpos = 0.25f;
        s->rotate_drot = 7.0f;
        s->fly_dspeed = 0.03f;
        s->walk_drot = 11.0f;
        s->walk_dpos = 0.4f;
    }
    cScene* scene() const { return host.scene; }
    void down(int x, int y) { seOnLButtonDown(host.hwnd, MK_LBUTTON, MAKELPARAM(x, y)); }
    void move(int x, int y) { seOnMouseMove(host.hwnd, MK_LBUTTON, MAKELPARAM(x, y)); }
    void up(int x, int y) { seOnLButtonUp(host.hwnd, 0, MAKELPARAM(x, y)); }
    void key(int vk) { seOnKeyDown(host.hwnd, static_cast<WPARAM>(vk), 1); }
    void keyUp(int vk) { seOnKeyUp(host.hwnd, static_cast<WPARAM>(vk), 1); }
    // A drag from (x0, y0) to (x1, y1): the first move only takes the position.
    void drag(int x0, int y0, int x1, int y1) {
        down(x0, y0);
        move(x0, y0);
        move(x1, y1);
    }
    // A release that counts as quick (the scene spins on) or as after a rest.
    void quickRelease(int x, int y) {
        scene()->auto_delay = INT_MAX / 2;
        up(x, y);
    }
    void lateRelease(int x, int y) {
        scene()->auto_delay = INT_MIN / 2;
        up(x, y);
    }
    tst::HostWindow host{"Navigation", 160, 120};
};

}  // namespace

// --- TS_ROTATE: the trackball, panning and zooming --------------------------------------

TEST_F(Navigation, ARotateDragTurnsByTheTrackballAngleAboutItsAxis) {
    const Vec from = trackball(scene(), 100, 50), to = trackball(scene(), 120, 65);
    down(100, 50);
    move(100, 50);
    EXPECT_EQ(scene()->rotAngle, 0.0f);  // the first move takes the position only
    move(120, 65);
    const double angle = length(from - to) * 90.0 * 1.5;
    const Vec axis = cross(from, to);
    EXPECT_NEAR(scene()->rotAngle, angle, 1e-4);
    expectVec(scene()->rotAxis, axis, 1e-6);
    expectVec(scene()->pending, {0, 0, 0}, 0);
    // The pass after the move folded that turn into the accumulated rotation.
    const Vec turnedX = turned({1, 0, 0}, axis, angle);
    expectVec(&scene()->rotMatrix[0], turnedX, 1e-5);
}

TEST_F(Navigation, AQuickReleaseKeepsTheSceneSpinningByTheLastAngle) {
    drag(100, 50, 120, 65);
    const float angle = scene()->rotAngle;
    const Vec axis = of(scene()->rotAxis);
    quickRelease(120, 65);
    EXPECT_EQ(scene()->motionRunning, 1);
    EXPECT_EQ(scene()->rotAngle, angle);
    EXPECT_EQ(scene()->idle, 0);  // the release's pass asked to paint again
    // Two passes so far (move, release): the scene has turned twice by the angle.
    expectVec(&scene()->rotMatrix[0], turned({1, 0, 0}, axis, 2.0 * angle), 1e-5);
    seOnPaint(host.hwnd);
    expectVec(&scene()->rotMatrix[0], turned({1, 0, 0}, axis, 3.0 * angle), 1e-5);
    expectVec(scene()->pending, {0, 0, 0}, 0);
}

TEST_F(Navigation, AReleaseAfterRestingStopsTheScene) {
    drag(100, 50, 120, 65);
    lateRelease(120, 65);
    EXPECT_EQ(scene()->motionRunning, 0);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    seOnPaint(host.hwnd);
    EXPECT_EQ(scene()->idle, 1);
}

TEST_F(Navigation, CtrlPansTheCentreWithTheFlySensitivities) {
    key(kVkControl);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorPan]);
    scene()->lastMoveTime = -777;
    drag(80, 60, 60, 70);  // dx = 80 - 60 = 20, dy = 70 - 60 = 10
    expectVec(scene()->lookAt, {20 * 0.01 * 2.0, 10 * 0.01 * 3.0, 0});
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    EXPECT_EQ(scene()->lastMoveTime, -777);  // panning does not count as a move
    move(50, 70);                            // a further 10 to the left
    expectVec(scene()->lookAt, {30 * 0.01 * 2.0, 10 * 0.01 * 3.0, 0});
    up(50, 70);
    keyUp(kVkControl);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorRotate]);
}

TEST_F(Navigation, ShiftZoomsAlongZWithTheVerticalFlySensitivity) {
    key(kVkShift);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorZoom]);
    scene()->lastMoveTime = -777;
    drag(80, 60, 95, 52);  // up by 8: the centre comes 8 * 0.01 * 3 nearer
    expectVec(scene()->lookAt, {0, 0, 8 * 0.01 * 3.0});
    EXPECT_NE(scene()->lastMoveTime, -777);
    up(95, 52);
    keyUp(kVkShift);
    EXPECT_EQ(GetCursor(), scene()->cursors[ts::kCursorRotate]);
}

// --- TS_FLY and TS_WALK drags -------------------------------------------------------------

TEST_F(Navigation, AFlyDragSetsPitchYawAndRollRatesThatGoOnAfterTheRelease) {
    smActionMode(TS_FLY);
    scene()->yaw_roll_ratio = 0.25f;
    const Vec dir = of(scene()->dir), up0 = of(scene()->up), right = of(scene()->right);
    drag(80, 60, 70, 64);  // dx = 10, dy = 4
    const double yawShare = 10 * 0.01 * 2.0, pitch = 4 * 0.01 * 3.0;
    EXPECT_NEAR(scene()->pitchRate, pitch, 1e-6);
    EXPECT_NEAR(scene()->yawRate, 0.75 * yawShare, 1e-6);
    EXPECT_NEAR(scene()->rollRate, -0.25 * yawShare, 1e-6);
    // The pass turned the look vectors: pitch about right, yaw about the world's y,
    // then roll about the new dir.
    Vec d = turned(dir, right, pitch), u = turned(up0, right, pitch), r = turned(right, right, pitch);
    d = turned(d, {0, 1, 0}, 0.75 * yawShare), u = turned(u, {0, 1, 0}, 0.75 * yawShare),
    r = turned(r, {0, 1, 0}, 0.75 * yawShare);
    const Vec rollAxis = d;
    d = turned(d, rollAxis, -0.25 * yawShare), u = turned(u, rollAxis, -0.25 * yawShare);
    expectVec(scene()->dir, d);
    expectVec(scene()->up, u);
    up(70, 64);
    EXPECT_NEAR(scene()->yawRate, 0.75 * yawShare, 1e-6);  // the aeroplane keeps its rates
    EXPECT_NEAR(scene()->pitchRate, pitch, 1e-6);
    expectVec(scene()->pending, {0, 0, 0}, 0);
}

TEST_F(Navigation, AWalkDragTurnsAndChangesTheSpeedAndTheReleaseStops) {
    smActionMode(TS_WALK);
    drag(80, 60, 74, 45);  // dx = 6, dy = -15
    EXPECT_NEAR(scene()->yawRate, 6 * 0.01 * 0.5, 1e-6);
    EXPECT_NEAR(scene()->speed, 15 * 0.0005 * 4.0, 1e-6);
    EXPECT_EQ(scene()->pitchRate, 0.0f);
    EXPECT_EQ(scene()->rollRate, 0.0f);
    const Vec dir = turned({0, 0, -1}, {0, 1, 0}, 6 * 0.01 * 0.5);
    expectVec(scene()->dir, dir);
    expectVec(scene()->pos, Vec{0, 0, 5} + (15 * 0.0005 * 4.0) * dir);
    up(74, 45);
    EXPECT_EQ(scene()->speed, 0.0f);
    EXPECT_EQ(scene()->yawRate, 0.0f);
}

TEST_F(Navigation, WithMouseNavigationOffADragMovesNothing) {
    snDisable(nullptr, TS_SWITCH_MOUSE_NAVIGATION);
    seOnPaint(host.hwnd);  // the switch takes effect when drawn
    drag(100, 50, 140, 90);
    up(140, 90);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    expectVec(scene()->lookAt, {0, 0, 0}, 0);
    smActionMode(TS_WALK);
    drag(100, 50, 140, 90);
    EXPECT_EQ(scene()->speed, 0.0f);
    EXPECT_EQ(scene()->yawRate, 0.0f);
}

// --- keys -------------------------------------------------------------------------------

TEST_F(Navigation, RotateKeysMoveTheEyeByRotateDpos) {
    struct Step {
        int vk;
        Vec pos;
    } steps[] = {{VK_PRIOR, {0, -0.25, 5}}, {VK_NEXT, {0, 0, 5}},       {VK_LEFT, {0.25, 0, 5}},
                 {VK_RIGHT, {0, 0, 5}},     {VK_UP, {0, 0, 5.25}},      {VK_DOWN, {0, 0, 5}}};
    for (const Step& step : steps) {
        scene()->motionRunning = 1;
        scene()->rotAngle = 3.0f;
        key(step.vk);
        SCOPED_TRACE(step.vk);
        expectVec(scene()->pos, step.pos, 1e-6);
        EXPECT_EQ(scene()->motionRunning, 0);  // any key stops the motion first
        EXPECT_EQ(scene()->rotAngle, 0.0f);
        expectVec(ts::eventRecord().pos, step.pos, 1e-6);  // and a pass ran
    }
}

TEST_F(Navigation, KeypadKeysSetTheSpinOfRotateDrotUntilAnotherKey) {
    struct Step {
        int vk;
        Vec axis;
        float angle;
    } steps[] = {{VK_NUMPAD1, {0, 0, 1}, 7}, {VK_NUMPAD2, {1, 0, 0}, 7},  {VK_NUMPAD3, {0, 0, 1}, -7},
                 {VK_NUMPAD4, {0, 1, 0}, -7}, {VK_NUMPAD6, {0, 1, 0}, 7}, {VK_NUMPAD8, {1, 0, 0}, -7}};
    for (const Step& step : steps) {
        smResetPos();
        key(step.vk);
        SCOPED_TRACE(step.vk);
        expectVec(scene()->rotAxis, step.axis, 0);
        EXPECT_EQ(scene()->rotAngle, step.angle);
        expectVec(&scene()->rotMatrix[0], turned({1, 0, 0}, step.axis, step.angle));
        seOnPaint(host.hwnd);  // every later pass turns again
        expectVec(&scene()->rotMatrix[0], turned({1, 0, 0}, step.axis, 2.0 * step.angle));
    }
    key('Q');
    EXPECT_EQ(scene()->rotAngle, 0.0f);
}

TEST_F(Navigation, HomeAndKeypadZeroRestoreTheStartAndPlusMinusChangeTheViewAngle) {
    for (int vk : {VK_HOME, VK_NUMPAD0}) {
        key(VK_LEFT);
        key(VK_NUMPAD6);
        key(vk);
        expectVec(scene()->pos, {0, 0, 5}, 0);
        EXPECT_EQ(scene()->rotAngle, 0.0f);
        expectVec(&scene()->rotMatrix[0], {1, 0, 0}, 0);
    }
    key(VK_ADD);
    EXPECT_EQ(scene()->angle, 46.0);
    key(VK_SUBTRACT);
    key(VK_SUBTRACT);
    EXPECT_EQ(scene()->angle, 44.0);
}

TEST_F(Navigation, FlyKeysChangeTheSpeedAndLeaveLeftAndRightAlone) {
    smActionMode(TS_FLY);
    key(VK_UP);  // speed 0.03; the key's pass moves the eye by it along dir (0, 0, -1)
    EXPECT_NEAR(scene()->speed, 0.03, 1e-7);
    expectVec(scene()->pos, {0, 0, 5 - 0.03}, 1e-6);
    key(VK_UP);
    EXPECT_NEAR(scene()->speed, 0.06, 1e-7);
    expectVec(scene()->pos, {0, 0, 5 - 0.03 - 0.06}, 1e-6);
    key(VK_DOWN);
    EXPECT_NEAR(scene()->speed, 0.03, 1e-7);
    smStopMotion();
    const Vec pos = of(scene()->pos);
    key(VK_LEFT);
    key(VK_RIGHT);
    expectVec(scene()->pos, pos, 0);
    expectVec(scene()->dir, {0, 0, -1}, 0);
    key(VK_PRIOR);
    expectVec(scene()->pos, pos - Vec{0, 0.25, 0}, 1e-6);
}

TEST_F(Navigation, WalkKeysMakeOneStepOrOneTurnEach) {
    smActionMode(TS_WALK);
    key(VK_UP);
    expectVec(scene()->pos, {0, 0, 5 - 0.4}, 1e-6);
    EXPECT_EQ(scene()->speed, 0.0f);
    key(VK_DOWN);
    expectVec(scene()->pos, {0, 0, 5}, 1e-6);
    key(VK_LEFT);  // one turn of walk_drot about up
    expectVec(scene()->dir, turned({0, 0, -1}, {0, 1, 0}, 11));
    EXPECT_EQ(scene()->yawRate, 0.0f);
    key(VK_RIGHT);
    expectVec(scene()->dir, {0, 0, -1});
    seOnPaint(host.hwnd);  // nothing goes on after a key
    expectVec(scene()->dir, {0, 0, -1});
    expectVec(scene()->pos, {0, 0, 5}, 1e-6);
}

TEST_F(Navigation, WhileCtrlOrShiftIsHeldAKeyMovesWithoutAPass) {
    seOnPaint(host.hwnd);
    key(kVkShift);
    key(VK_UP);
    expectVec(scene()->pos, {0, 0, 5.25}, 1e-6);
    expectVec(ts::eventRecord().pos, {0, 0, 5}, 0);  // no pass since
    keyUp(kVkShift);
    key('Q');
    expectVec(ts::eventRecord().pos, {0, 0, 5.25}, 1e-6);
}

TEST_F(Navigation, WithKeyNavigationOffKeysMoveNothing) {
    snDisable(nullptr, TS_SWITCH_KEY_NAVIGATION);
    seOnPaint(host.hwnd);
    for (int vk : {VK_PRIOR, VK_LEFT, VK_UP, VK_NUMPAD6, VK_ADD}) key(vk);
    expectVec(scene()->pos, {0, 0, 5}, 0);
    EXPECT_EQ(scene()->rotAngle, 0.0f);
    EXPECT_EQ(scene()->angle, 45.0);
}
