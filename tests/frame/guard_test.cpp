// The call guard: pointer probes, the catch-all (C++ exceptions and processor
// faults), the immediate exit with code 1, and the always-on assertions.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "guard/guard.h"
#include "support/child_process.h"
#include "support/host_window.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"

namespace {

constexpr UINT kSetForeground = 0x10000;

void expectFatalBox(const tst::ChildResult& r, const std::string& text) {
    EXPECT_EQ(r.exitCode, 1u) << r.output;
    ASSERT_EQ(r.boxes.size(), 1u) << r.output;
    EXPECT_EQ(r.boxes[0].title, "Tessarin Error Message");
    EXPECT_EQ(r.boxes[0].text, text);
    EXPECT_EQ(r.boxes[0].style, kSetForeground);
}

// A node the test can make without any node export.
class QuietNode : public cNode {
public:
    QuietNode() : cNode(1012) {}
    void draw(ts::DrawContext&) override {}
    void hook() override {}
};

}  // namespace

TST_SCENARIO(AddNullNode) { smAddNode(nullptr); }

TEST(Guard, NullPointerProbeEndsProcessWithLabel) {
    expectFatalBox(tst::runScenario("AddNullNode"), "Pointer to inaccessible memory: smAddNode(NodeToAdd)");
}

TST_SCENARIO(AddUnreadableNode) { smAddNode(reinterpret_cast<cNode*>(static_cast<uintptr_t>(0x10))); }

TEST(Guard, UnreadablePointerProbeEndsProcess) {
    expectFatalBox(tst::runScenario("AddUnreadableNode"), "Pointer to inaccessible memory: smAddNode(NodeToAdd)");
}

TST_SCENARIO(UseUnreadableNode) { snUse(reinterpret_cast<cNode*>(static_cast<uintptr_t>(0x20))); }

TEST(Guard, SnUseProbesItsParentNode) {
    expectFatalBox(tst::runScenario("UseUnreadableNode"), "Pointer to inaccessible memory: snUse(ParentNode)");
}

TST_SCENARIO(AddBeforeAnyScene) { smAddNode(new QuietNode); }

TEST(Guard, AddBeforeAnySceneReportsMissingScene) {
    expectFatalBox(tst::runScenario("AddBeforeAnyScene"),
                   "Pointer to inaccessible memory: Current Scene is not defined!");
}

TST_SCENARIO(DeleteNullInScene) {
    tst::HostWindow host;
    smAddNode(new QuietNode);
    smAddNode(new QuietNode);
    smDelNode(nullptr);
}

TEST(Guard, SmDelNodeDoesNotProbeAndFaultsIntoCatchAll) {
    expectFatalBox(tst::runScenario("DeleteNullInScene"), "Unhandled exception in: smDelNode");
}

TEST(Guard, SmDelNodeNullOnEmptyListReturnsNull) {
    tst::HostWindow host;
    EXPECT_EQ(smDelNode(nullptr), nullptr);
}

TST_SCENARIO(GroupEndWithoutScene) { smGroupEnd(); }

TEST(Guard, AccessViolationInBodyIsCaught) {
    expectFatalBox(tst::runScenario("GroupEndWithoutScene"), "Unhandled exception in: smGroupEnd");
}

TST_SCENARIO(DivideByZeroInBody) {
    volatile int zero = 0;
    volatile int sink = ts::guarded("divideByZero", [&] { return 10 / zero; });
    (void)sink;
}

TEST(Guard, IntegerDivideByZeroInBodyIsCaught) {
    expectFatalBox(tst::runScenario("DivideByZeroInBody"), "Unhandled exception in: divideByZero");
}

TST_SCENARIO(ThrowInBody) {
    ts::guarded("throwing", [] { throw 42; });
}

TEST(Guard, CxxExceptionInBodyIsCaught) {
    expectFatalBox(tst::runScenario("ThrowInBody"), "Unhandled exception in: throwing");
}

TST_SCENARIO(NestedLabels) {
    ts::guarded("outer", [] {
        ts::guarded("inner", [] {});
        volatile int* nowhere = nullptr;
        return *nowhere;
    });
}

TEST(Guard, InnermostLiveLabelIsReported) {
    expectFatalBox(tst::runScenario("NestedLabels"), "Unhandled exception in: outer");
}

struct LoudDestructor {
    ~LoudDestructor() { printf("DESTRUCTOR RAN\n"); fflush(stdout); }
};
LoudDestructor loudStatic;

TST_SCENARIO(ExitSkipsAtexitAndDestructors) {
    atexit([] { printf("ATEXIT RAN\n"); fflush(stdout); });
    LoudDestructor local;
    printf("BEFORE EXIT\n");
    fflush(stdout);
    smAddNode(nullptr);
}

TEST(Guard, ExitRunsNoAtexitHandlersAndNoDestructors) {
    const tst::ChildResult r = tst::runScenario("ExitSkipsAtexitAndDestructors");
    expectFatalBox(r, "Pointer to inaccessible memory: smAddNode(NodeToAdd)");
    EXPECT_NE(r.output.find("BEFORE EXIT"), std::string::npos);
    EXPECT_EQ(r.output.find("ATEXIT RAN"), std::string::npos);
    EXPECT_EQ(r.output.find("DESTRUCTOR RAN"), std::string::npos);
}

TST_SCENARIO(PaintNullWindow) { seOnPaint(nullptr); }

TEST(Guard, AssertionsStayOnAndNameTheSourceFile) {
    const tst::ChildResult r = tst::runScenario("PaintNullWindow");
    EXPECT_EQ(r.exitCode, 3u) << r.output;
    EXPECT_NE(r.output.find("hWnd != NULL"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("..\\source\\user_scene_events.cpp"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("50"), std::string::npos) << r.output;
}

// Two pages: the first readable, the second not. The last byte of the first page is a
// buffer far too short for a scene, and still passes: only one byte is probed.
TST_SCENARIO(ProbeReadsOneByteOnly) {
    auto* pages = static_cast<char*>(VirtualAlloc(nullptr, 8192, MEM_RESERVE, PAGE_NOACCESS));
    VirtualAlloc(pages, 4096, MEM_COMMIT, PAGE_READWRITE);
    smCurrentScene(reinterpret_cast<cScene*>(pages + 4095));
    printf("LAST READABLE BYTE PASSED\n");
    fflush(stdout);
    smCurrentScene(reinterpret_cast<cScene*>(pages + 4096));
}

TEST(Guard, TheProbeReadsOneByteSoAShortBufferPasses) {
    const tst::ChildResult r = tst::runScenario("ProbeReadsOneByteOnly");
    EXPECT_NE(r.output.find("LAST READABLE BYTE PASSED"), std::string::npos) << r.output;
    expectFatalBox(r, "Pointer to inaccessible memory: smCurrentScene(scene)");
}
