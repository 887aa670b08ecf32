// Picking selects a mesh like any other node: a click on a library window reports the
// face set's and the grid's own handles. Each scenario runs in a child process (one
// scene thread each).
#include <windows.h>

#include "mesh_scene.h"
#include "support/child_process.h"
#include "support/event_waiter.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

struct SceneWindow {
    SceneWindow() {
        window = swCreateWind("Mesh picking", 200, 200, 40, 40, WS_OVERLAPPEDWINDOW);
        swShowWind(window);
        scene = swCreateScene(window);
        hwnd = smGetHWND(scene);
        GetClientRect(hwnd, &client);
        smProjectionMode(TS_PERSPECTIVE, 45.0, 0.1, 100.0);  // the camera mt::project maps
        smResetPos();
        smTranslation(0.0f, 0.0f, 5.0f);
    }
    // Clicks at (x, y) until a waiter on button events has taken a click there: a click
    // before the waiter waits is queued but not picked. The clicks are sent, so each one
    // is handled before the next.
    swEventRecord click(int x, int y) {
        swEventRecord record = {};
        EXPECT_TRUE(tst::waitWhileFeeding(
            TS_WAIT_BUTTONS, 0, record,
            [&] {
                SendMessageA(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
                SendMessageA(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
            },
            [x, y](const swEventRecord& r) { return r.mouseX == x && r.mouseY == y; }, 10000));
        return record;
    }
    cWind* window = nullptr;
    cScene* scene = nullptr;
    HWND hwnd = nullptr;
    RECT client = {};
};

TST_SCENARIO(PickAFaceSetAndAGrid) {
    SceneWindow w;
    snDisable(nullptr, TS_SWITCH_MOUSE_NAVIGATION);  // clicks only pick
    snEnable(nullptr, TS_SWITCH_PICKING);
    const mt::Cube cube;
    cNode* mesh = mt::faceSet(nullptr, cube.coords, cube.index, 30, TRUE);
    snTranslate(nullptr, 1.2f, 0.0f, 0.0f);
    const float heights[4] = {0, 0, 0, 0};
    snRotate(nullptr, 90.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    cNode* grid = snElevationGrid(nullptr, 2, 2, 0.5f, 0.5f, heights, 0, TRUE, FALSE, nullptr, FALSE, nullptr);
    smRefreshScene(w.scene);  // the switch nodes take effect when drawn
    const int cx = w.client.right / 2, cy = w.client.bottom / 2;
    swEventRecord r = w.click(cx, cy);
    EXPECT_EQ(r.hits, 1);
    EXPECT_EQ(tsNodeFromName(r.pickedName), mesh);
    // The grid lies at x 1.2 .. 1.7, y 0 .. -0.5 (z = 0); its middle:
    const POINT p = mt::project(1.45f, -0.25f, 0.0f, w.client.right, w.client.bottom);
    r = w.click(p.x, p.y);
    EXPECT_EQ(r.hits, 1);
    EXPECT_EQ(tsNodeFromName(r.pickedName), grid);
    // After a switch of the shading mode the recompiled list is picked the same way.
    smShadeMode(TS_SHADE_FLAT);
    r = w.click(cx, cy);
    EXPECT_EQ(tsNodeFromName(r.pickedName), mesh);
}
TEST(MeshPicking, AClickNamesTheMeshUnderTheCursor) { expectCleanChild(tst::runScenario("PickAFaceSetAndAGrid")); }

}  // namespace
