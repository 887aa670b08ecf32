// Picking through the DLL, in a real library window with real OpenGL selection: a left
// click with the picking switch on reports the hits of a 2 x 2 pixel pick and the name
// of the last hit lying nearer than the first one (else the first), whatever the number
// of hits. Each scenario runs in a child process (one scene thread).
#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

#include "support/child_process.h"
#include "support/library_scene.h"
#include "tessarin.h"

namespace {

void expectCleanChild(const tst::ChildResult& r) { EXPECT_EQ(r.exitCode, 0u) << r.output; }

// A library scene that picks on a left click; mouse navigation is off, so clicks never
// move the camera (eye at 0, 0, 5 looking down -z).
struct PickScene : tst::LibraryScene {
    PickScene() : LibraryScene("Picking") {
        snDisable(nullptr, TS_SWITCH_MOUSE_NAVIGATION);
        snEnable(nullptr, TS_SWITCH_PICKING);
    }
    // A box facing the eye, centred on the view axis at depth z.
    cNode* box(float z, float half) { return snBox(nullptr, -half, -half, z - half, half, half, z + half, 100020); }
    swEventRecord clickAt(int x, int y) {
        smRefreshScene(scene);  // the switch nodes take effect when drawn
        return click(x, y);
    }
    swEventRecord clickCentre() { return clickAt(centreX, centreY); }
};

}  // namespace

TST_SCENARIO(LaterAndNearerWins) {
    PickScene s;
    cNode* farBox = s.box(0.0f, 0.5f);
    cNode* nearBox = s.box(1.5f, 0.3f);
    swEventRecord r = s.clickCentre();
    EXPECT_EQ(r.hits, 2);
    EXPECT_EQ(tsNodeFromName(r.pickedName), nearBox);
    // Drawn later but farther: the first hit stays.
    smDelNode(nearBox);
    cNode* behind = s.box(-1.5f, 0.3f);
    r = s.clickCentre();
    EXPECT_EQ(r.hits, 2);
    EXPECT_EQ(tsNodeFromName(r.pickedName), farBox);
    // A tie with the first hit is not nearer: the first hit stays.
    s.box(0.0f, 0.5f);
    r = s.clickCentre();
    EXPECT_EQ(r.hits, 3);
    EXPECT_EQ(tsNodeFromName(r.pickedName), farBox);
    smDelNode(behind);
}
TEST(Picking, ALaterHitWinsOnlyWhenNearerThanTheFirst) { expectCleanChild(tst::runScenario("LaterAndNearerWins")); }

TST_SCENARIO(LastNearerNotNearest) {
    PickScene s;
    s.box(0.0f, 0.5f);
    cNode* nearest = s.box(1.5f, 0.2f);
    cNode* nearer = s.box(0.75f, 0.3f);
    const swEventRecord r = s.clickCentre();
    EXPECT_EQ(r.hits, 3);
    // The reference stays the first hit's depth: the last hit nearer than it wins, even
    // though an earlier one lies nearer still.
    EXPECT_EQ(tsNodeFromName(r.pickedName), nearer);
    EXPECT_NE(tsNodeFromName(r.pickedName), nearest);
}
TEST(Picking, TheLastHitNearerThanTheFirstWinsNotTheNearest) {
    expectCleanChild(tst::runScenario("LastNearerNotNearest"));
}

TST_SCENARIO(NothingUnderTheCursor) {
    PickScene s;
    cNode* only = s.box(0.0f, 0.5f);
    swEventRecord r = s.clickCentre();
    EXPECT_EQ(r.hits, 1);
    EXPECT_EQ(tsNodeFromName(r.pickedName), only);
    // The background: no hit, and the earlier name stays.
    r = s.clickAt(3, 3);
    EXPECT_EQ(r.hits, 0);
    EXPECT_EQ(tsNodeFromName(r.pickedName), only);
    // With the picking switch off a click reports no hit and no name.
    snDisable(nullptr, TS_SWITCH_PICKING);
    r = s.clickCentre();
    EXPECT_EQ(r.hits, 0);
    EXPECT_EQ(r.pickedName, 0u);
}
TEST(Picking, NothingUnderTheCursorKeepsTheNameAndNoPickingReportsNone) {
    expectCleanChild(tst::runScenario("NothingUnderTheCursor"));
}

TST_SCENARIO(TenThousandOverlappingNodes) {
    PickScene s;
    constexpr int kNodes = 10000;
    std::vector<cNode*> nodes(kNodes);
    for (int k = 0; k < kNodes; ++k) {
        // Each farther than the one before, except three: one nearest of all, one nearer
        // than the first but not the nearest, and one at the first one's very depth.
        float z = -static_cast<float>(k) * 1e-4f;
        if (k == 5000) z = 0.8f;
        if (k == 8000) z = 0.4f;
        if (k == 9000) z = 0.0f;
        nodes[k] = s.box(z, 0.5f);
    }
    const swEventRecord r = s.clickCentre();
    EXPECT_EQ(r.hits, kNodes);  // every record, not an overflow
    EXPECT_EQ(tsNodeFromName(r.pickedName), nodes[8000]);
    // A second pick finds the buffer grown already.
    const swEventRecord again = s.clickCentre();
    EXPECT_EQ(again.hits, kNodes);
    EXPECT_EQ(again.pickedName, r.pickedName);
}
TEST(Picking, TenThousandOverlappingNodesAreAllScanned) {
    expectCleanChild(tst::runScenario("TenThousandOverlappingNodes"));
}

TST_SCENARIO(DisplayListHasNoNames) {
    PickScene s;
    s.box(0.0f, 0.5f);
    s.box(1.0f, 0.3f);
    smUseDisplayList();
    const swEventRecord r = s.clickCentre();
    // The compiled list draws both boxes under the one name the pass starts with.
    EXPECT_EQ(r.hits, 1);
    EXPECT_EQ(r.pickedName, 0u);
}
TEST(Picking, ADisplayListPicksAsOneHitWithoutANode) { expectCleanChild(tst::runScenario("DisplayListHasNoNames")); }
