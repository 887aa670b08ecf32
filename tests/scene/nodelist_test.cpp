// Node model and scene lists with the library linked in, on a scene hosted in a test window
// (direct path): order, insertion point and count after each step, groups, use nodes,
// selection names and the display-list freeze.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include <vector>

#include "support/host_window.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "view/pass/scene_draw_context.h"
#include "view/scene/cscene.h"

namespace {

// Every node, the test's own included, is named by the library.
cNode* nodeOfName(GLuint name) { return tsNodeFromName(name); }

// A node that fills a square of the view in its colour, so that order and presence
// show in pixels and in selection hits.
class SquareNode : public cNode {
public:
    SquareNode(float r = 1, float g = 1, float b = 1, float size = 1) : cNode(1003), r_(r), g_(g), b_(b), s_(size) {}
    void draw(ts::DrawContext&) override {
        glDisable(GL_LIGHTING);
        glDisable(GL_DEPTH_TEST);
        glColor3f(r_, g_, b_);
        glBegin(GL_QUADS);
        glVertex3f(-s_, -s_, 0);
        glVertex3f(s_, -s_, 0);
        glVertex3f(s_, s_, 0);
        glVertex3f(-s_, s_, 0);
        glEnd();
    }
    void hook() override {}

private:
    float r_, g_, b_, s_;
};

std::vector<cNode*> order(const cGroup* g) {
    std::vector<cNode*> nodes;
    for (cNode* n = g->head; n != nullptr; n = n->next) nodes.push_back(n);
    return nodes;
}

class NodeList : public ::testing::Test {
protected:
    cGroup* root() const { return host.scene->list3D; }
    cGroup* current() const { return host.scene->currentGroup; }
    cNode* add() {
        cNode* n = new SquareNode;
        smAddNode(n);
        return n;
    }
    tst::HostWindow host;
};

}  // namespace

TEST_F(NodeList, SceneStartsEmptyWithRootCurrent) {
    ASSERT_NE(host.scene, nullptr);
    EXPECT_EQ(current(), root());
    EXPECT_EQ(root()->count, 0u);
    EXPECT_EQ(host.scene->has3D, 0);
    EXPECT_EQ(root()->type, TS_CLASS_GROUP);
}

TEST_F(NodeList, AppendsInOrderWithCurrentOnTheLast) {
    cNode* a = add();
    EXPECT_EQ(host.scene->has3D, 1);
    cNode* b = add();
    cNode* c = add();
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, b, c}));
    EXPECT_EQ(root()->current, c);
    EXPECT_EQ(root()->tail, c);
    EXPECT_EQ(root()->count, 3u);
}

TEST_F(NodeList, InsertAfterModeTrueReversesARun) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    smInsertAfter(a, TRUE);
    cNode* x = add();
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, x, b, c}));
    cNode* y = add();
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, y, x, b, c}));
    EXPECT_EQ(root()->current, a);
    EXPECT_EQ(root()->count, 5u);
}

TEST_F(NodeList, InsertAfterModeFalseInsertsOnceThenAppends) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    smInsertAfter(a, FALSE);
    cNode* x = add();
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, x, b, c}));
    EXPECT_EQ(root()->current, c);
    cNode* y = add();
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, x, b, c, y}));
    EXPECT_EQ(root()->count, 5u);
}

TEST_F(NodeList, InsertAfterTheTailKeepsAppending) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    smInsertAfter(c, TRUE);
    cNode* x = add();
    cNode* y = add();
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, b, c, x, y}));
    EXPECT_EQ(root()->tail, y);
}

TEST_F(NodeList, FirstOfSeveralCannotBeDeleted) {
    cNode* a = add();
    cNode* b = add();
    EXPECT_EQ(smDelNode(a), nullptr);
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, b}));
    EXPECT_EQ(root()->count, 2u);
}

TEST_F(NodeList, DeletingTheOnlyNodeEmptiesAndResetsCount) {
    add();
    smInsertAfter(root()->head, TRUE);
    EXPECT_EQ(smDelNode(root()->head), nullptr);
    EXPECT_EQ(root()->head, nullptr);
    EXPECT_EQ(root()->tail, nullptr);
    EXPECT_EQ(root()->current, nullptr);
    EXPECT_EQ(root()->insertAfter, 0);
    EXPECT_EQ(root()->count, 0u);
}

TEST_F(NodeList, DeletingTheTailMakesThePredecessorTail) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    EXPECT_EQ(smDelNode(c), nullptr);
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, b}));
    EXPECT_EQ(root()->tail, b);
    EXPECT_EQ(root()->current, b);
}

TEST_F(NodeList, DeletingTheMiddleReturnsItsFollowerAndKeepsCount) {
    cNode* a = add();
    cNode* b = add();
    cNode* c = add();
    EXPECT_EQ(smDelNode(b), c);
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, c}));
    EXPECT_EQ(root()->count, 3u);
}

TEST_F(NodeList, DeletingANodeOfNoListChangesNothing) {
    cNode* a = add();
    cNode* b = add();
    SquareNode stranger;
    EXPECT_EQ(smDelNode(&stranger), nullptr);
    EXPECT_EQ(order(root()), (std::vector<cNode*>{a, b}));
}

TEST_F(NodeList, GroupEndAtTheRootChangesNothing) {
    smGroupEnd();
    EXPECT_EQ(current(), root());
}

