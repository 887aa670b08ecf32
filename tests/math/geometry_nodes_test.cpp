// The OpenGL and GLU calls of the simple geometry nodes, recorded in a real context:
// vertices, their order, normals and quadric settings.
#include <GL/gl.h>
#include <GL/glu.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "math/gl_canvas.h"
#include "math/gl_recorder.h"
#include "tsobj3d/visible/caxis3d.h"
#include "tsobj3d/visible/cbox3d.h"
#include "tsobj3d/visible/ccylinder3d.h"
#include "tsobj3d/visible/cdisk3d.h"
#include "tsobj3d/visible/cline3d.h"
#include "tsobj3d/visible/cpoint3d.h"
#include "tsobj3d/visible/cprimitive3d.h"
#include "tsobj3d/visible/cshadow3d.h"
#include "tsobj3d/visible/csphere3d.h"
#include "tsobj3d/visible/ctetragon3d.h"
#include "tsobj3d/visible/ctriangle3d.h"

namespace {

using Calls = std::vector<std::string>;
using tst::call;

std::string v3(const char* name, float x, float y, float z) {
    const float v[3] = {x, y, z};
    return std::string(name) + "(" + tst::vec(v, 3) + ")";
}

// The numbers inside the parentheses of a recorded call.
std::vector<float> numbers(const std::string& text) {
    std::vector<float> out;
    const char* p = text.c_str() + text.find('(') + 1;
    while (*p != ')' && *p != '\0') {
        char* end = nullptr;
        out.push_back(std::strtof(p, &end));
        p = (*end == ',') ? end + 1 : end;
    }
    return out;
}

class GeometryNodes : public tst::CanvasTest {
protected:
    tst::GlRecorder recorder;

