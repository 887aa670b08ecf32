// The event list and the waitable event record, fed by real window messages on a
// library window. Every scenario runs in a child process (one scene thread each).
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "events/event_wait.h"
#include "library/globals.h"
#include "support/child_process.h"
#include "support/thread_watch.h"
#include "tessarin.h"
#include "thread/cwind.h"
#include "view/scene/cscene.h"

namespace {

struct SceneWindow {
    SceneWindow() {
        window = swCreateWind("Events", 200, 150, 40, 40, WS_OVERLAPPEDWINDOW);
        swShowWind(window);
        scene = swCreateScene(window);
        hwnd = window->hWnd;
        watch = new tst::MessageWatch(GetWindowThreadProcessId(hwnd, nullptr));
    }
    ~SceneWindow() { delete watch; }
    void key(int virtualKey, int character) {
        if (character != 0) {
            watch->expect(WM_CHAR, static_cast<WPARAM>(character));
            PostMessageA(hwnd, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
            EXPECT_TRUE(watch->wait());
        } else {
            EXPECT_TRUE(watch->postAndWait(hwnd, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1));
        }
    }
    void post(UINT message, WPARAM wParam, LPARAM lParam) { EXPECT_TRUE(watch->postAndWait(hwnd, message, wParam, lParam)); }

    cWind* window;
    cScene* scene;
    HWND hwnd;
    tst::MessageWatch* watch;
};

void expectEvent(int* got, int type, int wParam) {
    ASSERT_NE(got, nullptr);
    EXPECT_EQ(got[0], type);
    EXPECT_EQ(got[1], wParam);
}

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

// The waiter shows that it waits by the mask it sets before it blocks; input sent
// earlier is not noted, so the input follows the mask and is repeated until the wait
// returns. On a busy machine that may take a while: ten seconds at most, after which
// the waiter is woken so that the failure is reported rather than hung on.
template <class Input>
bool releaseWaiter(std::thread& waiter, std::atomic<bool>& done, Input input) {
    const DWORD start = GetTickCount();
    const auto inTime = [&] { return GetTickCount() - start < 10000; };
    while (ts::waitMask() == 0 && !done && inTime()) SwitchToThread();
    while (!done && inTime()) {
        input();
        for (int spin = 0; spin < 50 && !done; ++spin) SwitchToThread();
    }
    const bool released = done;
    while (!done) SetEvent(hSyncEvent);
    waiter.join();
    return released;
}

}  // namespace

TST_SCENARIO(KeysComeBackNewestFirst) {
    SceneWindow w;
    w.key('A', 'a');
    w.key('B', 'b');
    w.key('C', 'c');
    expectEvent(swGetEvent(0), WM_CHAR, 'c');
    expectEvent(swGetEvent(0), WM_KEYDOWN, 'C');
    expectEvent(swGetEvent(0), WM_CHAR, 'b');
    expectEvent(swGetEvent(0), WM_KEYDOWN, 'B');
    expectEvent(swGetEvent(WM_KEYDOWN), WM_KEYDOWN, 'A');
    expectEvent(swGetEvent(0), WM_CHAR, 'a');
    EXPECT_EQ(swGetEvent(0), nullptr);
}
TEST(Events, KeyPressesComeBackNewestFirst) { expectCleanChild(tst::runScenario("KeysComeBackNewestFirst")); }

TST_SCENARIO(OnlyTwentyKept) {
    SceneWindow w;
    for (int i = 0; i < 25; ++i) w.post(WM_LBUTTONDOWN, 0, MAKELPARAM(i, 0));
    EXPECT_EQ(w.scene->events.count, 20);
    for (int i = 24; i >= 5; --i) {
        int* got = swGetEvent(WM_LBUTTONDOWN);
        ASSERT_NE(got, nullptr);
        EXPECT_EQ(LOWORD(got[2]), i);
    }
    EXPECT_EQ(swGetEvent(0), nullptr);
}
TEST(Events, TwentyFiveClicksKeepTheNewestTwenty) { expectCleanChild(tst::runScenario("OnlyTwentyKept")); }

TST_SCENARIO(ClearEmptiesTheList) {
    SceneWindow w;
    snDisable(nullptr, TS_SWITCH_CONTEXT_MENU);  // a right click then opens no menu
    smRefreshScene(w.scene);
    w.post(WM_RBUTTONDOWN, 0, 0);
    w.post(WM_MBUTTONDOWN, 0, 0);
    w.post(WM_COMMAND, TS_CMD_STOP_MOTION, 0);  // a command that asks nothing
    w.post(WM_LBUTTONUP, 0, 0);
    w.post(WM_KEYUP, 'A', 0);      // never queued
    w.post(WM_MOUSEMOVE, 0, 0);    // never queued
    EXPECT_EQ(swEventExists(0), 1);
    EXPECT_EQ(swEventExists(WM_COMMAND), 1);
    EXPECT_EQ(swEventExists(WM_KEYUP), 0);
    EXPECT_EQ(swEventExists(WM_MOUSEMOVE), 0);
    EXPECT_EQ(w.scene->events.count, 4);
    EXPECT_EQ(swGetEvent(0x303), nullptr);
    EXPECT_EQ(swEventExists(0), 0);
    EXPECT_EQ(w.scene->events.count, 0);
}
TEST(Events, GetWithClearEmptiesTheList) { expectCleanChild(tst::runScenario("ClearEmptiesTheList")); }

TST_SCENARIO(WaitForMiddleClick) {
    SceneWindow w;
    std::atomic<bool> done{false};
    swEventRecord record = {};
    std::thread waiter([&] {
        record = swWaitForEvent(2, 0);
        done = true;
    });
    EXPECT_TRUE(releaseWaiter(waiter, done, [&] { PostMessageA(w.hwnd, WM_MBUTTONDOWN, 0, MAKELPARAM(17, 23)); }));
    EXPECT_EQ(record.scene, w.scene);
    EXPECT_EQ(record.button, 2);
    EXPECT_EQ(record.pickedName, 0u);
    EXPECT_EQ(record.hits, 0);
    EXPECT_EQ(record.mouseX, 17);
    EXPECT_EQ(record.mouseY, 23);
}
TEST(Events, WaitIsReleasedByAMiddleClickFromAnotherThread) { expectCleanChild(tst::runScenario("WaitForMiddleClick")); }

TST_SCENARIO(WaitFilterComparesVirtualKeys) {
    SceneWindow w;
    std::atomic<bool> done{false};
    swEventRecord record = {};
    std::thread waiter([&] {
        record = swWaitForEvent(1, 'A');
        done = true;
    });
    // Other keys never release the wait, however often they come.
    for (int i = 0; i < 30 && !done; ++i) w.key('B', 'b');
    EXPECT_FALSE(done);
    EXPECT_TRUE(releaseWaiter(waiter, done, [&] { w.key('A', 'a'); }));
    EXPECT_EQ(record.virtualKey, 'A');
    EXPECT_EQ(record.character, 'a');
    EXPECT_EQ(record.scene, w.scene);
}
TEST(Events, KeyWaitWithAFilterIsReleasedOnlyByThatKey) {
    expectCleanChild(tst::runScenario("WaitFilterComparesVirtualKeys"));
}

TST_SCENARIO(KeyWithoutCharacterCompletesOnTheNextMessage) {
    SceneWindow w;
    std::atomic<bool> done{false};
    swEventRecord record = {};
    // Until the waiter's mask is set a key-down is not noted, and a completion without
    // a noted key hands back an older code; the waiter therefore waits again until it
    // sees the key it was sent.
    std::thread waiter([&] {
        for (int i = 0; i < 400 && record.virtualKey != VK_F5; ++i) record = swWaitForEvent(1, 0);
        done = true;
    });
    EXPECT_TRUE(releaseWaiter(waiter, done, [&] {
        w.key(VK_F5, 0);
        w.post(WM_NULL, 0, 0);  // the message after the key-down completes it
    }));
    EXPECT_EQ(record.virtualKey, VK_F5);
    EXPECT_EQ(record.character, 0);
    EXPECT_EQ(record.scene, w.scene);
}
TEST(Events, AKeyWithoutCharacterIsReportedWhenTheNextMessageArrives) {
    expectCleanChild(tst::runScenario("KeyWithoutCharacterCompletesOnTheNextMessage"));
}

namespace {

swEventRecord clickAndWait(SceneWindow& w, int x, int y) {
    std::atomic<bool> done{false};
    swEventRecord record = {};
    std::thread waiter([&] {
        record = swWaitForEvent(2, 0);
        done = true;
    });
    EXPECT_TRUE(releaseWaiter(waiter, done, [&] { PostMessageA(w.hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }));
    PostMessageA(w.hwnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    w.post(WM_NULL, 0, 0);  // clicks repeated for this wait are all taken before the next
    return record;
}

cNode* box(float z, float half) { return snBox(nullptr, -half, -half, z - half, half, half, z + half, 100020); }

}  // namespace

TST_SCENARIO(PickingNamesTheNodeUnderTheCursor) {
    SceneWindow w;
    snDisable(nullptr, 7);  // no mouse navigation: clicks only pick
    snEnable(nullptr, 5);   // picking on
    cNode* farBox = box(0.0f, 0.5f);
    cNode* nearBox = box(1.5f, 0.3f);
    smRefreshScene(w.scene);  // the switch nodes take effect when drawn
    RECT client;
    GetClientRect(w.hwnd, &client);
    swEventRecord r = clickAndWait(w, client.right / 2, client.bottom / 2);
    EXPECT_EQ(r.button, 1);
    EXPECT_EQ(r.hits, 2);
    EXPECT_EQ(tsNodeFromName(r.pickedName), nearBox);  // drawn later and nearer: it wins
    r = clickAndWait(w, 3, 3);                     // background
    EXPECT_EQ(r.hits, 0);
    EXPECT_EQ(tsNodeFromName(r.pickedName), nearBox);  // the earlier name stays
    smDelNode(nearBox);
    box(-1.5f, 0.3f);  // drawn later but farther: the first hit stays
    r = clickAndWait(w, client.right / 2, client.bottom / 2);
    EXPECT_EQ(r.hits, 2);
    EXPECT_EQ(tsNodeFromName(r.pickedName), farBox);
}
TEST(Picking, AClickNamesTheNodeUnderTheCursor) {
    expectCleanChild(tst::runScenario("PickingNamesTheNodeUnderTheCursor"));
}

TST_SCENARIO(NoPickingWithoutTheSwitch) {
    SceneWindow w;
    snDisable(nullptr, 7);
    box(0.0f, 0.5f);
    smRefreshScene(w.scene);
    RECT client;
    GetClientRect(w.hwnd, &client);
    const swEventRecord r = clickAndWait(w, client.right / 2, client.bottom / 2);
    EXPECT_EQ(r.hits, 0);
    EXPECT_EQ(r.pickedName, 0u);
}
TEST(Picking, WithPickingOffAClickReportsNoHit) { expectCleanChild(tst::runScenario("NoPickingWithoutTheSwitch")); }
