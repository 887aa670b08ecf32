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
    // Each input below has been handled by the scene thread when the call returns: the
    // loop has taken the message, and a message sent afterwards is answered only once
    // that turn of the loop has ended.
    void key(int virtualKey, int character) {
        if (character != 0) {
            watch->expect(WM_CHAR, static_cast<WPARAM>(character));
            PostMessageA(hwnd, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
            EXPECT_TRUE(watch->wait());
        } else {
            EXPECT_TRUE(watch->postAndWait(hwnd, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1));
        }
        settle();
    }
    void post(UINT message, WPARAM wParam, LPARAM lParam) {
        EXPECT_TRUE(watch->postAndWait(hwnd, message, wParam, lParam));
        settle();
    }
    void settle() { SendMessageA(hwnd, WM_NULL, 0, 0); }

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
    // A middle click clears what an earlier pick left.
    ts::eventRecord().hits = 7;
    ts::eventRecord().pickedName = 9;
    ts::eventRecord().button = 1;
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

namespace {

// The mask and filter are set as swWaitForEvent sets them before it blocks, and the
// event it blocks on is read without waiting: whether an input signals is then known
// once the scene thread has handled the input.
struct ArmedWait {
    ArmedWait(int mask, int filter) {
        ResetEvent(hSyncEvent);
        ts::waitFilter() = filter;
        ts::waitMask() = mask;
    }
    ~ArmedWait() { ts::waitMask() = 0; }
    static bool signalled() { return WaitForSingleObject(hSyncEvent, 0) == WAIT_OBJECT_0; }
};

cNode* box(float z, float half) { return snBox(nullptr, -half, -half, z - half, half, half, z + half, 100020); }

}  // namespace

TST_SCENARIO(WaitFilterComparesVirtualKeys) {
    SceneWindow w;
    {
        ArmedWait armed(1, 'A');
        w.key('B', 'b');
        w.post(WM_NULL, 0, 0);  // the character has been handled
        EXPECT_FALSE(ArmedWait::signalled());
        w.key(VK_F5, 0);
        w.post(WM_NULL, 0, 0);  // completes the key without character
        EXPECT_FALSE(ArmedWait::signalled());
        w.key('A', 'a');
        w.post(WM_NULL, 0, 0);
        EXPECT_TRUE(ArmedWait::signalled());
        EXPECT_EQ(ts::eventRecord().virtualKey, 'A');
        EXPECT_EQ(ts::eventRecord().character, 'a');
    }
    // And through a real wait on another thread.
    std::atomic<bool> done{false};
    swEventRecord record = {};
    std::thread waiter([&] {
        record = swWaitForEvent(1, 'A');
        done = true;
    });
    EXPECT_TRUE(releaseWaiter(waiter, done, [&] { w.key('A', 'a'); }));
    EXPECT_EQ(record.virtualKey, 'A');
    EXPECT_EQ(record.character, 'a');
    EXPECT_EQ(record.scene, w.scene);
    EXPECT_EQ(ts::waitMask(), 0);  // cleared by the wait
    EXPECT_EQ(ts::waitFilter(), 'A');  // kept
}
TEST(Events, KeyWaitWithAFilterIsReleasedOnlyByThatKey) {
    expectCleanChild(tst::runScenario("WaitFilterComparesVirtualKeys"));
}

TST_SCENARIO(KeyWithoutCharacterCompletesOnTheNextMessage) {
    SceneWindow w;
    ArmedWait armed(1, 0);
    w.key('Q', 'q');
    w.post(WM_NULL, 0, 0);
    ASSERT_TRUE(ArmedWait::signalled());
    ASSERT_EQ(ts::eventRecord().character, 'q');
    // F5 gives no character: after its key-down the record holds the key but nothing
    // is signalled until the next message arrives.
    w.key(VK_F5, 0);
    EXPECT_FALSE(ArmedWait::signalled());
    EXPECT_EQ(ts::eventRecord().virtualKey, VK_F5);
    w.post(WM_NULL, 0, 0);
    EXPECT_TRUE(ArmedWait::signalled());
    EXPECT_EQ(ts::eventRecord().character, 0);
    EXPECT_EQ(ts::eventRecord().scene, w.scene);
}
TEST(Events, AKeyWithoutCharacterIsReportedWhenTheNextMessageArrives) {
    expectCleanChild(tst::runScenario("KeyWithoutCharacterCompletesOnTheNextMessage"));
}

TST_SCENARIO(KeysWithCtrlOrShiftHeldAreNotReported) {
    SceneWindow w;
    ArmedWait armed(1, 0);
    w.post(WM_KEYDOWN, VK_CONTROL, 1);
    w.post(WM_NULL, 0, 0);
    EXPECT_FALSE(ArmedWait::signalled());
    w.key(VK_F5, 0);
    w.post(WM_NULL, 0, 0);
    EXPECT_FALSE(ArmedWait::signalled());
    w.post(WM_KEYUP, VK_CONTROL, 1);
    w.key(VK_F6, 0);
    w.post(WM_NULL, 0, 0);
    EXPECT_TRUE(ArmedWait::signalled());
    EXPECT_EQ(ts::eventRecord().virtualKey, VK_F6);
}
TEST(Events, KeysPressedWhileCtrlIsHeldDoNotReleaseAKeyWait) {
    expectCleanChild(tst::runScenario("KeysWithCtrlOrShiftHeldAreNotReported"));
}

// Moves during a left drag of the navigation are reported, with their position only;
// moves without a drag are not.
TST_SCENARIO(DragsAreReportedWhileTheLeftButtonNavigates) {
    SceneWindow w;
    box(0.0f, 0.5f);
    ArmedWait armed(4, 0);
    w.post(WM_MOUSEMOVE, 0, MAKELPARAM(10, 10));
    EXPECT_FALSE(ArmedWait::signalled());
    w.post(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 40));
    EXPECT_FALSE(ArmedWait::signalled());  // buttons are not asked for
    ts::eventRecord().button = 3;
    w.post(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(35, 41));
    EXPECT_TRUE(ArmedWait::signalled());
    EXPECT_EQ(ts::eventRecord().mouseX, 35);
    EXPECT_EQ(ts::eventRecord().mouseY, 41);
    EXPECT_EQ(ts::eventRecord().scene, w.scene);
    EXPECT_EQ(ts::eventRecord().button, 3);  // left as it was
    w.post(WM_LBUTTONUP, 0, MAKELPARAM(35, 41));
    w.post(WM_MOUSEMOVE, 0, MAKELPARAM(50, 50));
    EXPECT_FALSE(ArmedWait::signalled());
}
TEST(Events, MovesDuringALeftDragAreReportedAndOtherMovesAreNot) {
    expectCleanChild(tst::runScenario("DragsAreReportedWhileTheLeftButtonNavigates"));
}
