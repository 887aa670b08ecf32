// The sn exports of the geometry, attribute and transform nodes, smNormalize, srandstd
// and randstd with the library linked in: create-or-edit on a hosted scene, shared classes,
// the guards, and the random numbers against an independent computation.
#include <GL/gl.h>
#include <GL/glu.h>

#include <vector>

#include <gtest/gtest.h>

#include "math/randstd_reference.h"
#include "support/child_process.h"
#include "support/host_window.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/visible/caxis3d.h"
#include "tsobj3d/visible/cbox3d.h"
#include "tsobj3d/visible/ccolor3d.h"
#include "tsobj3d/visible/ccylinder3d.h"
#include "tsobj3d/visible/cdisk3d.h"
#include "tsobj3d/visible/cenable3d.h"
#include "tsobj3d/visible/cline3d.h"
#include "tsobj3d/visible/cpoint3d.h"
#include "tsobj3d/visible/cprimitive3d.h"
#include "tsobj3d/visible/crotate3d.h"
#include "tsobj3d/visible/cscale3d.h"
#include "tsobj3d/visible/csphere3d.h"
#include "tsobj3d/visible/ctetragon3d.h"
#include "tsobj3d/visible/ctranslate3d.h"
#include "tsobj3d/visible/ctriangle3d.h"
#include "view/scene/cscene.h"

