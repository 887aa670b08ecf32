// cTriangle3D: parameters and drawing.
#include "tsobj3d/visible/ctriangle3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "math/vecmath.h"

void cTriangle3D::set(float x1, float y1, float z1, float x2, float y2, float z2, float x3,
                      float y3, float z3) {
    p1[0] = x1, p1[1] = y1, p1[2] = z1;
    p2[0] = x2, p2[1] = y2, p2[2] = z2;
    p3[0] = x3, p3[1] = y3, p3[2] = z3;
}

void cTriangle3D::draw(ts::DrawContext&) {
    // Culling is switched on here and never off again: every back face drawn after
    // the first triangle is culled, and scenes have always looked that way.
    glEnable(GL_CULL_FACE);
    float n[3];
    ts::faceNormal(p1, p2, p3, n);
    glBegin(GL_TRIANGLES);
    glNormal3fv(n);
    glVertex3fv(p1);
    glVertex3fv(p2);
    glVertex3fv(p3);
    glEnd();
}
