// The window/scene registry on its own: look-up, and the asymmetric removal of the
// head entry (which leaves its scene alone) against any other entry.
#include <gtest/gtest.h>

#include "registry/cspwhlist.h"
#include "support/child_process.h"
#include "view/scene/cscene.h"

namespace {

HWND fakeWindow(uintptr_t n) { return reinterpret_cast<HWND>(n); }

cSPWH* entry(cScene* scene, HWND window) {
    cSPWH* e = new cSPWH;
    e->sp = scene;
    e->wh = window;
    return e;
}

}  // namespace

TEST(Registry, FindOnAnEmptyListReturnsZero) {
    cSPWHList list;
    EXPECT_EQ(list.Find(fakeWindow(0x10)), 0);
    EXPECT_EQ(list.current, nullptr);
}

TEST(Registry, FindMakesTheFirstMatchCurrentAndAMissLeavesCurrent) {
    cSPWHList list;
    cSPWH* a = entry(nullptr, fakeWindow(0x10));
    cSPWH* b = entry(nullptr, fakeWindow(0x20));
    list.Insert(a);
    list.Insert(b);
    EXPECT_EQ(list.head, a);
    EXPECT_EQ(list.tail, b);
    EXPECT_EQ(list.Find(fakeWindow(0x20)), 1);
    EXPECT_EQ(list.current, b);
    EXPECT_EQ(list.Find(fakeWindow(0x30)), 0);
    EXPECT_EQ(list.current, b);
}

TEST(Registry, DeletingTheHeadFreesOnlyTheEntry) {
    cSPWHList list;
    cScene* scene = new cScene;
    scene->name[0] = 'k';
    list.Insert(entry(scene, fakeWindow(0x10)));
    cSPWH* second = entry(nullptr, fakeWindow(0x20));
    list.Insert(second);
    ASSERT_EQ(list.Find(fakeWindow(0x10)), 1);
    list.DeleteCurrent();
    EXPECT_EQ(list.head, second);
    EXPECT_EQ(list.current, second);
    EXPECT_EQ(scene->name[0], 'k');  // the scene is still alive
    delete scene;
}

TEST(Registry, DeletingAnotherEntryUnlinksItAndLeavesTheTailAsItWas) {
    cSPWHList list;
    cSPWH* a = entry(nullptr, fakeWindow(0x10));
    cSPWH* b = entry(nullptr, fakeWindow(0x20));
    cSPWH* c = entry(nullptr, fakeWindow(0x30));
    list.Insert(a);
    list.Insert(b);
    list.Insert(c);
    ASSERT_EQ(list.Find(fakeWindow(0x20)), 1);
    list.DeleteCurrent();
    EXPECT_EQ(a->next, c);
    EXPECT_EQ(list.current, a);
    EXPECT_EQ(list.tail, c);
}

TEST(Registry, ARemovedTailIsNotWrittenThroughByTheNextInsert) {
    cSPWHList list;
    cSPWH* a = entry(nullptr, fakeWindow(0x10));
    list.Insert(a);
    list.Insert(entry(nullptr, fakeWindow(0x20)));
    ASSERT_EQ(list.Find(fakeWindow(0x20)), 1);
    list.DeleteCurrent();
    EXPECT_EQ(list.tail, a);
    cSPWH* c = entry(nullptr, fakeWindow(0x30));
    list.Insert(c);
    EXPECT_EQ(a->next, c);
    EXPECT_EQ(list.Find(fakeWindow(0x30)), 1);
}

TST_SCENARIO(DumpPrintsEveryEntry) {
    cSPWHList list;
    list.Insert(entry(reinterpret_cast<cScene*>(0x1234), fakeWindow(0x10)));
    list.Insert(entry(nullptr, fakeWindow(0x20)));
    list.Dump();
    list.head->sp = nullptr;  // not a real scene: nothing to destroy at the end
}

TEST(Registry, DumpPrintsSceneAndWindowOfEveryEntryThenWaitsForAKey) {
    const tst::ChildResult r = tst::runScenario("DumpPrintsEveryEntry", IDOK, 20000);
    EXPECT_EQ(r.exitCode, 0u) << r.output;
    char expected[128];
    snprintf(expected, sizeof(expected), "\nsp:%p wh:%p\nsp:%p wh:%p\n", reinterpret_cast<void*>(0x1234),
             reinterpret_cast<void*>(0x10), nullptr, reinterpret_cast<void*>(0x20));
    EXPECT_NE(r.output.find(expected + 1), std::string::npos) << r.output;
}
