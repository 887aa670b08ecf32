// A shown library window with a scene, opened through the sw calls as a client opens
// one, and the input a test posts to it. Header-only: it calls the library, so each
// test compiles it against the copy of the library it links.
#pragma once

#include <windows.h>

#include <memory>

#include <gtest/gtest.h>

#include "support/event_waiter.h"
#include "support/thread_watch.h"
#include "tessarin.h"

namespace tst {

class LibraryScene {
public:
    explicit LibraryScene(const char* title, int width = 200, int height = 150)
        : window(swCreateWind(title, width, height, 40, 40, WS_OVERLAPPEDWINDOW)) {
        swShowWind(window);
        scene = swCreateScene(window);
        hwnd = smGetHWND(scene);
        watch_ = std::make_unique<MessageWatch>(GetWindowThreadProcessId(hwnd, nullptr));
        RECT client = {};
        GetClientRect(hwnd, &client);
        centreX = client.right / 2;
        centreY = client.bottom / 2;
    }

    // Posts message and returns once the scene thread has handled it.
    void handled(UINT message, WPARAM wParam, LPARAM lParam) {
        EXPECT_TRUE(watch_->postAndWait(hwnd, message, wParam, lParam));
        EXPECT_TRUE(watch_->postAndWait(hwnd, WM_NULL, 0, 0));
    }
    void key(int virtualKey) { handled(WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1); }

    // A left click at x, y handed out by swWaitForEvent(TS_WAIT_BUTTONS, 0). The click is
    // fed until the waiter returns; every click fed is handled before this returns.
    swEventRecord click(int x, int y) {
        swEventRecord record = {};
        EXPECT_TRUE(waitWhileFeeding(
            TS_WAIT_BUTTONS, 0, record,
            [&] {
                PostMessageA(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
                PostMessageA(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
            },
            [x, y](const swEventRecord& r) { return r.mouseX == x && r.mouseY == y; }));
        EXPECT_TRUE(watch_->postAndWait(hwnd, WM_NULL, 0, 0));
        EXPECT_EQ(record.scene, scene);
        EXPECT_EQ(record.button, 1);
        EXPECT_EQ(record.mouseX, x);
        EXPECT_EQ(record.mouseY, y);
        return record;
    }

    cWind* window = nullptr;
    cScene* scene = nullptr;
    HWND hwnd = nullptr;
    int centreX = 0, centreY = 0;  // of the client area

private:
    std::unique_ptr<MessageWatch> watch_;
};

}  // namespace tst
