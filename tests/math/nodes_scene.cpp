// The screenshot scene: a red shiny sphere, a green turned box, a capped cylinder, a
// partial disk, a fan primitive, a triangle, a tetragon, a line, a point and the axes.
#include "math/nodes_scene.h"

#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/visible/caxis3d.h"
#include "tsobj3d/visible/cbox3d.h"
#include "tsobj3d/visible/ccolor3d.h"
#include "tsobj3d/visible/ccylinder3d.h"
#include "tsobj3d/visible/cdisk3d.h"
#include "tsobj3d/visible/cenable3d.h"
#include "tsobj3d/visible/cline3d.h"
#include "tsobj3d/visible/cmaterial3d.h"
#include "tsobj3d/visible/cpoint3d.h"
#include "tsobj3d/visible/cpopmatrix3d.h"
#include "tsobj3d/visible/cprimitive3d.h"
#include "tsobj3d/visible/cpushmatrix3d.h"
#include "tsobj3d/visible/crotate3d.h"
#include "tsobj3d/visible/cscale3d.h"
#include "tsobj3d/visible/cshadow3d.h"
#include "tsobj3d/visible/csphere3d.h"
#include "tsobj3d/visible/ctetragon3d.h"
#include "tsobj3d/visible/ctranslate3d.h"
#include "tsobj3d/visible/ctriangle3d.h"

namespace tst {

namespace {

// Builds nodes into one group, in order.
class Builder {
public:
    explicit Builder(cGroup& g) : group_(g) {}

    template <class Node, class... Args>
    Node& add(Args... args) {
        auto* node = new Node();
        node->set(args...);
        group_.add(node, {&has3D_, &has2D_});
        return *node;
    }
    void node(cNode* n) { group_.add(n, {&has3D_, &has2D_}); }
    void at(float x, float y, float z) {
        add<cPushMatrix3D>();
        add<cTranslate3D>(x, y, z);
    }
    void back() { add<cPopMatrix3D>(); }

private:
    cGroup& group_;
    int has3D_ = 0;
    int has2D_ = 0;
};

void addSolids(Builder& b) {
    const float white[4] = {1, 1, 1, 1};
    b.at(-1.2f, 1.2f, 0);
    b.node(new cMaterial3D(GL_FRONT, nullptr, nullptr, white, 40));
    b.add<cColor3D>(0.9f, 0.15f, 0.1f);
    b.add<cSphere3D>(0.4f, 24, 16, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    b.back();
    b.at(0.0f, 1.3f, 0);
    b.add<cRotate3D>(30.0f, 1.0f, 1.0f, 0.0f, 0.0f);
    b.add<cColor3D>(0.2f, 0.8f, 0.3f);
    b.add<cBox3D>(-0.3f, -0.3f, -0.3f, 0.3f, 0.3f, 0.3f, GLU_OUTSIDE);
    b.back();
    b.at(1.2f, 0.85f, 0);
    b.add<cRotate3D>(-70.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    b.add<cColor3D>(0.3f, 0.5f, 0.95f);
    b.add<cCylinder3D>(0.8f, 0.3f, 0.2f, TRUE, TRUE, 24, 2, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    b.back();
    b.at(-1.2f, -0.95f, 0);
    b.add<cColor3D>(0.95f, 0.8f, 0.2f);
    b.add<cDisk3D>(0.15f, 0.45f, 24, 2, 45.0f, 270.0f, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    b.back();
}

void addFlatShapes(Builder& b) {
    static const float kFan[] = {0, 0, 0, 0.4f, 0, 0, 0.2f, 0.35f, 0, -0.2f, 0.35f, 0,
                                 -0.4f, 0, 0, -0.2f, -0.35f, 0, 0.2f, -0.35f, 0, 0.4f, 0, 0};
    b.at(0.0f, -1.0f, 0);
    b.add<cScale3D>(1.2f, 1.2f, 1.0f);
    b.add<cColor3D>(0.8f, 0.4f, 0.9f);
    b.add<cPrimitive3D>(static_cast<int>(GL_TRIANGLE_FAN), kFan, 8);
    b.back();
    b.at(1.1f, -1.15f, 0);
    b.add<cColor3D>(0.4f, 0.9f, 0.9f);
    b.add<cTetragon3D>(0.0f, 0.0f, 0.0f, 0.5f, 0.0f, 0.0f, 0.6f, 0.5f, 0.0f, 0.1f, 0.4f, 0.0f);
    b.add<cColor3D>(1.0f, 0.6f, 0.2f);
    b.add<cTriangle3D>(-0.5f, 0.0f, 0.0f, -0.1f, 0.0f, 0.0f, -0.3f, 0.4f, 0.0f);
    b.back();
    b.add<cColor3D>(1.0f, 1.0f, 1.0f);
    b.add<cLine3D>(-1.6f, -1.65f, 0.0f, 1.6f, -1.65f, 0.0f);
    static const float kYellow[3] = {1, 1, 0};
    b.add<cPoint3D>(0.0f, -1.5f, 0.0f, kYellow);
}

}  // namespace

std::unique_ptr<cGroup> buildNodesScene() {
    auto root = std::make_unique<cGroup>(nullptr);
    Builder b(*root);
    b.add<cEnable3D>(TS_SWITCH_CULL_FACE, 1);
    b.add<cShadow3D>();
    b.at(0, 0, 0);
    b.add<cRotate3D>(25.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    b.add<cRotate3D>(-35.0f, 0.0f, 1.0f, 0.0f, 0.0f);
    b.add<cAxis3D>(0.6f, 0.6f, 0.6f, 0.16f, 0.1f, 0.18f);
    b.back();
    addSolids(b);
    addFlatShapes(b);
    return root;
}

void drawNodesScene(cGroup& root, int size, ts::DrawContext& context) {
    glViewport(0, 0, size, size);
    glClearColor(0.1f, 0.1f, 0.15f, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(45.0, 1.0, 0.1, 100.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    const float light[4] = {0.4f, 0.6f, 1.0f, 0}, grey[4] = {0.25f, 0.25f, 0.25f, 1};
    glLightfv(GL_LIGHT0, GL_POSITION, light);
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, grey);
    gluLookAt(0.5, 0.6, 5.8, 0, 0, 0, 0, 1, 0);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_LIGHTING);
    glEnable(GL_LIGHT0);
    glColorMaterial(GL_FRONT, GL_AMBIENT_AND_DIFFUSE);
    glEnable(GL_COLOR_MATERIAL);
    glShadeModel(GL_SMOOTH);
    root.draw(context);
    glFinish();
}

}  // namespace tst
