// cColor3D: parameters and drawing.
#include "tsobj3d/visible/ccolor3d.h"

#include <windows.h>
#include <GL/gl.h>

void cColor3D::set(float red, float green, float blue) {
    r = red;
    g = green;
    b = blue;
}

void cColor3D::draw(ts::DrawContext&) { glColor3f(r, g, b); }
