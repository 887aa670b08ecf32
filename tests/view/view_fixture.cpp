// Test nodes and helpers of the scene-view tests.
#include "view_fixture.h"

#include "tessarin.h"
#include "view/scene/cscene.h"

namespace vt {

QuadNode::QuadNode(float r, float g, float b, float half, float x, float y, float z)
    : cNode(TS_CLASS_TETRAGON3D), r_(r), g_(g), b_(b), half_(half), x_(x), y_(y), z_(z) {}

void QuadNode::draw(ts::DrawContext&) {
    glColor3f(r_, g_, b_);
    glNormal3f(0.0f, 0.0f, 1.0f);
    glBegin(GL_QUADS);
    glVertex3f(x_ - half_, y_ - half_, z_);
    glVertex3f(x_ + half_, y_ - half_, z_);
    glVertex3f(x_ + half_, y_ + half_, z_);
    glVertex3f(x_ - half_, y_ + half_, z_);
    glEnd();
}

Fill2DNode::Fill2DNode(HDC dc, COLORREF color) : cNode(TS_CLASS_RECTANGLE2D), dc_(dc), color_(color) {}

void Fill2DNode::draw(ts::DrawContext&) {
    HBRUSH brush = CreateSolidBrush(color_);
    const RECT r = {0, 0, 20, 20};
    FillRect(dc_, &r, brush);
    DeleteObject(brush);
}

cNode* ViewTest::addQuad(float r, float g, float b, float half, float x, float y) {
    cNode* n = new QuadNode(r, g, b, half, x, y);
    smAddNode(n);
    return n;
}

void expectMatrixNear(const float* actual, const float* expected, float tolerance) {
    for (int k = 0; k < 16; ++k) EXPECT_NEAR(actual[k], expected[k], tolerance) << "element " << k;
}

void rotation(float angle, float x, float y, float z, float* m) {
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    glRotatef(angle, x, y, z);
    glGetFloatv(GL_MODELVIEW_MATRIX, m);
    glPopMatrix();
}

}  // namespace vt
