// cLine3D: parameters and drawing.
#include "tsobj3d/visible/cline3d.h"

#include <windows.h>
#include <GL/gl.h>

void cLine3D::set(float x1, float y1, float z1, float x2, float y2, float z2) {
    p1[0] = x1, p1[1] = y1, p1[2] = z1;
    p2[0] = x2, p2[1] = y2, p2[2] = z2;
}

void cLine3D::draw(ts::DrawContext&) {
    glBegin(GL_LINES);
    glVertex3fv(p1);
    glVertex3fv(p2);
    glEnd();
}
