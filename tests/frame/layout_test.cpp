// The records that programs built against the library read byte by byte, checked in the
// running DLL: the waitable event record as swWaitForEvent returns it, the three values
// of swGetEvent, and on 32-bit Windows the node and group records behind a node handle.
// The compiler checks the sizes too; these checks read what the library really wrote.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "support/child_process.h"
#include "tessarin.h"

namespace {

#ifdef _WIN64
constexpr size_t kPointer = 8;
constexpr size_t kRecordSize = 82;
#else
constexpr size_t kPointer = 4;
constexpr size_t kRecordSize = 78;
#endif
// Every field after the scene pointer moves by the pointer's growth.
constexpr size_t kShift = kPointer - 4;

// The record as raw bytes: same size, byte alignment, so the DLL returns it through the
// same hidden pointer as swEventRecord.
struct RawRecord {
    unsigned char bytes[kRecordSize];
};
static_assert(sizeof(RawRecord) == sizeof(swEventRecord), "raw view of the record");

using RawWait = RawRecord (*)(int mask, int filter);

template <class T>
T at(const RawRecord& r, size_t offset) {
    T value;
    std::memcpy(&value, r.bytes + offset, sizeof(T));
    return value;
}

template <class T>
T field(const void* object, size_t offset) {
    T value;
    std::memcpy(&value, static_cast<const unsigned char*>(object) + offset, sizeof(T));
    return value;
}

struct Waiter {
    int mask;
    RawRecord record;
    static DWORD WINAPI run(void* self) {
        auto* w = static_cast<Waiter*>(self);
        auto wait = reinterpret_cast<RawWait>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("Tessarin20b.dll"), "swWaitForEvent")));
        w->record = wait(w->mask, 0);
        return 0;
    }
};

// Waits for one input of the mask's kind on another thread, posting `post` until the
// waiter has taken it: an input that arrives before the waiter has set its mask is not
// waited for, and the waiter's thread handle says when it has returned.
template <class Post>
RawRecord waitFor(int mask, Post post) {
    Waiter waiter{mask, {}};
    HANDLE thread = CreateThread(nullptr, 0, Waiter::run, &waiter, 0, nullptr);
    DWORD done = WAIT_TIMEOUT;
    for (int round = 0; round < 200 && done == WAIT_TIMEOUT; ++round) {
        post();
        done = WaitForSingleObject(thread, 50);
    }
    EXPECT_EQ(done, WAIT_OBJECT_0) << "the waiter never returned";
    if (done != WAIT_OBJECT_0) TerminateThread(thread, 1);
    CloseHandle(thread);
    return waiter.record;
}

cScene* openScene(const char* title) {
    cWind* window = swCreateWind(title, 160, 120, 20, 20, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* scene = swCreateScene(window);
    EXPECT_NE(scene, nullptr);
    return scene;
}

}  // namespace

TEST(Layout, TheEventRecordKeepsItsSizeAndOffsets) {
    EXPECT_EQ(sizeof(swEventRecord), kRecordSize);
    EXPECT_EQ(offsetof(swEventRecord, scene), 0u);
    EXPECT_EQ(offsetof(swEventRecord, pos), 4 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, rotAxis), 16 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, rotAngle), 28 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, dir), 32 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, up), 44 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, mouseX), 56 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, mouseY), 60 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, button), 64 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, hits), 65 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, pickedName), 69 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, character), 73 + kShift);
    EXPECT_EQ(offsetof(swEventRecord, virtualKey), 74 + kShift);
}

