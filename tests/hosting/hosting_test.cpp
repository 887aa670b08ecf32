// Scenes in windows that the application owns, driven through the se* handlers: the
// answers without a scene, the direct path of the scene calls, the quit message of
// every destroy, two windows and the registry entry of a destroyed one, and the context
// menu and its commands reaching an application's window procedure.
#include <windows.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "library/globals.h"
#include "registry/cspwhlist.h"
#include "support/child_process.h"
#include "support/gl_window.h"
#include "support/host_window.h"
#include "support/menu_watch.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "view/scene/cscene.h"
#include "view_fixture.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

// A window with no scene: every handler must answer without one.
HWND plainWindow() {
    tst::registerTestClass("TstPlain", DefWindowProcA);
    return tst::createTestWindow("TstPlain", 80, 60);
}

bool quitPosted(WPARAM* code) {
    MSG msg;
    if (!PeekMessageA(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) return false;
    *code = msg.wParam;
    return true;
}

bool registered(HWND window) { return ts::sceneRegistry().Find(window) != 0; }

}  // namespace

TST_SCENARIO(HandlersWithoutAScene) {
    HWND plain = plainWindow();
    EXPECT_EQ(seOnPaint(plain), 1);
    EXPECT_EQ(seOnEraseBkgnd(plain), 1);  // silently
    EXPECT_EQ(seOnSize(plain), 1);        // silently
    EXPECT_EQ(seOnMove(plain), 1);        // silently
    EXPECT_EQ(seOnDestroy(plain), 1);     // no active scene: the look-up above cleared it
    EXPECT_EQ(seOnCommand(plain, TS_CMD_STOP_MOTION, 0), 1);
    EXPECT_EQ(seOnChar(plain, 'a', 0), 1);
    EXPECT_EQ(seOnKeyDown(plain, 'A', 0), 1);
    EXPECT_EQ(seOnKeyUp(plain, 'A', 0), 1);
    EXPECT_EQ(seOnLButtonDown(plain, 0, 0), 1);
    EXPECT_EQ(seOnMButtonDown(plain, 0, 0), 1);
    EXPECT_EQ(seOnRButtonDown(plain, 0, 0), 1);
    EXPECT_EQ(seOnLButtonUp(plain, 0, 0), 1);
    EXPECT_EQ(seOnMouseMove(plain, 0, 0), 1);
    DestroyWindow(plain);
}
TEST(Hosting, EveryHandlerAnswersAWindowWithoutASceneAsDesigned) {
    const tst::ChildResult r = tst::runScenario("HandlersWithoutAScene");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
    const std::vector<std::string> names = {"seOnPaint",      "seOnDestroy",     "seOnCommand",     "seOnChar",
                                            "seOnKeyDown",    "seOnKeyUp",       "seOnLButtonDown", "seOnMButtonDown",
                                            "seOnRButtonDown", "seOnLButtonUp",  "seOnMouseMove"};
    ASSERT_EQ(r.boxes.size(), names.size());
    for (size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(r.boxes[i].text, "No active scene found in " + names[i] + "!");
        EXPECT_EQ(r.boxes[i].title, "Tessarin Error Message");
        EXPECT_EQ(r.boxes[i].style, static_cast<UINT>(MB_SETFOREGROUND));
    }
}

