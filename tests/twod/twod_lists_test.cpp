// The 2D list and the 2D state with the library linked in, on a scene hosted in a test
// window (direct path; one scenario through the scene thread): list order, insertion
// point, the removal asymmetries and count, has2D, the scene's records of the 2D state,
// currentPos2D, the relative mode and drawing at once.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include <vector>

#include "cobj_2d/cline2d.h"
#include "cobj_2d/clineto2d.h"
#include "cobj_2d/cpolyline2d.h"
#include "support/child_process.h"
#include "support/host_window.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "view/scene/cscene.h"

namespace {

std::vector<cNode*> order(const cGroup* g) {
    std::vector<cNode*> nodes;
    for (cNode* n = g->head; n != nullptr; n = n->next) nodes.push_back(n);
    return nodes;
}

class List2D : public ::testing::Test {
protected:
    cScene* scene() const { return host.scene; }
    cGroup* list() const { return host.scene->list2D; }
    // A 2D node that draws nothing visible.
    cNode* add() { return snForeMix2D(nullptr, R2_COPYPEN); }
    tst::HostWindow host{"2D list", 160, 120};
};

}  // namespace

TEST_F(List2D, NodesGoToTheTwoDListInOrderAndRaiseHas2D) {
    EXPECT_EQ(scene()->has2D, 0);
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    EXPECT_EQ(order(list()), (std::vector<cNode*>{a, b, c}));
    EXPECT_EQ(list()->current, c);
    EXPECT_EQ(list()->count, 3u);
    EXPECT_EQ(scene()->has2D, 1);
    EXPECT_EQ(scene()->has3D, 0);
    EXPECT_EQ(scene()->list3D->head, nullptr);
}

TEST_F(List2D, InsertAfterPlacesARunInReverseOrder) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    smInsertAfter2D(a, TRUE);
    cNode* x = add();
    cNode* y = add();
    EXPECT_EQ(order(list()), (std::vector<cNode*>{a, y, x, b, c}));
    smInsertAfter2D(a, FALSE);
    cNode* z = add();
    cNode* w = add();
    EXPECT_EQ(order(list()), (std::vector<cNode*>{a, z, y, x, b, c, w}));
}

TEST_F(List2D, TheFirstOfSeveralNodesCannotBeRemoved) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    EXPECT_EQ(smDelNode2D(a), nullptr);
    EXPECT_EQ(order(list()), (std::vector<cNode*>{a, b, c}));
    EXPECT_EQ(smDelNode2D(b), c);
    EXPECT_EQ(list()->count, 3u);  // removal does not lower the count
    EXPECT_EQ(smDelNode2D(c), nullptr);
    EXPECT_EQ(list()->tail, a);
    EXPECT_EQ(smDelNode2D(a), nullptr);
    EXPECT_EQ(list()->head, nullptr);
    EXPECT_EQ(list()->count, 0u);
    EXPECT_EQ(scene()->has2D, 1);  // the flag is only cleared by clearing the list
}

TEST_F(List2D, ClearEmptiesTheListAndResetsThePen) {
    add();
    snMoveTo2D(nullptr, 30, 40);
    EXPECT_EQ(scene()->currentPos2D[0], 30);
    EXPECT_EQ(smClearScene2D(), 1);
    EXPECT_EQ(list()->head, nullptr);
    EXPECT_EQ(list()->count, 0u);
    EXPECT_EQ(scene()->has2D, 0);
    EXPECT_EQ(scene()->currentPos2D[0], 0);
    EXPECT_EQ(scene()->currentPos2D[1], 0);
    POINT pen = {};
    GetCurrentPositionEx(scene()->dc, &pen);
    EXPECT_EQ(pen.x, 0);
    EXPECT_EQ(pen.y, 0);
}