    Calls draw(cNode& node) {
        recorder.take();
        node.draw(context);
        return recorder.take();
    }
};

TEST_F(GeometryNodes, RecorderSeesTheNodeCalls) { EXPECT_GT(recorder.redirected(), 20); }

TEST_F(GeometryNodes, PointWithoutColour) {
    cPoint3D p;
    p.set(1, 2, 3, nullptr);
    EXPECT_EQ((Calls{call("glBegin", GL_POINTS), call("glVertex3f", 1.0f, 2.0f, 3.0f),
                     call("glEnd")}),
              draw(p));
}

TEST_F(GeometryNodes, PointColourStaysCurrent) {
    const float colour[3] = {0.25f, 0.5f, 0.75f};
    cPoint3D p;
    p.set(1, 2, 3, colour);
    EXPECT_EQ((Calls{call("glBegin", GL_POINTS), call("glColor3f", 0.25f, 0.5f, 0.75f),
                     call("glVertex3f", 1.0f, 2.0f, 3.0f), call("glEnd")}),
              draw(p));
    float current[4];
    glGetFloatv(GL_CURRENT_COLOR, current);
    EXPECT_FLOAT_EQ(0.25f, current[0]);
    EXPECT_FLOAT_EQ(0.5f, current[1]);
    EXPECT_FLOAT_EQ(0.75f, current[2]);
}

TEST_F(GeometryNodes, Line) {
    cLine3D l;
    l.set(1, 2, 3, -4, -5, -6);
    EXPECT_EQ((Calls{call("glBegin", GL_LINES), v3("glVertex3fv", 1, 2, 3),
                     v3("glVertex3fv", -4, -5, -6), call("glEnd")}),
              draw(l));
}

TEST_F(GeometryNodes, TriangleSwitchesCullingOnFirst) {
    cTriangle3D t;
    t.set(0, 0, 0, 1, 0, 0, 0, 1, 0);
    EXPECT_EQ((Calls{call("glEnable", GL_CULL_FACE), call("glBegin", GL_TRIANGLES),
                     v3("glNormal3fv", 0, 0, 1), v3("glVertex3fv", 0, 0, 0),
                     v3("glVertex3fv", 1, 0, 0), v3("glVertex3fv", 0, 1, 0), call("glEnd")}),
              draw(t));
    EXPECT_TRUE(glIsEnabled(GL_CULL_FACE));
}

TEST_F(GeometryNodes, DegenerateTriangleDrawsWithANonFiniteNormal) {
    cTriangle3D t;
    t.set(0.5f, 0.5f, 0, 0.5f, 0.5f, 0, 0.5f, 0.5f, 0);
    const Calls calls = draw(t);
    ASSERT_EQ(7u, calls.size());
    EXPECT_EQ(0u, calls[2].find("glNormal3fv("));
    float normal[3];
    glGetFloatv(GL_CURRENT_NORMAL, normal);
    EXPECT_FALSE(std::isfinite(normal[0]));
    EXPECT_EQ(static_cast<GLenum>(GL_NO_ERROR), glGetError());
}

TEST_F(GeometryNodes, TetragonIsTwoTrianglesAndLeavesCullingAlone) {
    cTetragon3D q;
    q.set(0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 1);
    const Calls calls = draw(q);
    // normal(p1 p3 p4) = ((p1-p3) x (p3-p4)) / |..| = (-1,-1,0) x (1,0,-1) / sqrt 3.
    const float s = 1.0f / std::sqrt(3.0f);
    const Calls expected{call("glBegin", GL_TRIANGLES), v3("glNormal3fv", 0, 0, 1),
                         v3("glVertex3fv", 0, 0, 0),     v3("glVertex3fv", 1, 0, 0),
                         v3("glVertex3fv", 1, 1, 0),     v3("glNormal3fv", s, -s, s),
                         v3("glVertex3fv", 0, 0, 0),     v3("glVertex3fv", 1, 1, 0),
                         v3("glVertex3fv", 0, 1, 1),     call("glEnd")};
    EXPECT_EQ(expected, calls);
}

// Checks a recorded box: one quad list of six faces, each normal given with
// glNormal3f before its four corners, and each face wound counter-clockwise as seen
// from the side its normal points to.
void expectBoxFaces(const Calls& calls, const float (*normals)[3]) {
    ASSERT_EQ(32u, calls.size());
    EXPECT_EQ(call("glBegin", GL_QUADS), calls[0]);
    EXPECT_EQ(call("glEnd"), calls[31]);
    for (int f = 0; f < 6; ++f) {
        const std::string& n = calls[1 + 5 * f];
        EXPECT_EQ(call("glNormal3f", normals[f][0], normals[f][1], normals[f][2]), n) << f;
        std::vector<float> v[4];
        for (int k = 0; k < 4; ++k) {
            v[k] = numbers(calls[2 + 5 * f + k]);
            ASSERT_EQ(0u, calls[2 + 5 * f + k].find("glVertex3fv(")) << f;
        }
        // Newell's normal of the quad points the way of its counter-clockwise side.
        float w[3] = {0, 0, 0};
        for (int k = 0; k < 4; ++k) {
            const std::vector<float>& a = v[k];
            const std::vector<float>& b = v[(k + 1) % 4];
            w[0] += (a[1] - b[1]) * (a[2] + b[2]);
            w[1] += (a[2] - b[2]) * (a[0] + b[0]);
            w[2] += (a[0] - b[0]) * (a[1] + b[1]);
        }
        for (int k = 0; k < 3; ++k)
            EXPECT_EQ(normals[f][k] > 0 ? 1 : normals[f][k] < 0 ? -1 : 0,
                      w[k] > 1e-6f ? 1 : w[k] < -1e-6f ? -1 : 0)
                << "face " << f << " component " << k;
    }
}

TEST_F(GeometryNodes, BoxOutsideFacesInTheirOrder) {
    cBox3D b;
    b.set(2, 3, 4, -1, -2, -3, GLU_OUTSIDE);
    const float normals[6][3] = {{0, -1, 0}, {0, 1, 0}, {0, 0, 1},
                                 {1, 0, 0},  {0, 0, -1}, {-1, 0, 0}};
    const Calls calls = draw(b);
    expectBoxFaces(calls, normals);
    // The bottom face lies at y = -2 and spans x -1..2, z -3..4.
    EXPECT_EQ(v3("glVertex3fv", -1, -2, 4), calls[2]);
}

TEST_F(GeometryNodes, BoxInsideFacesInTheirOrder) {
    const float normals[6][3] = {{0, 1, 0},  {0, -1, 0}, {0, 0, -1},
                                 {-1, 0, 0}, {0, 0, 1},  {1, 0, 0}};
    for (int orientation : {GLU_INSIDE, 0}) {
        cBox3D b;
        b.set(-1, -1, -1, 1, 1, 1, orientation);
        expectBoxFaces(draw(b), normals);
    }
}

TEST_F(GeometryNodes, PrimitiveQuadsSwapTheLastTwoPoints) {
    const float pts[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0};
    cPrimitive3D p;
    p.set(GL_QUADS, pts, 4);
    EXPECT_EQ((Calls{call("glBegin", GL_QUADS), v3("glNormal3fv", 0, 0, 1),
                     v3("glVertex3fv", 0, 0, 0), v3("glVertex3fv", 1, 0, 0),
                     v3("glVertex3fv", 1, 1, 0), v3("glVertex3fv", 0, 1, 0), call("glEnd")}),
              draw(p));
}

TEST_F(GeometryNodes, PrimitiveFanNormals) {
    const float pts[] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
    cPrimitive3D p;
    p.set(GL_TRIANGLE_FAN, pts, 4);
    EXPECT_EQ((Calls{call("glBegin", GL_TRIANGLE_FAN), v3("glNormal3fv", 0, 0, 1),
                     v3("glVertex3fv", 0, 0, 0), v3("glVertex3fv", 1, 0, 0),
                     v3("glVertex3fv", 1, 1, 0), v3("glNormal3fv", 0, 0, 1),
                     v3("glVertex3fv", 0, 1, 0), call("glEnd")}),
              draw(p));
}

TEST_F(GeometryNodes, PrimitivePointsAndLinesDrawNothing) {
    const float pts[] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
    for (int mode : {GL_POINTS, GL_LINES}) {
        cPrimitive3D p;
        p.set(mode, pts, 4);
        EXPECT_EQ((Calls{call("glBegin", mode), call("glEnd")}), draw(p)) << mode;
    }
}

TEST_F(GeometryNodes, PrimitiveDrawModeValuesArePassedOnToOpenGL) {
    const float pts[] = {0, 0, 0, 1, 0, 0};
    cPrimitive3D p;
    p.set(100011, pts, 2);
    EXPECT_EQ((Calls{call("glBegin", 100011), v3("glVertex3fv", 0, 0, 0),
                     v3("glVertex3fv", 1, 0, 0), call("glEnd")}),
              draw(p));
    EXPECT_NE(static_cast<GLenum>(GL_NO_ERROR), glGetError());  // OpenGL rejects it
    while (glGetError() != GL_NO_ERROR) {
    }
}

TEST_F(GeometryNodes, PrimitiveKeepsItsOwnCopy) {
    std::vector<float> pts = {0, 0, 0, 1, 0, 0};
    cPrimitive3D p;
    p.set(GL_LINE_STRIP, pts.data(), 2);
    pts.assign(pts.size(), 7.0f);
    pts.clear();
    pts.shrink_to_fit();
    EXPECT_EQ(v3("glVertex3fv", 1, 0, 0), draw(p)[2]);
    // An edit replaces the copy.
    const float other[] = {5, 5, 5};
    p.set(GL_LINE_LOOP, other, 1);
    EXPECT_EQ((Calls{call("glBegin", GL_LINE_LOOP), v3("glVertex3fv", 5, 5, 5), call("glEnd")}),
              draw(p));
}

TEST_F(GeometryNodes, PrimitiveThatCannotBeCopiedIsEmpty) {
    const float pts[] = {0, 0, 0};
    cPrimitive3D p;
    p.set(GL_LINE_STRIP, pts, -1);
    EXPECT_EQ(0, p.count);
    EXPECT_EQ(0u, p.mode);
    EXPECT_EQ((Calls{call("glBegin", 0), call("glEnd")}), draw(p));
}

TEST_F(GeometryNodes, SpherePassesItsQuadricSettingsThrough) {
    cSphere3D s;
    s.set(0.5f, 12, 8, GLU_LINE, GLU_FLAT, GLU_INSIDE);
    const void* q = s.quadric.get();
    EXPECT_EQ((Calls{call("gluQuadricDrawStyle", q, GLU_LINE), call("gluQuadricNormals", q, GLU_FLAT),
                     call("gluQuadricOrientation", q, GLU_INSIDE),
                     call("gluSphere", q, 0.5, 12, 8)}),
              draw(s));
}

TEST_F(GeometryNodes, DiskIsAPartialDisk) {
    cDisk3D d;
    d.set(0.25f, 0.75f, 16, 3, 30, 120, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    const void* q = d.quadric.get();
    EXPECT_EQ((Calls{call("gluQuadricDrawStyle", q, GLU_FILL),
                     call("gluQuadricNormals", q, GLU_SMOOTH),
                     call("gluQuadricOrientation", q, GLU_OUTSIDE),
                     call("gluPartialDisk", q, 0.25, 0.75, 16, 3, 30.0, 120.0)}),
              draw(d));
}

Calls tube(const cCylinder3D& c) {
    const void* q = c.quadric.get();
    return {call("gluQuadricDrawStyle", q, c.drawStyle), call("gluQuadricNormals", q, c.normals),
            call("gluQuadricOrientation", q, c.orientation),
            call("gluCylinder", q, double(c.baseRadius), double(c.topRadius), double(c.height),
                 c.slices, c.stacks)};
}

TEST_F(GeometryNodes, CylinderCapsFaceAwayFromAnOutsideTube) {
    cCylinder3D c;
    c.set(2, 0.5f, 0.25f, TRUE, TRUE, 10, 2, GLU_LINE, GLU_SMOOTH, GLU_OUTSIDE);
    const void* bottom = c.bottomCap.get();
    const void* top = c.topCap.get();
    Calls expected = tube(c);
    const Calls caps{call("gluQuadricOrientation", bottom, GLU_INSIDE),
                     call("gluQuadricDrawStyle", bottom, GLU_LINE),
                     call("gluDisk", bottom, 0.0, 0.5, 10, 1),
                     call("gluQuadricOrientation", top, GLU_OUTSIDE),
                     call("gluQuadricDrawStyle", top, GLU_LINE),
                     call("glPushMatrix"),
                     call("glTranslatef", 0.0f, 0.0f, 2.0f),
                     call("gluDisk", top, 0.0, 0.25, 10, 1),
                     call("glPopMatrix")};
    expected.insert(expected.end(), caps.begin(), caps.end());
    EXPECT_EQ(expected, draw(c));
}

TEST_F(GeometryNodes, CylinderCapsOfAnInsideTubeFaceIntoIt) {
    cCylinder3D c;
    c.set(1, 0.5f, 0.5f, TRUE, TRUE, 8, 1, GLU_FILL, GLU_NONE, GLU_INSIDE);
    const Calls calls = draw(c);
    ASSERT_EQ(13u, calls.size());
    EXPECT_EQ(call("gluQuadricOrientation", c.bottomCap.get(), GLU_OUTSIDE), calls[4]);
    EXPECT_EQ(call("gluQuadricOrientation", c.topCap.get(), GLU_INSIDE), calls[7]);
}

TEST_F(GeometryNodes, CylinderEditToNoCapsReleasesThemAndDrawsAnOpenTube) {
    cCylinder3D c;
    c.set(1, 0.5f, 0.5f, TRUE, TRUE, 8, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    const void* bottom = c.bottomCap.get();
    const void* top = c.topCap.get();
    ASSERT_NE(nullptr, bottom);
    ASSERT_NE(nullptr, top);
    recorder.take();
    c.set(1, 0.5f, 0.5f, FALSE, FALSE, 8, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    EXPECT_EQ((Calls{call("gluDeleteQuadric", bottom), call("gluDeleteQuadric", top)}),
              recorder.take());
    EXPECT_EQ(nullptr, c.bottomCap.get());
    EXPECT_EQ(nullptr, c.topCap.get());
    EXPECT_EQ(tube(c), draw(c));
}

TEST_F(GeometryNodes, CylinderEditMakesTheCapsNowAskedFor) {
    cCylinder3D c;
    c.set(1, 0.5f, 0.5f, FALSE, FALSE, 8, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    recorder.take();
    c.set(1, 0.5f, 0.5f, FALSE, TRUE, 8, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    EXPECT_EQ((Calls{call("gluNewQuadric")}), recorder.take());
    EXPECT_EQ(nullptr, c.bottomCap.get());
    EXPECT_NE(nullptr, c.topCap.get());
}

TEST_F(GeometryNodes, QuadricsAreReleasedWithTheNode) {
    recorder.take();
    {
        cCylinder3D c;
        c.set(1, 0.5f, 0.5f, TRUE, TRUE, 8, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
        cSphere3D s;
        cDisk3D d;
        cAxis3D a;
    }
    int created = 0, deleted = 0;
    for (const std::string& c : recorder.take()) {
        created += c == call("gluNewQuadric");
        deleted += c.rfind("gluDeleteQuadric(", 0) == 0;
    }
    EXPECT_EQ(7, created);
    EXPECT_EQ(7, deleted);
}

const char* const kAxisColour[3] = {"glColor3fv(1,0,0)", "glColor3fv(0,1,0)",
                                    "glColor3fv(0,0,1)"};
const float kAxisLength[3] = {2, 3, 4};

class AxisNode : public GeometryNodes {
protected:
    void SetUp() override {
        GeometryNodes::SetUp();
        axis.set(kAxisLength[0], kAxisLength[1], kAxisLength[2], 0.5f, 0.2f, 0.3f);
        calls = draw(axis);
        // push, begin, 3 colours and 22 vertices, end, 2 quadric settings, 6 cones of 7
        // calls (the +z cone has no rotation), pop.
        ASSERT_EQ(1u + 1 + 25 + 1 + 2 + 41 + 1, calls.size());
    }
    cAxis3D axis;
    Calls calls;
};

TEST_F(AxisNode, LinesAndLettersInTheAxisColours) {
    EXPECT_EQ(call("glPushAttrib", GL_CURRENT_BIT), calls[0]);
    EXPECT_EQ(call("glBegin", GL_LINES), calls[1]);
    // x: colour, axis line, two strokes; y and z: colour, line, three strokes.
    const int colourAt[3] = {2, 9, 18};
    for (int axis = 0; axis < 3; ++axis) {
        EXPECT_EQ(kAxisColour[axis], calls[colourAt[axis]]);
        float from[3] = {0, 0, 0}, to[3] = {0, 0, 0};
        from[axis] = -kAxisLength[axis];
        to[axis] = kAxisLength[axis];
        EXPECT_EQ(v3("glVertex3fv", from[0], from[1], from[2]), calls[colourAt[axis] + 1]);
        EXPECT_EQ(v3("glVertex3fv", to[0], to[1], to[2]), calls[colourAt[axis] + 2]);
        // The letter's strokes lie past the positive end.
        const int strokes = axis == 0 ? 2 : 3;
        for (int k = 0; k < 2 * strokes; ++k) {
            const std::string& vtx = calls[colourAt[axis] + 3 + k];
            ASSERT_EQ(0u, vtx.find("glVertex3fv(")) << vtx;
            EXPECT_GE(numbers(vtx)[axis], kAxisLength[axis]) << vtx;
        }
    }
    EXPECT_EQ(call("glEnd"), calls[27]);
}

TEST_F(AxisNode, FourSidedConesAtBothEnds) {
    const void* q = axis.quadric.get();
    const void* cap = axis.capQuadric.get();
    EXPECT_EQ(call("gluQuadricDrawStyle", q, GLU_FILL), calls[28]);
    EXPECT_EQ(call("gluQuadricOrientation", cap, GLU_INSIDE), calls[29]);
    struct Turn {
        int axis;
        float angle, x, y, z;
    };
    const Turn turns[6] = {{0, 90, 0, 1, 0}, {0, 270, 0, 1, 0}, {1, 270, 1, 0, 0},
                           {1, 90, 1, 0, 0}, {2, 0, 0, 0, 1},   {2, 180, 0, 1, 0}};
    size_t i = 30;
    for (const Turn& t : turns) {
        EXPECT_EQ(kAxisColour[t.axis], calls[i++]);
        EXPECT_EQ(call("glPushMatrix"), calls[i++]);
        if (t.angle != 0) {
            EXPECT_EQ(call("glRotatef", t.angle, t.x, t.y, t.z), calls[i++]);
        }
        EXPECT_EQ(call("glTranslatef", 0.0f, 0.0f, kAxisLength[t.axis] - 0.5f), calls[i++]);
        EXPECT_EQ(call("gluCylinder", q, 0.1, 0.0, 0.5, 4, 1), calls[i++]);
        EXPECT_EQ(call("gluDisk", cap, 0.0, 0.1, 4, 1), calls[i++]);
        EXPECT_EQ(call("glPopMatrix"), calls[i++]);
    }
    EXPECT_EQ(call("glPopAttrib"), calls[i]);
}

TEST_F(GeometryNodes, AxisRestoresTheCurrentColour) {
    glColor3f(0.2f, 0.4f, 0.6f);
    cAxis3D a;
    a.set(1, 1, 1, 0.2f, 0.1f, 0.1f);
    draw(a);
    float current[4];
    glGetFloatv(GL_CURRENT_COLOR, current);
    EXPECT_FLOAT_EQ(0.2f, current[0]);
    EXPECT_FLOAT_EQ(0.4f, current[1]);
    EXPECT_FLOAT_EQ(0.6f, current[2]);
}

TEST_F(GeometryNodes, ShadowDrawsNothing) {
    cShadow3D s;
    EXPECT_TRUE(draw(s).empty());
}

}  // namespace