namespace {

constexpr UINT kSetForeground = 0x10000;

class NodeExports : public ::testing::Test {
protected:
    cGroup* list() const { return host.scene->list3D; }
    tst::HostWindow host;
};

template <class NodeClass>
NodeClass* as(cNode* n) {
    return static_cast<NodeClass*>(n);
}

TEST_F(NodeExports, EachConstructorMakesItsClassAndAddsIt) {
    const float colour[3] = {1, 0, 0};
    const float pts[] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    struct Made {
        cNode* node;
        int32_t code;
    };
    const Made made[] = {
        {snPoint(nullptr, 1, 2, 3, colour), 1012},
        {snLine(nullptr, 0, 0, 0, 1, 1, 1), 1009},
        {snTriangle(nullptr, 0, 0, 0, 1, 0, 0, 0, 1, 0), 1017},
        {snTetragon(nullptr, 0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0), 1016},
        {snBox(nullptr, 0, 0, 0, 1, 1, 1, GLU_OUTSIDE), 1003},
        {snPrimitive(nullptr, GL_TRIANGLES, pts, 3), 1013},
        {snSphere(nullptr, 1, 8, 8, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE), 1015},
        {snCylinder(nullptr, 1, 1, 1, TRUE, TRUE, 8, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE), 1004},
        {snDisk(nullptr, 0, 1, 8, 1, 0, 360, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE), 1005},
        {snAxis(nullptr, 1, 1, 1, 0.1f, 0.1f, 0.1f), 1001},
        {snColor(nullptr, colour), 2001},
        {snColorRGB(nullptr, 0, 1, 0), 2001},
        {snTranslate(nullptr, 1, 2, 3), 2011},
        {snScale(nullptr, 1, 2, 3), 2010},
        {snRotate(nullptr, 10, 0, 0, 1, 1), 2007},
        {snEnable(nullptr, TS_SWITCH_LIGHTING), 2002},
        {snDisable(nullptr, TS_SWITCH_LIGHTING), 2002},
        {snPushMatrix(), 2009},
        {snPopMatrix(), 2008},
    };
    cNode* n = list()->head;
    for (const Made& m : made) {
        ASSERT_NE(nullptr, m.node);
        EXPECT_EQ(m.code, m.node->type);
        EXPECT_EQ(m.node, n) << "nodes are appended in order";
        n = n != nullptr ? n->next : nullptr;
    }
    EXPECT_EQ(nullptr, n);
    EXPECT_EQ(19u, list()->count);
    EXPECT_EQ(1, host.scene->has3D);
}

TEST_F(NodeExports, ParametersAreStored) {
    const float colour[3] = {0.1f, 0.2f, 0.3f};
    auto* p = as<cPoint3D>(snPoint(nullptr, 1, 2, 3, colour));
    EXPECT_EQ(1, p->hasColor);
    EXPECT_FLOAT_EQ(0.3f, p->b);
    auto* b = as<cBox3D>(snBox(nullptr, 2, -1, 3, -2, 1, -3, GLU_INSIDE));
    EXPECT_FLOAT_EQ(-2, b->corners[0][0]);
    EXPECT_FLOAT_EQ(3, b->corners[0][2]);
    EXPECT_EQ(GLU_INSIDE, b->orientation);
    auto* c = as<cCylinder3D>(
        snCylinder(nullptr, 2, 0.5f, 0.25f, FALSE, TRUE, 9, 3, GLU_LINE, GLU_FLAT, GLU_OUTSIDE));
    EXPECT_EQ(nullptr, c->bottomCap.get());
    EXPECT_NE(nullptr, c->topCap.get());
    EXPECT_FLOAT_EQ(0.25f, c->topRadius);
    EXPECT_EQ(9, c->slices);
    auto* d = as<cDisk3D>(snDisk(nullptr, 0.1f, 0.9f, 7, 2, 15, 90, GLU_FILL, GLU_NONE, GLU_INSIDE));
    EXPECT_FLOAT_EQ(90, d->sweepAngle);
    EXPECT_EQ(GLU_NONE, d->normals);
    auto* a = as<cAxis3D>(snAxis(nullptr, 1, 2, 3, 4, 5, 6));
    EXPECT_FLOAT_EQ(6, a->params[5]);
    auto* r = as<cRotate3D>(snRotate(nullptr, 10, 0, 1, 0, 2.5f));
    EXPECT_FLOAT_EQ(2.5f, r->increment);
}

TEST_F(NodeExports, EditChangesTheNodeInPlace) {
    cNode* first = snLine(nullptr, 0, 0, 0, 1, 1, 1);
    cNode* box = snBox(nullptr, 0, 0, 0, 1, 1, 1, GLU_OUTSIDE);
    cNode* last = snColorRGB(nullptr, 1, 1, 1);
    EXPECT_EQ(box, snBox(box, -5, -5, -5, 5, 5, 5, GLU_INSIDE));
    EXPECT_FLOAT_EQ(-5, as<cBox3D>(box)->corners[0][0]);
    EXPECT_EQ(GLU_INSIDE, as<cBox3D>(box)->orientation);
    EXPECT_EQ(first, list()->head);
    EXPECT_EQ(box, first->next);
    EXPECT_EQ(last, box->next);
    EXPECT_EQ(3u, list()->count);
}

TEST_F(NodeExports, EditWithAnotherClassGivesNullAndChangesNothing) {
    cNode* line = snLine(nullptr, 0, 0, 0, 1, 1, 1);
    cNode* sphere = snSphere(nullptr, 1, 8, 8, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    EXPECT_EQ(nullptr, snBox(line, 5, 5, 5, 6, 6, 6, GLU_OUTSIDE));
    EXPECT_EQ(nullptr, snTranslate(sphere, 1, 1, 1));
    EXPECT_EQ(nullptr, snEnable(line, 1));
    EXPECT_EQ(1009, line->type);
    EXPECT_FLOAT_EQ(1, as<cLine3D>(line)->p2[0]);
    EXPECT_FLOAT_EQ(1, as<cSphere3D>(sphere)->radius);
    EXPECT_EQ(2u, list()->count);
}

TEST_F(NodeExports, ColourCallsShareOneClass) {
    cNode* c = snColorRGB(nullptr, 1, 0, 0);
    const float blue[3] = {0, 0, 1};
    EXPECT_EQ(c, snColor(c, blue));
    EXPECT_FLOAT_EQ(1, as<cColor3D>(c)->b);
    EXPECT_EQ(c, snColorRGB(c, 0, 1, 0));
    EXPECT_FLOAT_EQ(1, as<cColor3D>(c)->g);
}

TEST_F(NodeExports, DisableOnAnEnableNodeTurnsItOff) {
    cNode* e = snEnable(nullptr, TS_SWITCH_DEPTH_TEST);
    EXPECT_EQ(1, as<cEnable3D>(e)->on);
    EXPECT_EQ(e, snDisable(e, TS_SWITCH_PICKING));
    EXPECT_EQ(0, as<cEnable3D>(e)->on);
    EXPECT_EQ(TS_SWITCH_PICKING, as<cEnable3D>(e)->switchNumber);
}

TEST_F(NodeExports, MatrixNodesAreAlwaysNew) {
    cNode* a = snPushMatrix();
    cNode* b = snPushMatrix();
    cNode* c = snPopMatrix();
    cNode* d = snPopMatrix();
    EXPECT_NE(a, b);
    EXPECT_NE(c, d);
    EXPECT_EQ(4u, list()->count);
    EXPECT_EQ(d, list()->tail);
}

TEST_F(NodeExports, PrimitiveCopiesThePoints) {
    std::vector<float> pts = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    auto* p = as<cPrimitive3D>(snPrimitive(nullptr, GL_TRIANGLES, pts.data(), 3));
    ASSERT_NE(nullptr, p->vertices.get());
    EXPECT_NE(pts.data(), p->vertices.get());
    pts.assign(9, 9.0f);
    EXPECT_FLOAT_EQ(1, p->vertices[3]);
    EXPECT_EQ(3, p->count);
    const float one[3] = {4, 5, 6};
    EXPECT_EQ(p, snPrimitive(p, GL_POLYGON, one, 1));
    EXPECT_FLOAT_EQ(6, p->vertices[2]);
    EXPECT_EQ(static_cast<uint32_t>(GL_POLYGON), p->mode);
}

// 200 million points are 2.4 GB: more than a 32-bit process can hold, and more than
// PTRDIFF_MAX, where a nothrow new throws instead of failing. The node is left empty.
TEST_F(NodeExports, PrimitiveTooBigForTheProcessIsLeftEmpty) {
    const float one[3] = {4, 5, 6};
    auto* p = as<cPrimitive3D>(snPrimitive(nullptr, GL_TRIANGLES, one, sizeof(void*) == 4 ? 200000000 : -1));
    EXPECT_EQ(nullptr, p->vertices.get());
    EXPECT_EQ(0, p->count);
}

TEST_F(NodeExports, BoxShowsInTheScene) {
    snBox(nullptr, -1, -1, -1, 1, 1, 1, GLU_OUTSIDE);
    const tst::Rgb centre = host.paintAndRead(80, 60);
    // No light is on: the white box shows in the 0.2 ambient light of the light model.
    EXPECT_GT(centre.r + centre.g + centre.b, 120);
    const tst::Rgb corner = host.paintAndRead(2, 2);
    EXPECT_LT(corner.r + corner.g + corner.b, 30);
}

void expectFatalBox(const tst::ChildResult& r, const std::string& text) {
    EXPECT_EQ(1u, r.exitCode) << r.output;
    ASSERT_EQ(1u, r.boxes.size()) << r.output;
    EXPECT_EQ("Tessarin Error Message", r.boxes[0].title);
    EXPECT_EQ(text, r.boxes[0].text);
    EXPECT_EQ(kSetForeground, r.boxes[0].style);
}

TST_SCENARIO(PrimitiveWithoutPoints) { snPrimitive(nullptr, GL_TRIANGLES, nullptr, 3); }

TEST(NodeExportGuards, PrimitiveProbesItsPoints) {
    expectFatalBox(tst::runScenario("PrimitiveWithoutPoints"),
                   "Pointer to inaccessible memory: snPrimitive(vects)");
}

TST_SCENARIO(ColourFromABadPointer) {
    snColor(nullptr, reinterpret_cast<const float*>(static_cast<uintptr_t>(0x30)));
}

TEST(NodeExportGuards, ColourFaultIsCaughtByTheCatchAll) {
    expectFatalBox(tst::runScenario("ColourFromABadPointer"), "Unhandled exception in: snColor");
}

TST_SCENARIO(NormalizeABadPointer) {
    smNormalize(reinterpret_cast<float*>(static_cast<uintptr_t>(0x40)));
}

TEST(NodeExportGuards, NormalizeFaultIsCaughtByTheCatchAll) {
    expectFatalBox(tst::runScenario("NormalizeABadPointer"), "Unhandled exception in: smNormalize");
}

TST_SCENARIO(PushMatrixWithoutAScene) { snPushMatrix(); }

TEST(NodeExportGuards, MatrixNodeWithoutASceneEndsInAddNode) {
    expectFatalBox(tst::runScenario("PushMatrixWithoutAScene"),
                   "Pointer to inaccessible memory: Current Scene is not defined!");
}

TEST(Normalize, ThroughTheLibrary) {
    float v[3] = {0, 3, 4};
    smNormalize(v);
    EXPECT_FLOAT_EQ(0.6f, v[1]);
    EXPECT_FLOAT_EQ(0.8f, v[2]);
    float zero[3] = {0, 0, 0};
    smNormalize(zero);
    EXPECT_EQ(0.0f, zero[0]);
    EXPECT_EQ(0.0f, zero[1]);
    EXPECT_EQ(0.0f, zero[2]);
    float tiny[3] = {0, 0, -1e-10f};
    smNormalize(tiny);
    EXPECT_FLOAT_EQ(-1.0f, tiny[2]);
}

class RandStdExport : public ::testing::TestWithParam<uint32_t> {};

TEST_P(RandStdExport, FirstFiftyValuesMatchTheReference) {
    for (unsigned n : {0xFFFFFFFFu, 1000u, 2u}) {
        srandstd(GetParam());
        tst::RandStdReference ref(GetParam());
        for (int k = 0; k < 50; ++k) ASSERT_EQ(ref.word() % n, randstd(n)) << "n " << n << " value " << k;
    }
}

TEST_P(RandStdExport, SameSeedSameSequence) {
    srandstd(GetParam());
    std::vector<unsigned> first;
    for (int k = 0; k < 100; ++k) first.push_back(randstd(1u << 30));
    srandstd(GetParam());
    for (int k = 0; k < 100; ++k) ASSERT_EQ(first[k], randstd(1u << 30)) << k;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandStdExport, ::testing::Values(0u, 1u, 12345u, 0xFFFFFFFFu));

// The exit code carries the sum of the first values: a fresh process has never seeded.
TST_SCENARIO(RandStdUnseeded) {
    unsigned sum = 0;
    for (int k = 0; k < 50; ++k) sum += randstd(1000);
    ExitProcess(100 + sum);
}

TEST(RandStdExportEdges, BeforeAnySeedEveryValueIsZero) {
    EXPECT_EQ(100u, tst::runScenario("RandStdUnseeded").exitCode);
}

TST_SCENARIO(RandStdByZero) {
    srandstd(7);
    const unsigned v = randstd(0);
    ExitProcess(200 + v);
}

TEST(RandStdExportEdges, ZeroIsAnIntegerDivisionFault) {
    const tst::ChildResult r = tst::runScenario("RandStdByZero");
    EXPECT_EQ(static_cast<DWORD>(EXCEPTION_INT_DIVIDE_BY_ZERO), r.exitCode) << r.output;
    EXPECT_TRUE(r.boxes.empty());
}

}  // namespace