TEST_F(List2D, StateNodesRecordTheirValuesInTheScene) {
    HPEN pen = smCreatePen2D(1.0f, 0.0f, 0.0f, 1, PS_SOLID);
    HBRUSH brush = smCreateBrush2D(0.0f, 1.0f, 0.0f, BS_SOLID, 0);
    HFONT font = smCreateFont2D("Tahoma", 12, FW_NORMAL, FALSE, FALSE);
    snPen2D(nullptr, pen);
    snBrush2D(nullptr, brush);
    snFont2D(nullptr, font);
    snBackColor2D(nullptr, 1.5f, 0.25f, 0.0f);
    snBackMode2D(nullptr, OPAQUE);
    snForeMix2D(nullptr, R2_XORPEN);
    EXPECT_EQ(scene()->pen2D, pen);
    EXPECT_EQ(scene()->brush2D, brush);
    EXPECT_EQ(scene()->font2D, font);
    EXPECT_EQ(scene()->backColor2D[0], 1.5f);
    EXPECT_EQ(scene()->backColor2D[1], 0.25f);
    EXPECT_EQ(scene()->backMode2D, OPAQUE);
    EXPECT_EQ(scene()->foreMix2D, R2_XORPEN);
    // Drawn at once: the device context has them now.
    EXPECT_EQ(GetCurrentObject(scene()->dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(scene()->dc, OBJ_BRUSH), brush);
    EXPECT_EQ(GetBkColor(scene()->dc), RGB(126, 63, 0));
    EXPECT_EQ(GetBkMode(scene()->dc), OPAQUE);
    EXPECT_EQ(GetROP2(scene()->dc), R2_XORPEN);
    // A frame resets only the pen position and the mix mode.
    host.paintAndRead(0, 0);
    EXPECT_EQ(GetROP2(scene()->dc), R2_XORPEN);  // the mix node is drawn again after the reset
    smClearScene2D();
    host.paintAndRead(0, 0);
    EXPECT_EQ(GetROP2(scene()->dc), R2_XORPEN);  // an empty 2D list is not drawn at all
    snMoveTo2D(nullptr, 1, 1);
    host.paintAndRead(0, 0);
    EXPECT_EQ(GetROP2(scene()->dc), R2_COPYPEN);
    EXPECT_EQ(GetCurrentObject(scene()->dc, OBJ_PEN), pen);
    // The nodes are gone; the objects are the caller's.
    snPen2D(nullptr, static_cast<HPEN>(GetStockObject(WHITE_PEN)));
    snBrush2D(nullptr, static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)));
    snFont2D(nullptr, static_cast<HFONT>(GetStockObject(SYSTEM_FONT)));
    EXPECT_TRUE(smDelGDIObj(pen));
    EXPECT_TRUE(smDelGDIObj(brush));
    EXPECT_TRUE(smDelGDIObj(font));
}

TEST_F(List2D, AMoveToUpdatesThePositionBeforeTheNextFrame) {
    snMoveTo2D(nullptr, 100, 50);
    EXPECT_EQ(scene()->currentPos2D[0], 100);
    EXPECT_EQ(scene()->currentPos2D[1], 50);
    cNode* to = snLineTo2D(nullptr, 10, 0);
    EXPECT_EQ(static_cast<cLineTo2D*>(to)->x, 110);
    EXPECT_EQ(scene()->currentPos2D[0], 110);
    // A frame starts from (0, 0) and walks the list again.
    host.paintAndRead(0, 0);
    EXPECT_EQ(scene()->currentPos2D[0], 110);
    EXPECT_EQ(scene()->currentPos2D[1], 50);
}

