// swCreateWind when the window cannot be made, through the DLL: a style the system
// refuses ends in the assertion on the scene thread; once the scene thread has ended,
// every call reports "swCreateWind: Window creation failed!" and keeps nothing: no
// GDI or USER object and no heap block. Each scenario runs in a child process.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>
#include <string>

#include "support/child_process.h"
#include "support/resource_counts.h"
#include "tessarin.h"

namespace {

constexpr const char* kFailed = "swCreateWind: Window creation failed!";
constexpr int kCalls = 40;

tst::ResourceCounts growth(const tst::ResourceCounts& before, const tst::ResourceCounts& after) {
    tst::ResourceCounts d;
    d.gdiObjects = after.gdiObjects - before.gdiObjects;
    d.userObjects = after.userObjects - before.userObjects;
    d.heapBlocks = after.heapBlocks - before.heapBlocks;
    d.heapBytes = after.heapBytes - before.heapBytes;
    return d;
}

void print(const char* what, const tst::ResourceCounts& d) {
    printf("%s: gdi %+ld user %+ld heap blocks %+ld bytes %+lld\n", what, d.gdiObjects, d.userObjects, d.heapBlocks,
           d.heapBytes);
}

}  // namespace

// A top-level window cannot have WS_CHILD: CreateWindowEx refuses it, and the scene
// thread's invariant ends the process before the call could return.
TST_SCENARIO(RefusedStyleEndsInTheAssertion) {
    swCreateWind("Child without parent", 100, 100, 0, 0, WS_CHILD);
    printf("RETURNED\n");
}
TEST(WindowFailure, AStyleTheSystemRefusesEndsInTheSceneThreadsAssertion) {
    const tst::ChildResult r = tst::runScenario("RefusedStyleEndsInTheAssertion");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("hWin != NULL"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("..\\source\\cwind_wm_user.cpp"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("39"), std::string::npos) << r.output;
    EXPECT_EQ(r.output.find("RETURNED"), std::string::npos) << r.output;
    EXPECT_TRUE(r.boxes.empty());
}

// After the scene thread has ended the request finds no window to make. The test's own
// boxes of the same text and title measure what showing and capturing a box costs; the
// library's failing calls may cost no more than that.
TST_SCENARIO(FailedCreationKeepsNothing) {
    cWind* window = swCreateWind("Scene", 160, 120, 20, 20, WS_OVERLAPPEDWINDOW);
    cScene* scene = swCreateScene(window);
    HANDLE thread = OpenThread(SYNCHRONIZE, FALSE, GetWindowThreadProcessId(smGetHWND(scene), nullptr));
    swDeleteWind(window);
    ASSERT_EQ(WaitForSingleObject(thread, 20000), WAIT_OBJECT_0);
    CloseHandle(thread);
    // The first box of each kind loads what every later one shares.
    EXPECT_EQ(swCreateWind("After the end", 160, 120, 20, 20, WS_OVERLAPPEDWINDOW), nullptr);
    MessageBoxA(nullptr, kFailed, "Tessarin Error Message", MB_SETFOREGROUND);

    const tst::ResourceCounts start = tst::countResources();
    for (int i = 0; i < kCalls; ++i) MessageBoxA(nullptr, kFailed, "Tessarin Error Message", MB_SETFOREGROUND);
    const tst::ResourceCounts boxesOnly = tst::countResources();
    for (int i = 0; i < kCalls; ++i) {
        EXPECT_EQ(swCreateWind("After the end", 160, 120, 20, 20, WS_OVERLAPPEDWINDOW), nullptr);
    }
    const tst::ResourceCounts library = tst::countResources();

    const tst::ResourceCounts boxes = growth(start, boxesOnly), calls = growth(boxesOnly, library);
    print("boxes", boxes);
    print("calls", calls);
    EXPECT_EQ(calls.gdiObjects, 0);
    EXPECT_EQ(calls.userObjects, 0);
    // A record kept per call would add kCalls blocks beyond what the boxes cost.
    EXPECT_LT(calls.heapBlocks - boxes.heapBlocks, kCalls / 2);
    EXPECT_LT(calls.heapBytes - boxes.heapBytes, 32LL * kCalls);
}
TEST(WindowFailure, FailedCreationsAfterTheThreadEndedKeepNoObjectAndNoMemory) {
    const tst::ChildResult r = tst::runScenario("FailedCreationKeepsNothing");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
    // The library's boxes and the test's own, all of the same title, text and style.
    ASSERT_EQ(r.boxes.size(), 2u * kCalls + 2u);
    for (const tst::ChildBox& box : r.boxes) {
        EXPECT_EQ(box.title, "Tessarin Error Message");
        EXPECT_EQ(box.text, kFailed);
        EXPECT_EQ(box.style, static_cast<UINT>(MB_SETFOREGROUND));
    }
    printf("%s", r.output.c_str());
}