TST_SCENARIO(EventRecordBytesFromTheDll) {
    cScene* scene = openScene("Layout events");
    HWND hwnd = smGetHWND(scene);
    snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 100020);

    RawRecord click = waitFor(TS_WAIT_BUTTONS, [&] { PostMessageA(hwnd, WM_MBUTTONDOWN, 0, MAKELPARAM(37, 81)); });
    EXPECT_EQ(at<cScene*>(click, 0), scene);
    EXPECT_EQ(at<int32_t>(click, 56 + kShift), 37);
    EXPECT_EQ(at<int32_t>(click, 60 + kShift), 81);
    EXPECT_EQ(at<char>(click, 64 + kShift), 2);  // middle button
    EXPECT_EQ(at<int32_t>(click, 65 + kShift), 0);
    EXPECT_EQ(at<uint32_t>(click, 69 + kShift), 0u);

    RawRecord key = waitFor(TS_WAIT_KEYS, [&] {
        PostMessageA(hwnd, WM_KEYDOWN, 'Q', 0x00100001);
        PostMessageA(hwnd, WM_CHAR, 'q', 0x00100001);
    });
    EXPECT_EQ(at<cScene*>(key, 0), scene);
    EXPECT_EQ(at<int32_t>(key, 74 + kShift), 'Q');
    EXPECT_EQ(at<char>(key, 73 + kShift), 'q');
    // A key leaves the mouse fields of the click as they were.
    EXPECT_EQ(at<int32_t>(key, 56 + kShift), 37);
    EXPECT_EQ(at<int32_t>(key, 60 + kShift), 81);

    // swGetEvent hands out three consecutive 32-bit values.
    int* taken = swGetEvent(WM_MBUTTONDOWN);
    ASSERT_NE(taken, nullptr);
    EXPECT_EQ(taken[0], WM_MBUTTONDOWN);
    EXPECT_EQ(taken[2], MAKELPARAM(37, 81));
}
TEST(Layout, TheDllWritesTheEventRecordAtItsOffsets) {
    const tst::ChildResult r = tst::runScenario("EventRecordBytesFromTheDll");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
}

#ifndef _WIN64
// A node handle is the node's address: programs built for 32-bit Windows read its type
// and sibling link, and a group's list fields, at fixed offsets.
TST_SCENARIO(NodeAndGroupRecords) {
    openScene("Layout nodes");
    cNode* a = snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 100020);
    cNode* b = snBox(nullptr, -0.5f, -0.5f, -0.5f, 0.5f, 0.5f, 0.5f, 100020);
    EXPECT_EQ(field<int32_t>(a, 4), TS_CLASS_BOX3D);
    EXPECT_EQ(field<cNode*>(a, 8), b);
    EXPECT_EQ(field<cNode*>(b, 8), nullptr);

    cNode* group = snGroup();
    cNode* c = snBox(nullptr, 0.0f, 0.0f, 0.0f, 0.2f, 0.2f, 0.2f, 100020);
    cNode* d = snBox(nullptr, 0.0f, 0.0f, 0.0f, 0.1f, 0.1f, 0.1f, 100020);
    smGroupEnd();
    EXPECT_EQ(field<int32_t>(group, 4), TS_CLASS_GROUP);
    EXPECT_EQ(field<uint32_t>(group, 12), 2u);   // count
    EXPECT_EQ(field<cNode*>(group, 16), c);      // head
    EXPECT_EQ(field<cNode*>(group, 20), d);      // tail
    EXPECT_EQ(field<cNode*>(group, 24), d);      // current
    EXPECT_EQ(field<int32_t>(group, 28), 0);     // insertAfter
    cNode* root = field<cNode*>(group, 36);      // parent: the scene's 3D root
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(field<int32_t>(root, 4), TS_CLASS_GROUP);
    EXPECT_EQ(field<uint32_t>(root, 12), 3u);
    EXPECT_EQ(field<cNode*>(root, 16), a);
    EXPECT_EQ(field<cNode*>(root, 20), group);
    EXPECT_EQ(field<cNode*>(b, 8), group);
    EXPECT_EQ(field<cNode*>(root, 36), nullptr);

    smInsertAfter(a, TRUE);
    EXPECT_EQ(field<cNode*>(root, 24), a);
    EXPECT_EQ(field<int32_t>(root, 28), 1);
}
TEST(Layout, NodeAndGroupRecordsSitAtTheirClassicOffsets) {
    const tst::ChildResult r = tst::runScenario("NodeAndGroupRecords");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
}
#endif