TEST_F(List2D, ALineKeepsThePositionAndStoresItsPointsRelative) {
    snMoveTo2D(nullptr, 20, 30);
    auto* line = static_cast<cLine2D*>(snLine2D(nullptr, 1, 2, 3, 4));
    EXPECT_EQ(line->x1, 21);
    EXPECT_EQ(line->y1, 32);
    EXPECT_EQ(line->x2, 23);
    EXPECT_EQ(line->y2, 34);
    EXPECT_EQ(scene()->currentPos2D[0], 20);
    EXPECT_EQ(scene()->currentPos2D[1], 30);
    smRelToPos2D(FALSE);
    EXPECT_EQ(scene()->relToPos2D, 0);
    EXPECT_EQ(snLine2D(line, 1, 2, 3, 4), line);  // an edit, now absolute
    EXPECT_EQ(line->x1, 1);
    EXPECT_EQ(line->y2, 4);
}

TEST_F(List2D, APolylineFromThePenEndsOnItsLastPoint) {
    snMoveTo2D(nullptr, 10, 10);
    const POINT p[3] = {{5, 0}, {5, 5}, {0, 5}};
    auto* poly = static_cast<cPolyLine2D*>(snPolyLine2D(nullptr, p, 3, TRUE));
    EXPECT_EQ(poly->count, 3);
    EXPECT_EQ(poly->points[2].x, 10);
    EXPECT_EQ(poly->points[2].y, 15);
    EXPECT_EQ(scene()->currentPos2D[0], 10);
    EXPECT_EQ(scene()->currentPos2D[1], 15);
    snPolyLine2D(nullptr, p, 3, FALSE);  // the plain form leaves the position
    EXPECT_EQ(scene()->currentPos2D[1], 15);
}

TEST_F(List2D, WithoutDrawingAtOnceNodesWaitForTheNextFrame) {
    scene()->initDraw2D = 0;
    snMoveTo2D(nullptr, 40, 40);
    EXPECT_EQ(scene()->currentPos2D[0], 0);
    smRelToPos2D(FALSE);
    snPixel2D(nullptr, 7, 7, 0.0f, 1.0f, 0.0f);
    EXPECT_EQ(host.pixel(7, 7), (tst::Rgb{0, 0, 0}));
    EXPECT_EQ(host.paintAndRead(7, 7), (tst::Rgb{0, 255, 0}));
    EXPECT_EQ(scene()->currentPos2D[0], 40);
}

TEST_F(List2D, EditingThroughAnotherClassGivesNullAndChangesNothing) {
    cNode* pen = snPen2D(nullptr, static_cast<HPEN>(GetStockObject(BLACK_PEN)));
    EXPECT_EQ(snBrush2D(pen, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))), nullptr);
    EXPECT_EQ(snLineTo2D(pen, 1, 1), nullptr);
    EXPECT_EQ(pen->type, TS_CLASS_PEN2D);
    EXPECT_EQ(order(list()), (std::vector<cNode*>{pen}));
}

