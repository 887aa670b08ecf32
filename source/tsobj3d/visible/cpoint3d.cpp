// cPoint3D: parameters and drawing.
#include "tsobj3d/visible/cpoint3d.h"

#include <windows.h>
#include <GL/gl.h>

void cPoint3D::set(float px, float py, float pz, const float* color) {
    x = px;
    y = py;
    z = pz;
    hasColor = color != nullptr;
    if (hasColor) {
        r = color[0];
        g = color[1];
        b = color[2];
    }
}

void cPoint3D::draw(ts::DrawContext&) {
    glBegin(GL_POINTS);
    if (hasColor) glColor3f(r, g, b);
    glVertex3f(x, y, z);
    glEnd();
}
