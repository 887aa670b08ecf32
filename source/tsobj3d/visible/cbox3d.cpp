// cBox3D: parameters and drawing, one quad per face with its axis-aligned normal.
#include "tsobj3d/visible/cbox3d.h"

#include <windows.h>
#include <GL/gl.h>

#include "tsobj3d/visible/box_geometry.h"

void cBox3D::set(float x1, float y1, float z1, float x2, float y2, float z2, int orient) {
    const float a[3] = {x1, y1, z1}, b[3] = {x2, y2, z2};
    ts::boxCorners(a, b, corners);
    orientation = orient;
}

void cBox3D::draw(ts::DrawContext&) {
    const ts::BoxFace* faces = ts::boxFaces(orientation);
    glBegin(GL_QUADS);
    for (int f = 0; f < 6; ++f) {
        glNormal3f(faces[f].normal[0], faces[f].normal[1], faces[f].normal[2]);
        for (int c : faces[f].corner) glVertex3fv(corners[c]);
    }
    glEnd();
}