TEST_F(List2D, EveryConstructorMakesItsClass) {
    const POINT p[4] = {{0, 0}, {1, 1}, {2, 2}, {3, 3}};
    const std::vector<std::pair<cNode*, int>> made = {
        {snPen2D(nullptr, nullptr), TS_CLASS_PEN2D},
        {snBrush2D(nullptr, nullptr), TS_CLASS_BRUSH2D},
        {snFont2D(nullptr, nullptr), TS_CLASS_FONT2D},
        {snBackColor2D(nullptr, 0, 0, 0), TS_CLASS_BKCOL2D},
        {snBackMode2D(nullptr, TRANSPARENT), TS_CLASS_BKMOD2D},
        {snForeMix2D(nullptr, R2_COPYPEN), TS_CLASS_FRMIX2D},
        {snMoveTo2D(nullptr, 0, 0), TS_CLASS_MOVETO2D},
        {snArc2D(nullptr, 0, 0, 9, 9, 9, 5, 0, 5), TS_CLASS_ARC2D},
        {snBitmap2D(nullptr, nullptr, 0, 0, 0, 0, FALSE), TS_CLASS_BITMAP2D},
        {snCircle2D(nullptr, 5, 5, 4, 0.0f, 360.0f), TS_CLASS_CIRCLE2D},
        {snLineTo2D(nullptr, 1, 1), TS_CLASS_LINETO2D},
        {snLine2D(nullptr, 0, 0, 1, 1), TS_CLASS_LINE2D},
        {snRectangle2D(nullptr, 0, 0, 1, 1), TS_CLASS_RECTANGLE2D},
        {snPie2D(nullptr, 0, 0, 9, 9, 9, 5, 0, 5), TS_CLASS_PIE2D},
        {snPixel2D(nullptr, 0, 0, 1, 1, 1), TS_CLASS_PIXEL2D},
        {snPolyBezier2D(nullptr, p, 4, FALSE), TS_CLASS_POLYBEZIER2D},
        {snPolygon2D(nullptr, p, 3, WINDING), TS_CLASS_POLYGON2D},
        {snPolyLine2D(nullptr, p, 2, FALSE), TS_CLASS_POLYLINE2D},
        {snText2D(nullptr, 0, 0, "t", 1, 1, 1), TS_CLASS_TEXT2D},
        {snTextBlock2D(nullptr, 0, 0, 9, 9, "t", DT_LEFT, 1, 1, 1), TS_CLASS_TEXTBLOCK2D},
    };
    for (const auto& m : made) {
        ASSERT_NE(m.first, nullptr);
        EXPECT_EQ(m.first->type, m.second);
        EXPECT_TRUE(m.first->is2D());
    }
    EXPECT_EQ(list()->count, made.size());
    host.paintAndRead(0, 0);  // all of them drawn once more in a frame
}

TST_SCENARIO(RelToPos2DThroughTheSceneThread) {
    cWind* window = swCreateWind("2D thread", 160, 120, 10, 10, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* scene = swCreateScene(window);
    ASSERT_NE(scene, nullptr);
    EXPECT_EQ(scene->relToPos2D, 1);
    smRelToPos2D(FALSE);
    EXPECT_EQ(scene->relToPos2D, 0);
    cNode* a = snMoveTo2D(nullptr, 5, 6);
    cNode* b = snMoveTo2D(nullptr, 7, 8);
    EXPECT_EQ(smDelNode2D(a), nullptr);
    EXPECT_EQ(smDelNode2D(b), nullptr);
    EXPECT_EQ(scene->list2D->head, a);
    smInsertAfter2D(a, TRUE);
    EXPECT_EQ(scene->list2D->insertAfter, 1);
    EXPECT_EQ(smClearScene2D(), 1);
    EXPECT_EQ(scene->has2D, 0);
}

TEST(List2DThread, TheListCallsRunOnTheSceneThread) {
    const tst::ChildResult r = tst::runScenario("RelToPos2DThroughTheSceneThread");
    EXPECT_EQ(r.exitCode, 0u) << r.output;
}

TEST_F(List2D, FontsOnTheDirectPathTakeTheScenesNextListNames) {
    HFONT font = smCreateFont2D("Tahoma", 16, FW_NORMAL, FALSE, FALSE);
    EXPECT_EQ(smCreateFontBMP(font), 1000u);
    EXPECT_EQ(scene()->nextFontBase, 1256u);
    smOutlineFontRecord* outline = smCreateFontEXT(font, 0.0f, 0.1f);
    EXPECT_EQ(outline->listBase, 1256u);
    EXPECT_EQ(scene()->nextFontBase, 1512u);
    EXPECT_EQ(glIsList(1000 + 'A'), GL_TRUE);  // the scene's context is current here
    EXPECT_EQ(glIsList(1256 + 'A'), GL_TRUE);
    EXPECT_EQ(GetCurrentObject(scene()->dc, OBJ_FONT), font);  // the font stays selected
    GlobalFree(outline);
    snFont2D(nullptr, static_cast<HFONT>(GetStockObject(SYSTEM_FONT)));
    EXPECT_TRUE(smDelGDIObj(font));
}