TST_SCENARIO(DirectPath) {
    tst::HostWindow host("Direct");
    ASSERT_NE(host.scene, nullptr);
    EXPECT_EQ(THREAD_ACTIVE, 0);
    EXPECT_EQ(hDummy, nullptr);  // no scene thread, no request window
    EXPECT_EQ(CURRENT_SCENE, host.scene);
    smShadeMode(TS_SHADE_NONE);  // the colour as given
    smAddNode(new vt::QuadNode(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(host.scene->list3D->count, 1);
    EXPECT_EQ(host.scene->has3D, 1);
    EXPECT_EQ(host.paintAndRead(80, 60), (tst::Rgb{0, 0, 255}));
    EXPECT_EQ(hDummy, nullptr);
}
TEST(Hosting, InAnApplicationWindowSmAddNodeAddsWithoutARequest) { expectCleanChild(tst::runScenario("DirectPath")); }

TST_SCENARIO(TwoWindows) {
    auto* first = new tst::HostWindow("First", 120, 90);
    auto* second = new tst::HostWindow("Second", 120, 90);
    cSPWHList& registry = ts::sceneRegistry();
    EXPECT_TRUE(registered(first->hwnd));
    EXPECT_TRUE(registered(second->hwnd));
    EXPECT_EQ(registry.head->wh, first->hwnd);
    HWND gone = second->hwnd;
    EXPECT_EQ(seOnPaint(gone), 0);  // the second scene is the active one
    WPARAM code = 99;
    EXPECT_FALSE(quitPosted(&code));
    DestroyWindow(gone);
    ASSERT_TRUE(quitPosted(&code));  // every destroy posts the quit message
    EXPECT_EQ(code, 0u);
    EXPECT_FALSE(registered(gone));  // its entry went, and its scene with it
    EXPECT_TRUE(registered(first->hwnd));
    EXPECT_EQ(registry.head->next, nullptr);
    EXPECT_EQ(ACTIVE_SCENE, nullptr);
    // The first window still draws; the destroyed one has no scene any more.
    smCurrentScene(first->scene);
    EXPECT_EQ(seOnPaint(first->hwnd), 0);
    EXPECT_EQ(ACTIVE_SCENE, first->scene);
    EXPECT_EQ(seOnPaint(gone), 1);
    // The last window: the registry empties, and the quit message comes again.
    EXPECT_EQ(seOnPaint(first->hwnd), 0);
    HWND last = first->hwnd;
    DestroyWindow(last);
    ASSERT_TRUE(quitPosted(&code));
    EXPECT_EQ(code, 0u);
    EXPECT_FALSE(registered(last));
    EXPECT_EQ(registry.head, nullptr);
    delete second;
    delete first;
}
TEST(Hosting, AnApplicationWithTwoWindowsLosesTheRegistryEntryOfTheOneDestroyed) {
    const tst::ChildResult r = tst::runScenario("TwoWindows");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u);
    EXPECT_EQ(r.boxes[0].text, "No active scene found in seOnPaint!");
}

TST_SCENARIO(MenuInAnApplicationWindow) {
    tst::HostWindow host("Hosted menu");
    smAddNode(new vt::QuadNode(1.0f, 1.0f, 1.0f));
    host.paintAndRead(0, 0);
    tst::MenuWatch watch(GetCurrentThreadId());
    std::vector<tst::MenuItem> items;
    watch.onPopup([&](HWND popup) {
        if (!items.empty()) return;  // chosen once
        items = tst::readMenu(tst::popupMenu(popup));
        // Projection Mode, then "Orthogonal", chosen with the keyboard.
        tst::pressKeys(popup, {VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RIGHT, VK_DOWN, VK_RETURN});
    });
    PostMessageA(host.hwnd, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(40, 30));
    tst::pump();  // the handler tracks the menu here, the choice comes back as WM_COMMAND
    tst::pump();
    EXPECT_EQ(watch.menuLoops(), 1);
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items[1].text, "Stop Motion");
    EXPECT_EQ(host.scene->project_mode, TS_ORTHOGONAL);
    const cEvent* newest = host.scene->events.head;  // queued before the command ran
    ASSERT_NE(newest, nullptr);
    EXPECT_EQ(newest->type, WM_COMMAND);
    EXPECT_EQ(newest->wParam, static_cast<uintptr_t>(TS_CMD_PROJECTION_ORTHOGONAL));
    // seOnCommand runs any command of the table.
    SendMessageA(host.hwnd, WM_COMMAND, TS_CMD_DRAW_LINES, 0);
    EXPECT_EQ(host.scene->draw_mode, TS_DRAW_LINES);
    SendMessageA(host.hwnd, WM_COMMAND, TS_CMD_ACTION_WALK, 0);
    EXPECT_EQ(host.scene->action_mode, TS_WALK);
}
TEST(Hosting, TheContextMenuAndItsCommandsReachAnApplicationWindow) {
    expectCleanChild(tst::runScenario("MenuInAnApplicationWindow"));
}