TEST_F(NodeList, GroupsNestAndEndOneLevelAtATime) {
    cNode* outer = snGroup();
    EXPECT_EQ(outer->type, TS_CLASS_GROUP);
    EXPECT_EQ(current(), outer);
    cNode* inner = snGroup();
    EXPECT_EQ(current(), inner);
    EXPECT_EQ(static_cast<cGroup*>(inner)->parent, outer);
    cNode* child = add();
    smGroupEnd();
    EXPECT_EQ(current(), outer);
    EXPECT_EQ(order(static_cast<cGroup*>(inner)), (std::vector<cNode*>{child}));
    EXPECT_EQ(order(static_cast<cGroup*>(outer)), (std::vector<cNode*>{inner}));
    EXPECT_EQ(order(root()), (std::vector<cNode*>{outer}));
    smGroupEnd();
    smGroupEnd();
    EXPECT_EQ(current(), root());
}

TEST_F(NodeList, ClearInsideAGroupEmptiesOnlyThatGroupAndClearsHas3D) {
    cNode* before = add();
    cNode* group = snGroup();
    add();
    add();
    EXPECT_EQ(smClearScene(), 1);
    EXPECT_EQ(static_cast<cGroup*>(group)->head, nullptr);
    EXPECT_EQ(static_cast<cGroup*>(group)->count, 0u);
    EXPECT_EQ(order(root()), (std::vector<cNode*>{before, group}));
    EXPECT_EQ(host.scene->has3D, 0);
}

TEST_F(NodeList, UseNodeDrawsItsTarget) {
    smAddNode(new SquareNode(0, 1, 0, 0.5f));
    cNode* target = root()->head;
    cNode* use = snUse(target);
    EXPECT_EQ(use->type, TS_CLASS_USE3D);
    EXPECT_EQ(order(root()), (std::vector<cNode*>{target, use}));
}

TEST_F(NodeList, SelectionNamesNameTheInnermostNodeAndMapBack) {
    cNode* group = snGroup();
    cNode* inGroup = add();
    smGroupEnd();
    cNode* top = add();
    cNode* use = snUse(top);

    tst::pump();
    wglMakeCurrent(host.scene->dc, host.scene->glrc);
    GLuint buffer[64] = {};
    glSelectBuffer(64, buffer);
    glRenderMode(GL_SELECT);
    glInitNames();
    glPushName(0);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    host.scene->renderMode = GL_SELECT;
    ts::SceneDrawContext context(*host.scene);
    root()->draw(context);
    host.scene->renderMode = GL_RENDER;
    const GLint hits = glRenderMode(GL_RENDER);

    std::vector<cNode*> named;
    for (GLint i = 0, at = 0; i < hits; ++i) {
        const GLuint depth = buffer[at];
        named.push_back(nodeOfName(buffer[at + 3 + depth - 1]));
        at += 3 + depth;
    }
    EXPECT_EQ(named, (std::vector<cNode*>{inGroup, top, use}));
    EXPECT_NE(group->glName(), 0u);
    EXPECT_EQ(tsNodeFromName(group->glName()), group);
}

TEST_F(NodeList, DrawnSceneShowsNodesAndDisplayListFreezesIt) {
    const tst::Rgb black{0, 0, 0}, red{255, 0, 0}, blue{0, 0, 255};
    EXPECT_EQ(host.paintAndRead(80, 60), black);
    smAddNode(new SquareNode(1, 0, 0, 1));
    EXPECT_EQ(host.paintAndRead(80, 60), red);
    EXPECT_EQ(smUseDisplayList(), 0);
    EXPECT_EQ(host.pixel(80, 60), red);
    smAddNode(new SquareNode(0, 0, 1, 1.5f));
    EXPECT_EQ(host.paintAndRead(80, 60), red);  // frozen: the blue square does not show
    smUseDisplayList();
    EXPECT_EQ(host.paintAndRead(80, 60), blue);
}

TEST_F(NodeList, EditingWithAHandleOfAnotherClassReturnsNullAndChangesNothing) {
    cNode* box = snBox(nullptr, -1, -1, -1, 1, 1, 1, 100020 /* GLU_OUTSIDE */);
    cNode* colour = snColorRGB(nullptr, 1, 0, 0);
    EXPECT_EQ(snColorRGB(box, 0, 1, 0), nullptr);
    EXPECT_EQ(snBox(colour, 0, 0, 0, 1, 1, 1, 100020), nullptr);
    EXPECT_EQ(box->type, TS_CLASS_BOX3D);
    EXPECT_EQ(colour->type, TS_CLASS_COLOR3D);
    EXPECT_EQ(root()->count, 2u);
    EXPECT_EQ(snColorRGB(colour, 0, 0, 1), colour);  // same class: edited in place
    EXPECT_EQ(order(root()), (std::vector<cNode*>{box, colour}));
}

TEST_F(NodeList, UseNodeDrawsItsTargetAgainUnderTheStateInForce) {
    snDisable(nullptr, 1);  // no lighting: plain colours
    snColorRGB(nullptr, 0, 1, 0);
    snTranslate(nullptr, -1.5f, 0, 0);
    cNode* group = snGroup();
    snBox(nullptr, -0.5f, -0.5f, -0.5f, 0.5f, 0.5f, 0.5f, 100020);
    smGroupEnd();
    snTranslate(nullptr, 3.0f, 0, 0);
    snUse(group);
    const tst::Rgb green{0, 255, 0}, black{0, 0, 0};
    // The window is 160 x 120; the two boxes stand left and right of the centre. The
    // switch node turns lighting off while the list is drawn, so from the next pass on.
    host.paintAndRead(40, 60);
    const tst::Rgb left = host.paintAndRead(40, 60);
    EXPECT_EQ(left.g, 255);
    EXPECT_EQ(host.pixel(120, 60).g, 255);
    EXPECT_EQ(host.pixel(80, 60), black);
    EXPECT_EQ(left, green);
}
